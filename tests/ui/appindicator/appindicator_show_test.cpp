// SPDX-License-Identifier: MIT
// What a shown indicator tells the desktop's tray.
#include "ui/appindicator/indicator.hpp"

#include <algorithm>
#include <list>

namespace {

class AppindicatorShow : public test::with_tray_host {
  protected:
    // The label has no setter of its own.
    static void set_label(const test::scoped_indicator& indicator, const std::string& label) {
        const zo_object_ptr object = indicator.object();
        object->property_lock(__FILE__, __LINE__);
        EXPECT_TRUE(zo_property_set<std::string>(object->property_list, "label", label));
        object->property_unlock();
    }
};

TEST_F(AppindicatorShow, TellsNameTitleAndIcon) {
    test::scoped_indicator indicator("mail", "My mail", "mail-unread");
    indicator.show();
    const test::tray_item item = test::wait_for_tray_item("mail");
    EXPECT_EQ(test::item_text(item, "Id"), "mail");
    EXPECT_EQ(test::item_text(item, "Title"), "My mail");
    EXPECT_EQ(test::item_text(item, "IconName"), "mail-unread");
    EXPECT_EQ(test::item_text(item, "AttentionIconName"), "mail-unread");
    EXPECT_EQ(test::item_text(item, "Category"), "ApplicationStatus");
    EXPECT_EQ(test::item_text(item, "Status"), "Active");
}

TEST_F(AppindicatorShow, TellsALabelOnlyWhenThereIsOne) {
    test::scoped_indicator plain("plain");
    plain.show();
    const test::tray_item without = test::wait_for_tray_item("plain");
    EXPECT_EQ(test::item_text(without, "XAyatanaLabel"), "");
    EXPECT_EQ(test::item_text(without, "XAyatanaLabelGuide"), "");
    test::scoped_indicator labelled("labelled");
    set_label(labelled, "42 %");
    labelled.show();
    const test::tray_item with = test::wait_for_tray_item("labelled");
    EXPECT_EQ(test::item_text(with, "XAyatanaLabel"), "42 %");
    EXPECT_EQ(test::item_text(with, "XAyatanaLabelGuide"), "guide");
}

// Without a title of its own an item goes by the program's name.
TEST_F(AppindicatorShow, AnEmptyTitleIsNotSet) {
    test::scoped_indicator untitled("untitled", "");
    untitled.show();
    EXPECT_EQ(test::item_text(test::wait_for_tray_item("untitled"), "Title"), "zo-test");
}

TEST_F(AppindicatorShow, AnEmptyIconIsShownAsNone) {
    test::scoped_indicator bare("bare", "Bare", "");
    bare.show();
    EXPECT_EQ(test::item_text(test::wait_for_tray_item("bare"), "IconName"), "");
}

TEST_F(AppindicatorShow, AnEmptyNameIsNeverShown) {
    int called = 0;
    test::scoped_indicator nameless("");
    nameless.count("a", "A", called);
    nameless.show();
    EXPECT_TRUE(test::menus().empty());
    // Whoever comes later is there; the nameless one would be, too.
    test::scoped_indicator named("named");
    named.show();
    test::wait_for_tray_item("named");
    EXPECT_TRUE(test::tray_items("").empty());
}

// One icon, one menu, and it stays the one that was there.
TEST_F(AppindicatorShow, ShowingTwiceCreatesOneIndicator) {
    int called = 0;
    test::scoped_indicator indicator("once");
    indicator.count("a", "A", called);
    zo_appindicator_show(indicator);
    indicator.show();
    const test::tray_item item = test::wait_for_tray_item("once");
    ASSERT_EQ(test::menus().size(), 1U);
    GtkWidget* const menu = test::menus()[0];
    indicator.show();
    EXPECT_EQ(test::menus(), std::vector<GtkWidget*>{menu});
    test::choose_and_wait(item, "A", called);
    EXPECT_EQ(called, 1);
    EXPECT_EQ(test::tray_items("once").size(), 1U);
}

TEST_F(AppindicatorShow, NothingIsShownBeforeTheTaskRuns) {
    test::scoped_indicator indicator("later");
    EXPECT_TRUE(zo_appindicator_add_action(indicator, "a", "A", nullptr));
    EXPECT_TRUE(zo_appindicator_show(indicator));
    EXPECT_TRUE(test::menus().empty());
    test::run_tasks();
    EXPECT_EQ(test::menus().size(), 1U);
}

// The properties count as they are when the task runs.
TEST_F(AppindicatorShow, ReadsItsPropertiesInTheTask) {
    test::scoped_indicator indicator("early");
    zo_appindicator_show(indicator);
    set_label(indicator, "set in time");
    test::run_tasks();
    EXPECT_EQ(test::item_text(test::wait_for_tray_item("early"), "XAyatanaLabel"), "set in time");
}

// The bus takes only UTF-8: what can be read of other texts is shown, and nobody is warned.
TEST_F(AppindicatorShow, TextsThatAreNotUtf8AreShownAsFarAsTheyGo) {
    test::scoped_indicator indicator("na\xffme", "Caf\xe9", "ic\xffon");
    set_label(indicator,
              "la\xff"
              "bel");
    indicator.show();
    const test::tray_item item = test::wait_for_tray_item("na\xef\xbf\xbdme");
    EXPECT_EQ(test::item_text(item, "Title"), "Caf\xef\xbf\xbd");
    EXPECT_EQ(test::item_text(item, "IconName"), "ic\xef\xbf\xbdon");
    EXPECT_EQ(test::item_text(item, "AttentionIconName"), "ic\xef\xbf\xbdon");
    EXPECT_EQ(test::item_text(item, "XAyatanaLabel"),
              "la\xef\xbf\xbd"
              "bel");
    // The place of the readable name is free again.
    indicator.destroy();
    test::scoped_indicator next("na\xffme");
    next.show();
    test::wait_for_tray_item("na\xef\xbf\xbdme");
}

TEST_F(AppindicatorShow, SeveralAreSeveral) {
    test::scoped_indicator first("first", "First");
    test::scoped_indicator second("second", "Second");
    first.show();
    second.show();
    EXPECT_EQ(test::item_text(test::wait_for_tray_item("first"), "Title"), "First");
    EXPECT_EQ(test::item_text(test::wait_for_tray_item("second"), "Title"), "Second");
}

TEST_F(AppindicatorShow, MoreThanATrayHasRoomFor) {
    constexpr int count = 120;
    std::list<test::scoped_indicator> many;
    for (int number = 0; number < count; ++number) many.emplace_back("many-" + std::to_string(number)).show();
    const auto is_one = [](const test::tray_item& item) {
        return item.path.find("/many_") != item.path.npos;
    };
    EXPECT_TRUE(test::turn_until([&] {
        const std::vector<test::tray_item> items = test::tray_items();
        return std::count_if(items.begin(), items.end(), is_one) == count;
    }));
}

}  // namespace
