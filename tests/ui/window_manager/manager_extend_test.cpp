// SPDX-License-Identifier: MIT
// Sliding with a real pointer. Every height is the panel's real one.
#include "ui/window_manager/panel.hpp"

namespace {

int at_x() { return zo_ui_screen_x() + 700; }
int below() { return zo_ui_screen_y() + 400; }

class ManagerExtend : public testing::Test {
  protected:
    ManagerExtend() { test::move_pointer(at_x(), below()); }

    static void point(int y, int x = at_x()) {
        test::move_pointer(x, y);
        test::settle_desktop();
    }
    static void touch_edge() { point(zo_ui_screen_y()); }
    static int height() { return test::place_of(test::panel()).height; }

    GtkBox* add_toolbar() const {
        GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
        gtk_container_add(GTK_CONTAINER(box), gtk_button_new_with_label("tool"));
        gtk_widget_show_all(box);
        EXPECT_TRUE(zo_window_manager_add_toolbar(panel, GTK_BOX(box)));
        return GTK_BOX(box);
    }

    test::scoped_panel panel;
};

TEST_F(ManagerExtend, AFreshPanelIsExtendedAndRetractsWhenItIsShown) {
    panel.open();
    int y = -1;
    gtk_window_get_position(GTK_WINDOW(test::panel()), nullptr, &y);
    EXPECT_EQ(y, zo_ui_screen_y());
    panel.show();
    EXPECT_TRUE(test::is_retracted());
    EXPECT_GT(height(), 1);
}

TEST_F(ManagerExtend, ThePointerSlidesItOutAndBack) {
    panel.show();
    for (int round = 0; round < 2; ++round) {
        touch_edge();
        EXPECT_TRUE(test::is_extended());
        point(zo_ui_screen_y() + height() / 2);
        EXPECT_TRUE(test::is_extended());
        point(zo_ui_screen_y() + height());
        EXPECT_TRUE(test::is_retracted());
    }
}

// The last row counts as below; the one above it does not.
TEST_F(ManagerExtend, OnlyALeaveDownwardsRetracts) {
    GtkWidget* side = gtk_window_new(GTK_WINDOW_POPUP);  // a neighbour that takes the pointer sideways
    gtk_widget_set_size_request(side, 100, 10);
    gtk_window_move(GTK_WINDOW(side), zo_ui_screen_x() + 1000, zo_ui_screen_y());
    panel.show();
    gtk_widget_show(side);
    touch_edge();
    EXPECT_TRUE(test::is_extended());
    gdk_window_raise(gtk_widget_get_window(side));
    int left = 0;
    g_signal_connect_swapped(side, "enter-notify-event",
                             G_CALLBACK(+[](int* count) -> gboolean { return ++*count > 0; }), &left);
    point(zo_ui_screen_y() + 5, zo_ui_screen_x() + 1050);
    EXPECT_TRUE(test::turn_until([&] { return left > 0; }));
    EXPECT_TRUE(test::is_extended());
    gtk_widget_destroy(side);
    point(zo_ui_screen_y() + 5);
    test::point lock = test::middle_of(test::part("lock-unlocked"));
    point(lock.y, lock.x);
    EXPECT_TRUE(test::is_extended());
    point(below());
    EXPECT_TRUE(test::is_retracted());
}

TEST_F(ManagerExtend, TheLockKeepsIt) {
    panel.show();
    touch_edge();
    test::click(test::part("lock-unlocked"));
    ASSERT_TRUE(test::turn_until([] { return test::part("lock-locked"); }));
    point(below());
    EXPECT_TRUE(test::is_extended());
    panel.run(zo_window_manager_retract);
    EXPECT_TRUE(test::is_retracted());
    panel.run(zo_window_manager_extend);
    EXPECT_TRUE(test::is_extended());
    panel.keep_extended(false);
    EXPECT_TRUE(test::is_extended());
    touch_edge();
    point(below());
    EXPECT_TRUE(test::is_retracted());
}

TEST_F(ManagerExtend, OperationsActOnceAndOnlyOnAnOpenedPanel) {
    panel.run(zo_window_manager_extend);
    panel.run(zo_window_manager_retract);
    panel.show();
    for (int round = 0; round < 2; ++round) panel.run(zo_window_manager_extend);
    EXPECT_TRUE(test::is_extended());
    for (int round = 0; round < 2; ++round) panel.run(zo_window_manager_retract);
    EXPECT_TRUE(test::is_retracted());
}

TEST_F(ManagerExtend, KeepingDoesNotMove) {
    panel.show();
    panel.keep_extended(true);
    EXPECT_TRUE(test::is_retracted());
    touch_edge();
    EXPECT_TRUE(test::is_extended());
    point(below());
    EXPECT_TRUE(test::is_extended());
    panel.keep_extended(false);
    EXPECT_TRUE(test::is_extended());
}

TEST_F(ManagerExtend, AKeptPanelIsShownExtended) {
    panel.keep_extended(true);
    panel.show();
    EXPECT_TRUE(test::is_extended());
    EXPECT_TRUE(test::part("lock-locked"));
}

TEST_F(ManagerExtend, AToolbarReanchorsARetractedPanel) {
    panel.show();
    const int before = height();
    GtkBox* toolbar = add_toolbar();
    EXPECT_TRUE(test::turn_until([&] { return height() > before; }));
    EXPECT_TRUE(test::is_retracted());
    touch_edge();
    EXPECT_TRUE(test::is_extended());
    point(below());
    EXPECT_TRUE(test::is_retracted());
    panel.run(zo_window_manager_extend);
    panel.run(zo_window_manager_retract);
    EXPECT_TRUE(test::is_retracted());
    EXPECT_TRUE(zo_window_manager_remove_toolbar(panel, toolbar));
    EXPECT_TRUE(test::turn_until([&] { return height() == before; }));
    EXPECT_TRUE(test::is_retracted());
}

TEST_F(ManagerExtend, AToolbarLeavesAnExtendedPanelExtended) {
    panel.keep_extended(true);
    panel.show();
    const int before = height();
    add_toolbar();
    EXPECT_TRUE(test::turn_until([&] { return height() > before; }));
    EXPECT_TRUE(test::is_extended());
}

TEST_F(ManagerExtend, AReopenedPanelIsExtended) {
    panel.show();
    EXPECT_TRUE(test::is_retracted());
    panel.close();
    panel.keep_extended(true);
    panel.show();
    EXPECT_TRUE(test::is_extended());
    panel.run(zo_window_manager_retract);
    EXPECT_TRUE(test::is_retracted());
}

// Shown again it is where it was.
TEST_F(ManagerExtend, HidingKeepsItsPlace) {
    panel.show();
    panel.run(zo_window_manager_hide);
    panel.show();
    EXPECT_TRUE(test::is_retracted());
    touch_edge();
    EXPECT_TRUE(test::is_extended());
}

TEST_F(ManagerExtend, ItMovesWhileItIsHidden) {
    panel.show();
    EXPECT_TRUE(test::is_retracted());
    panel.run(zo_window_manager_hide);
    panel.run(zo_window_manager_extend);
    panel.keep_extended(true);
    panel.show();
    EXPECT_TRUE(test::is_extended());
    panel.run(zo_window_manager_hide);
    panel.run(zo_window_manager_retract);
    panel.show();
    EXPECT_TRUE(test::is_retracted());
}

}  // namespace
