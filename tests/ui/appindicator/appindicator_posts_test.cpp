// SPDX-License-Identifier: MIT
// Under which file and line each operation is posted, and what its task does: a service in place of the
// core's only notes. Also the order of the virtual operations.
#include "support/posted_tasks.hpp"
#include "support/slot_of.hpp"
#include "ui/appindicator/indicator.hpp"

#include <zo_ui/zo_appindicator/appindicator_p.hpp>

#include <thread>

using test::posted;
using test::posts;

namespace {

class AppindicatorPosts : public testing::Test {
  protected:
    AppindicatorPosts() { posts.clear(); }
    ~AppindicatorPosts() override {
        posts.clear();
        if (indicator->is_reffed()) zo_object_unref(zo_appindicator_to_object(indicator));
    }

    // One post, and its task.
    std::function<void()> take_post(int line) {
        EXPECT_EQ(posts.size(), 1U) << line;
        if (posts.size() != 1) return [] {};
        EXPECT_EQ(posts[0].file, "src/zo_ui/zo_appindicator");
        EXPECT_EQ(posts[0].line, line);
        EXPECT_GT(indicator.use_count(), 2);
        auto task = std::move(posts[0].task);
        posts.clear();
        return task;
    }

    indicator_data_ptr record() const {
        indicator_data_ptr iw;
        zo_property_get_extract<indicator_data_ptr>(indicator->property_list, "indicator", &iw);
        return iw;
    }

    // A record of another type is a programming error: the exception leaves the task, and the lock is free.
    void expect_throw(const std::function<void()>& task, const char* property) {
        boost::any wrong = 3.5;
        indicator->property_list.at(property).swap(wrong);
        EXPECT_THROW(task(), boost::bad_any_cast) << property;
        std::thread([&] {
            indicator->property_lock("another thread", 1);
            indicator->property_unlock();
        }).join();
        indicator->property_list.at(property).swap(wrong);
    }

    const zo_appindicator_ptr indicator = zo_appindicator_new("posts", "Title", "icon");
};

TEST_F(AppindicatorPosts, NameTheirPlaceAndHoldTheObject) {
    EXPECT_TRUE(zo_appindicator_add_action(indicator, "a", "A", nullptr));
    const auto add = take_post(184);
    EXPECT_TRUE(record()->actions.empty());
    add();
    EXPECT_EQ(record()->actions.size(), 1U);
    EXPECT_TRUE(zo_appindicator_show(indicator));
    const auto show = take_post(278);
    EXPECT_EQ(record()->menu, nullptr);
    indicator->destroy("reason", 5);
    take_post(161)();
    EXPECT_FALSE(record());
    show();
    EXPECT_FALSE(record());
}

TEST_F(AppindicatorPosts, ASecondDestroyAndEmptyHandlesPostNothing) {
    test::captured_output output;
    indicator->destroy("reason", 5);
    indicator->destroy("reason", 6);
    EXPECT_EQ(posts.size(), 1U);
    zo_appindicator_show({});
    zo_appindicator_add_action({}, "a", "A", nullptr);
    EXPECT_EQ(posts.size(), 1U);
}

TEST_F(AppindicatorPosts, AWrongTypeLeavesTheTask) {
    zo_appindicator_add_action(indicator, "a", "A", nullptr);
    expect_throw(take_post(184), "indicator");
    zo_appindicator_show(indicator);
    const auto show = take_post(278);
    for (const char* property : {"indicator", "icon", "name", "title", "label"}) expect_throw(show, property);
    EXPECT_EQ(record()->menu, nullptr);
    indicator->destroy("reason", 5);
    expect_throw(take_post(161), "indicator");
}

TEST_F(AppindicatorPosts, ANewRecordIsEmpty) {
    ASSERT_TRUE(record());
    EXPECT_EQ(record()->indicator, nullptr);
    EXPECT_EQ(record()->menu, nullptr);
    EXPECT_TRUE(record()->actions.empty());
    EXPECT_TRUE(std::has_virtual_destructor_v<indicator_data>);
}

// The first show fills the record, the second leaves it alone.
TEST_F(AppindicatorPosts, TheRecordHoldsWhatIsShown) {
    zo_appindicator_show(indicator);
    take_post(278)();
    const indicator_data_ptr shown = record();
    // At once, from the first task: the session bus is there.
    EXPECT_TRUE(posts.empty());
    EXPECT_TRUE(GTK_IS_MENU(shown->menu));
    ASSERT_TRUE(IS_APP_INDICATOR(shown->indicator));
    EXPECT_EQ(GTK_WIDGET(app_indicator_get_menu(shown->indicator)), shown->menu);
    AppIndicator* const first = shown->indicator;
    zo_appindicator_show(indicator);
    take_post(278)();
    EXPECT_EQ(record()->indicator, first);
    indicator->destroy("reason", 5);
    take_post(161)();
    EXPECT_EQ(shown->indicator, nullptr);
    EXPECT_EQ(shown->menu, nullptr);
    EXPECT_TRUE(test::menus().empty());
}

using test::slot_of;

TEST_F(AppindicatorPosts, TheSlotsAreThoseOfTheBase) {
    EXPECT_EQ(slot_of(&_zo_appindicator::to_object), 2);
    EXPECT_EQ(slot_of(&_zo_appindicator::get_type), 3);
    EXPECT_EQ(slot_of(&_zo_appindicator::destroy), 4);
    EXPECT_EQ(slot_of(&_zo_appindicator::describe), 5);
}

}  // namespace
