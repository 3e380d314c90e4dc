// SPDX-License-Identifier: MIT
// On the stack of a manager: at the right, waiting while it is hidden, gone when it closes.
#include "ui/notification/popup.hpp"
#include "ui/window_manager/panel.hpp"

namespace {

constexpr int top = 75;
constexpr int gap = 2;

int x() { return zo_ui_screen_width() - 570; }

class NotificationManager : public testing::Test {
  protected:
    static void join(const test::scoped_notification& notification, const zo_window_manager_ptr& manager) {
        EXPECT_TRUE(zo_notification_set_manager(notification, manager));
    }

    test::scoped_panel panel;
};

using test::state;

TEST_F(NotificationManager, StacksThemAtTheRight) {
    panel.show();
    const test::scoped_notification first("1", "one\nand more");
    const test::scoped_notification second("2");
    const test::scoped_notification elsewhere("3");
    join(first, panel);
    join(second, panel);
    GtkWidget* a = first.show();
    GtkWidget* other = elsewhere.show();
    GtkWidget* b = second.show();
    EXPECT_TRUE(test::comes_to(a, {x(), top})) << test::spot_of(a);
    EXPECT_TRUE(test::comes_to(b, {x(), top + test::height_of(a) + gap})) << test::spot_of(b);
    EXPECT_TRUE(test::comes_to(other, {50, top}));
    const test::popup_container expected{{zo_notification_get_id(first), a},
                                         {zo_notification_get_id(second), b}};
    EXPECT_EQ(test::container_of(panel), expected);
    first.close();
    EXPECT_TRUE(test::comes_to(b, {x(), top}));
    EXPECT_TRUE(test::comes_to(other, {50, top}));
    EXPECT_EQ(test::container_of(panel).size(), 1U);
}

// The first time it stands below all that are there; from then on only the older ones count.
TEST_F(NotificationManager, AnOlderOneFindsItsPlaceWithTheNextShow) {
    panel.show();
    const test::scoped_notification first("1");
    const test::scoped_notification second("2");
    join(first, panel);
    join(second, panel);
    GtkWidget* b = second.show();
    EXPECT_TRUE(test::comes_to(b, {x(), top}));
    GtkWidget* a = first.show();
    EXPECT_TRUE(test::comes_to(a, {x(), top + test::height_of(b) + gap}));
    panel.run(zo_window_manager_hide);
    panel.show();
    test::run_tasks();
    EXPECT_TRUE(test::comes_to(a, {x(), top}));
    EXPECT_TRUE(test::comes_to(b, {x(), top + test::height_of(a) + gap}));
}

TEST_F(NotificationManager, WaitsForAHiddenOne) {
    panel.show();
    panel.run(zo_window_manager_hide);
    const test::scoped_notification notification;
    join(notification, panel);
    GtkWidget* popup = notification.show();
    ASSERT_TRUE(popup);
    EXPECT_EQ(test::state_of(notification), (state{true, false, false}));
    EXPECT_FALSE(gtk_widget_get_visible(popup));
    EXPECT_TRUE(test::container_of(panel).empty());
    panel.show();
    test::run_tasks();
    EXPECT_EQ(test::state_of(notification), (state{true, true, false}));
    EXPECT_EQ(notification.popup(), popup);
    EXPECT_TRUE(test::comes_to(popup, {x(), top}));
}

TEST_F(NotificationManager, IsHiddenAndShownWithIt) {
    panel.show();
    const test::scoped_notification first("1");
    const test::scoped_notification second("2");
    join(first, panel);
    join(second, panel);
    GtkWidget* a = first.show();
    GtkWidget* b = second.show();
    for (int round = 0; round < 3; ++round) {
        panel.run(zo_window_manager_hide);
        EXPECT_EQ(test::state_of(first), (state{true, false, false}));
        EXPECT_FALSE(gtk_widget_get_visible(a));
        EXPECT_EQ(test::container_of(panel).size(), 2U) << "a hidden one keeps its place";
        panel.show();
        test::run_tasks();
        EXPECT_EQ(test::state_of(second), (state{true, true, false}));
        EXPECT_TRUE(test::comes_to(a, {x(), top}));
        EXPECT_TRUE(test::comes_to(b, {x(), top + test::height_of(a) + gap}));
    }
}

TEST_F(NotificationManager, HiddenOnesMoveUpToo) {
    panel.show();
    const test::scoped_notification first("1");
    const test::scoped_notification second("2");
    join(first, panel);
    join(second, panel);
    first.show();
    GtkWidget* b = second.show();
    panel.run(zo_window_manager_hide);
    first.close();
    EXPECT_EQ(test::spot_of(b), (test::spot{x(), top}));
    panel.show();
    test::run_tasks();
    EXPECT_TRUE(test::comes_to(b, {x(), top}));
}

TEST_F(NotificationManager, ItsCloseClosesThem) {
    panel.show();
    const test::scoped_notification shown("1");
    const test::scoped_notification waiting("2");
    int closed = 0;
    for (const auto* one : {&shown, &waiting}) {
        join(*one, panel);
        zo_notification_on_close(*one, [&](const zo_notification_ptr&) { ++closed; });
    }
    shown.show();
    panel.run(zo_window_manager_hide);
    waiting.show();
    panel.close();
    EXPECT_EQ(closed, 2);
    EXPECT_EQ(test::state_of(shown), (state{false, false, true}));
    EXPECT_EQ(test::state_of(waiting), (state{false, false, true}));
    EXPECT_TRUE(test::toplevels("zo-notification").empty());
    EXPECT_TRUE(test::container_of(panel).empty());
}

// What is checked after the test: neither keeps the other alive.
TEST_F(NotificationManager, TheEndOfItsManagerClosesOneThatWaits) {
    for (const bool before : {true, false}) {
        const zo_window_manager_ptr manager = zo_window_manager_new("");
        const zo_notification_ptr waiting = zo_notification_new();
        int closed = 0;
        zo_notification_on_close(waiting, [&](const zo_notification_ptr&) { ++closed; });
        zo_notification_set_manager(waiting, manager);
        if (before) zo_window_manager_destroy(manager);
        zo_notification_open_show(waiting);
        test::run_tasks();
        if (!before) zo_window_manager_destroy(manager);
        test::run_tasks();
        EXPECT_EQ(closed, 1);
        EXPECT_EQ(test::state_of(waiting), (state{false, false, true}));
    }
    EXPECT_TRUE(test::toplevels("zo-notification").empty());
}

TEST_F(NotificationManager, TheEndOfItsManagerLeavesAShownOne) {
    panel.show();
    const test::scoped_notification notification;
    join(notification, panel);
    notification.show();
    panel.run(zo_window_manager_destroy);
    EXPECT_EQ(test::state_of(notification), (state{true, true, false}));
    notification.close();
    EXPECT_TRUE(test::container_of(panel).empty());
    gtk_widget_destroy(test::panel());
}

TEST_F(NotificationManager, AnotherManagerWhileShownLeavesNothingInTheFirst) {
    panel.show();
    const test::scoped_notification notification;
    const test::scoped_notification other("other");
    join(notification, panel);
    join(other, panel);
    notification.show();
    GtkWidget* below = other.show();
    const zo_window_manager_ptr second = zo_window_manager_new("");
    join(notification, second);
    notification.close();
    EXPECT_EQ(test::container_of(panel).size(), 1U);
    EXPECT_TRUE(test::comes_to(below, {x(), top}));
    panel.run(zo_window_manager_hide);
    panel.show();
    zo_window_manager_destroy(second);
    test::run_tasks();
}

TEST_F(NotificationManager, TheNextShowMovesItToTheNewStack) {
    panel.show();
    const test::scoped_notification notification;
    join(notification, panel);
    notification.show();
    panel.run(zo_window_manager_hide);
    join(notification, {});
    notification.show();
    EXPECT_TRUE(test::container_of(panel).empty());
    EXPECT_TRUE(test::comes_to(notification.popup(), {50, top}));
    panel.show();
    panel.run(zo_window_manager_hide);
    EXPECT_TRUE(test::state_of(notification).visible) << "no longer the manager's";
}

TEST_F(NotificationManager, StandsBelowAWindowThatTheApplicationPutThere) {
    panel.show();
    GtkWidget* foreign = gtk_window_new(GTK_WINDOW_POPUP);
    gtk_window_set_default_size(GTK_WINDOW(foreign), 100, 60);
    gtk_window_move(GTK_WINDOW(foreign), 10, 300);
    gtk_widget_show(foreign);
    GtkWidget* no_window = gtk_label_new("no window");
    g_object_ref_sink(no_window);
    test::popup_container& popups = test::container_of(panel);
    popups = {{0, foreign}, {1, nullptr}, {2, no_window}};
    const test::scoped_notification first("1");
    const test::scoped_notification second("2");
    join(first, panel);
    join(second, panel);
    GtkWidget* a = first.show();
    EXPECT_TRUE(test::comes_to(a, {x(), 300 + 60 + gap}));
    GtkWidget* b = second.show();
    first.close();
    EXPECT_TRUE(test::comes_to(foreign, {x(), top}));
    EXPECT_TRUE(test::comes_to(b, {x(), top + 60 + gap}));
    popups.clear();
    g_object_unref(no_window);
    gtk_widget_destroy(foreign);
}

}  // namespace
