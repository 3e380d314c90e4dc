// SPDX-License-Identifier: MIT
// The menu as the tray host shows it, and what a click calls.
#include "ui/appindicator/indicator.hpp"

namespace {

using labels = std::vector<std::string>;

class AppindicatorMenu : public test::with_tray_host {
  protected:
    test::tray_item show() {
        indicator.show();
        return test::wait_for_tray_item("menu");
    }

    static void add(test::indicator_handle to, const std::string& name, const std::string& label) {
        EXPECT_TRUE(zo_appindicator_add_action(to, name, label, [](zo_appindicator_ptr, std::string&) {}));
    }

    test::scoped_indicator indicator{"menu"};
    int called = 0;
};

TEST_F(AppindicatorMenu, EntriesComeInByteOrderOfTheirNames) {
    for (const char* name : {"b", "\xc3\xa9", "a", "Z", "a-2", "a-10", "^", "A"}) add(indicator, name, name);
    EXPECT_TRUE(
        test::tray_labels_become(show(), (labels{"A", "Z", "^", "a", "a-10", "a-2", "b", "\xc3\xa9"})));
}

TEST_F(AppindicatorMenu, TheOrderIsThatOfNamesNotOfLabels) {
    add(indicator, "1", "Zebra");
    add(indicator, "2", "Ant");
    EXPECT_TRUE(test::tray_labels_become(show(), (labels{"Zebra", "Ant"})));
}

// The menu's protocol marks keyboard shortcuts by an underscore; two of them are one to read.
TEST_F(AppindicatorMenu, AnUnderscoreInALabelIsText) {
    add(indicator, "a", "Save_as");
    EXPECT_TRUE(test::tray_labels_become(show(), labels{"Save__as"}));
}

TEST_F(AppindicatorMenu, WithoutActionsIsEmpty) {
    EXPECT_TRUE(test::tray_labels(show()).empty());
    ASSERT_EQ(test::menus().size(), 1U);
    EXPECT_TRUE(test::children(test::menus()[0]).empty());
}

TEST_F(AppindicatorMenu, EveryItemIsAttachedToTheSameCell) {
    for (const char* name : {"a", "b", "c"}) add(indicator, name, name);
    show();
    ASSERT_EQ(test::menus().size(), 1U);
    GtkWidget* const menu = test::menus()[0];
    EXPECT_TRUE(gtk_widget_get_visible(menu));
    const std::vector<GtkWidget*> items = test::children(menu);
    ASSERT_EQ(items.size(), 3U);
    for (GtkWidget* item : items) {
        int cell[4] = {-1, -1, -1, -1};
        gtk_container_child_get(GTK_CONTAINER(menu), item, "left-attach", &cell[0], "right-attach", &cell[1],
                                "top-attach", &cell[2], "bottom-attach", &cell[3], nullptr);
        EXPECT_EQ(std::vector<int>(cell, cell + 4), (std::vector<int>{0, 1, 0, 1}));
        EXPECT_TRUE(gtk_widget_get_visible(item));
        EXPECT_STREQ(gtk_menu_item_get_label(GTK_MENU_ITEM(item)), gtk_widget_get_name(item));
    }
}

TEST_F(AppindicatorMenu, AClickCallsItsActionWithHandleAndName) {
    std::vector<std::string> calls;
    const auto note = [&](zo_appindicator_ptr clicked, std::string& name) {
        EXPECT_EQ(clicked, indicator.get());
        calls.push_back(name);
    };
    zo_appindicator_add_action(indicator, "open", "Open it", note);
    zo_appindicator_add_action(indicator, "quit", "Quit", note);
    const test::tray_item item = show();
    for (const char* label : {"Quit", "Open it", "Quit"}) {
        const std::size_t before = calls.size();
        EXPECT_TRUE(test::turn_until([&] { return test::choose_tray_entry(item, label); }));
        EXPECT_TRUE(test::turn_until([&] { return calls.size() > before; }));
    }
    EXPECT_EQ(calls, (labels{"quit", "open", "quit"}));
}

// Both before and after the menu was made.
TEST_F(AppindicatorMenu, AnExistingNameGetsTheNewCallbackAndKeepsItsLabel) {
    int first = 0;
    int second = 0;
    int third = 0;
    indicator.count("a", "First", first);
    indicator.count("a", "Second", second);
    const test::tray_item item = show();
    EXPECT_TRUE(test::tray_labels_become(item, labels{"First"}));
    test::choose_and_wait(item, "First", second);
    indicator.count("a", "Third", third);
    test::run_tasks();
    EXPECT_TRUE(test::tray_labels_become(item, labels{"First"}));
    test::choose_and_wait(item, "First", third);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 1);
}

