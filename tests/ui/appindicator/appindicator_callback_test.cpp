// SPDX-License-Identifier: MIT
// What a callback may do to the indicator that calls it.
#include "support/lock_probe.hpp"
#include "ui/appindicator/indicator.hpp"

#include <thread>

namespace {

class AppindicatorCallback : public test::with_tray_host {
  protected:
    using callback = std::function<void(zo_appindicator_ptr, std::string&)>;

    // Shows an indicator with this action and clicks it.
    void click(const callback& action) {
        zo_appindicator_add_action(indicator, "act", "Act", [this, action](auto clicked, auto& name) {
            action(clicked, name);
            ++called;
        });
        indicator.show();
        item = test::wait_for_tray_item("callback");
        test::choose_and_wait(item, "Act", called);
    }

    test::scoped_indicator indicator{"callback"};
    test::tray_item item;
    int called = 0;
};

TEST_F(AppindicatorCallback, RunsOnTheLoopWithoutTheLock) {
    const std::thread::id loop = std::this_thread::get_id();
    click([&](const zo_appindicator_ptr& clicked, std::string&) {
        EXPECT_EQ(std::this_thread::get_id(), loop);
        EXPECT_TRUE(test::lock_is_free(zo_appindicator_to_object(clicked)));
    });
}

TEST_F(AppindicatorCallback, GetsACopyOfTheName) {
    std::vector<std::string> names;
    click([&](const zo_appindicator_ptr&, std::string& name) {
        names.push_back(name);
        name = "spoiled";
    });
    test::choose_and_wait(item, "Act", called);
    EXPECT_EQ(names, (std::vector<std::string>{"act", "act"}));
}

TEST_F(AppindicatorCallback, MayDestroyTheIndicator) {
    click([](const zo_appindicator_ptr& clicked, std::string&) {
        zo_appindicator_to_object(clicked)->destroy("callback", 2);
    });
    test::run_tasks();
    EXPECT_TRUE(test::tray_items_become("callback", 0));
    EXPECT_TRUE(test::menus().empty());
    EXPECT_EQ(indicator.get().use_count(), 1);
    indicator.let_go();
}

// The menu goes while its item is still calling.
TEST_F(AppindicatorCallback, MayDestroyTheIndicatorAndRunTheLoop) {
    const auto held = std::make_shared<int>(0);
    click([held](const zo_appindicator_ptr& clicked, std::string& name) {
        zo_appindicator_to_object(clicked)->destroy("callback", 2);
        test::run_tasks();
        EXPECT_TRUE(test::menus().empty());
        EXPECT_EQ(name, "act");
        EXPECT_EQ(zo_object_ref_count("[zo_appindicator]"), 1);
        EXPECT_GT(held.use_count(), 1);
    });
    test::run_tasks();
    EXPECT_EQ(indicator.get().use_count(), 1);
    EXPECT_EQ(held.use_count(), 1);
    indicator.let_go();
}

TEST_F(AppindicatorCallback, MayDropTheLastHandle) {
    click([this](const zo_appindicator_ptr& clicked, std::string&) {
        zo_appindicator_to_object(clicked)->destroy("callback", 2);
        indicator.let_go();
    });
    test::run_tasks();
    EXPECT_EQ(zo_object_ref_count("[zo_appindicator]"), 0);
}

// Nobody but the library holds it then, and it works on.
TEST_F(AppindicatorCallback, MayDropTheLastHandleOfALivingIndicator) {
    zo_appindicator_ptr kept;
    click([&](const zo_appindicator_ptr& clicked, std::string&) {
        if (indicator.get()) return indicator.let_go();
        kept = clicked;
    });
    EXPECT_EQ(zo_object_ref_count("[zo_appindicator]"), 1);
    test::choose_and_wait(item, "Act", called);
    ASSERT_TRUE(kept);
    zo_appindicator_to_object(kept)->destroy("test", 1);
    test::run_tasks();
    kept.reset();
    EXPECT_EQ(zo_object_ref_count("[zo_appindicator]"), 0);
}

// The callable that runs is replaced meanwhile, in a nested loop at that.
TEST_F(AppindicatorCallback, MayReplaceItself) {
    const auto held = std::make_shared<int>(0);
    int replaced = 0;
    click([&, held](const zo_appindicator_ptr& clicked, std::string&) {
        zo_appindicator_add_action(clicked, "act", "", [&](auto, auto&) { ++replaced; });
        test::run_tasks();
        EXPECT_GT(held.use_count(), 1);
    });
    test::choose_and_wait(item, "Act", replaced);
    EXPECT_EQ(called, 1);
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(AppindicatorCallback, MayAddActionsAndShowAgain) {
    click([](const zo_appindicator_ptr& clicked, std::string&) {
        for (int i = 0; i < 100; ++i)
            zo_appindicator_add_action(clicked, "new-" + std::to_string(i), "New", nullptr);
        zo_appindicator_show(clicked);
        test::run_tasks();
    });
    EXPECT_TRUE(test::tray_labels_become(item, std::vector<std::string>{"Act"}));
    test::choose_and_wait(item, "Act", called);
    EXPECT_EQ(test::tray_items("callback").size(), 1U);
}

// A circle through the application's own capture ends with the indicator.
TEST_F(AppindicatorCallback, MayHoldTheIndicator) {
    zo_appindicator_add_action(indicator, "circle", "Circle", [self = indicator.get()](auto, auto&) {});
    click([self = indicator.get()](const zo_appindicator_ptr&, std::string&) {});
    indicator.destroy();
    EXPECT_EQ(indicator.get().use_count(), 1);
}

// A callable that acts on the indicator when it is destroyed itself.
TEST_F(AppindicatorCallback, MayActWhenItIsLetGo) {
    struct last_words {
        zo_appindicator_ptr self;
        ~last_words() {
            zo_appindicator_add_action(self, "act", "Act", nullptr);
            zo_appindicator_show(self);
            test::run_tasks();
            EXPECT_TRUE(test::lock_is_free(zo_appindicator_to_object(self)));
        }
    };
    click([words = std::make_shared<last_words>(indicator.get())](const auto&, auto&) {});
    zo_appindicator_add_action(indicator, "act", "Act", nullptr);
    test::run_tasks();
    indicator.destroy();
    EXPECT_TRUE(test::menus().empty());
    EXPECT_EQ(indicator.get().use_count(), 1);
}

}  // namespace