TEST_F(AppindicatorMenu, AReplacedCallbackIsLetGo) {
    const auto held = std::make_shared<int>(0);
    zo_appindicator_add_action(indicator, "a", "A", [held](zo_appindicator_ptr, std::string&) {});
    test::run_tasks();
    EXPECT_EQ(held.use_count(), 2);
    add(indicator, "a", "A");
    test::run_tasks();
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(AppindicatorMenu, AnActionAddedLaterDoesNotAppear) {
    indicator.count("b", "B", called);
    const test::tray_item item = show();
    add(indicator, "a", "A");
    test::run_tasks();
    indicator.show();
    EXPECT_TRUE(test::tray_labels_become(item, labels{"B"}));
    EXPECT_FALSE(test::choose_tray_entry(item, "A"));
    test::choose_and_wait(item, "B", called);
}

TEST_F(AppindicatorMenu, AnActionAddedInFrontOfTheShowTaskAppears) {
    zo_appindicator_show(indicator);
    zo_system_service_exec([] {}, "test", 1);
    add(indicator, "late", "Late");
    test::run_tasks();
    EXPECT_TRUE(test::tray_labels(test::wait_for_tray_item("menu")).empty());
    test::scoped_indicator other("other");
    add(other, "early", "Early");
    other.show();
    EXPECT_TRUE(test::tray_labels_become(test::wait_for_tray_item("other"), labels{"Early"}));
}

TEST_F(AppindicatorMenu, AnEmptyCallbackDoesNothing) {
    zo_appindicator_add_action(indicator, "a", "Nothing", nullptr);
    indicator.count("b", "Something", called);
    const test::tray_item item = show();
    EXPECT_TRUE(test::tray_labels_become(item, (labels{"Nothing", "Something"})));
    EXPECT_TRUE(test::turn_until([&] { return test::choose_tray_entry(item, "Nothing"); }));
    test::choose_and_wait(item, "Something", called);
    EXPECT_EQ(called, 1);
}

// The item says by its widget name which action it is.
TEST_F(AppindicatorMenu, AnItemOfNoActionDoesNothing) {
    indicator.count("a", "A", called);
    show();
    GtkWidget* const item = test::find_name(test::menus().at(0), "a");
    ASSERT_TRUE(item);
    gtk_widget_set_name(item, "unknown");
    gtk_menu_item_activate(GTK_MENU_ITEM(item));
    EXPECT_EQ(called, 0);
    gtk_widget_set_name(item, "a");
    gtk_menu_item_activate(GTK_MENU_ITEM(item));
    EXPECT_EQ(called, 1);
}

// The name goes nowhere but back to the callback, byte by byte.
TEST_F(AppindicatorMenu, ALabelThatIsNotUtf8IsShownAsFarAsItGoes) {
    std::string clicked;
    zo_appindicator_add_action(indicator, "a\xff", "Caf\xe9", [&](zo_appindicator_ptr, std::string& name) {
        clicked = name;
        ++called;
    });
    test::choose_and_wait(show(), "Caf\xef\xbf\xbd", called);
    EXPECT_EQ(clicked, "a\xff");
}

TEST_F(AppindicatorMenu, AnEmptyNameAndAnEmptyLabelAreAnActionToo) {
    indicator.count("", "No name", called);
    add(indicator, "x", "");
    const test::tray_item item = show();
    test::choose_and_wait(item, "No name", called);
    EXPECT_EQ(test::children(test::menus().at(0)).size(), 2U);
}

}  // namespace
