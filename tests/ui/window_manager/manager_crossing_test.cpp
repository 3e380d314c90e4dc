// SPDX-License-Identifier: MIT
// Where a leave counts as one downwards; and what the panel's height does while it is not on screen.
#include "ui/window_manager/panel.hpp"

namespace {

class ManagerCrossing : public testing::Test {
  protected:
    ManagerCrossing() { test::move_pointer(zo_ui_screen_x() + 700, zo_ui_screen_y() + 400); }
    static int height() { return test::place_of(test::panel()).height; }

    // Another window above the panel takes the pointer at this row of the panel, counted from its last one.
    static void leave_at(int row) {
        GtkWidget* side = gtk_window_new(GTK_WINDOW_POPUP);
        gtk_widget_set_size_request(side, 100, 300);
        gtk_window_move(GTK_WINDOW(side), zo_ui_screen_x() + 1000, zo_ui_screen_y());
        gtk_widget_show(side);
        test::move_pointer(zo_ui_screen_x() + 700, zo_ui_screen_y());
        EXPECT_TRUE(test::is_extended());
        gdk_window_raise(gtk_widget_get_window(side));
        int entered = 0;
        g_signal_connect_swapped(side, "enter-notify-event",
                                 G_CALLBACK(+[](int* count) -> gboolean { return ++*count > 0; }), &entered);
        test::move_pointer(zo_ui_screen_x() + 1050, zo_ui_screen_y() + height() - 1 - row);
        EXPECT_TRUE(test::turn_until([&] { return entered > 0; }));
        test::settle_desktop();
        gtk_widget_hide(side);
        gtk_widget_destroy(side);
    }

    GtkWidget* toolbar() const {
        GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
        gtk_container_add(GTK_CONTAINER(box), gtk_button_new_with_label("tool"));
        gtk_widget_show_all(box);
        EXPECT_TRUE(zo_window_manager_add_toolbar(panel, GTK_BOX(box)));
        return box;
    }

    test::scoped_panel panel;
};

TEST_F(ManagerCrossing, TheLastRowIsBelow) {
    panel.show();
    leave_at(0);
    EXPECT_TRUE(test::is_retracted());
}

TEST_F(ManagerCrossing, TheRowAboveItIsNot) {
    panel.show();
    leave_at(1);
    EXPECT_TRUE(test::is_extended());
}

// Handlers of others, connected later, see none of them.
TEST_F(ManagerCrossing, CrossingsStopAtThePanel) {
    panel.show();
    int seen = 0;
    for (const char* signal : {"enter-notify-event", "leave-notify-event"})
        g_signal_connect_swapped(test::find_name(test::panel(), "manager-wrapper-event_box"), signal,
                                 G_CALLBACK(+[](int* count) -> gboolean { return ++*count < 0; }), &seen);
    test::move_pointer(zo_ui_screen_x() + 700, zo_ui_screen_y());
    EXPECT_TRUE(test::is_extended());
    test::move_pointer(zo_ui_screen_x() + 700, zo_ui_screen_y() + 400);
    EXPECT_TRUE(test::is_retracted());
    EXPECT_EQ(seen, 0);
}

TEST_F(ManagerCrossing, AToolbarThatComesAndGoesWhileThePanelIsHidden) {
    panel.show();
    const int before = height();
    panel.run(zo_window_manager_hide);
    GtkWidget* box = toolbar();
    panel.show();
    EXPECT_TRUE(test::turn_until([&] { return height() > before; }));
    EXPECT_TRUE(test::is_retracted());
    panel.run(zo_window_manager_hide);
    EXPECT_TRUE(zo_window_manager_remove_toolbar(panel, GTK_BOX(box)));
    panel.show();
    EXPECT_TRUE(test::turn_until([&] { return height() == before; }));
    EXPECT_TRUE(test::is_retracted());
    panel.run(zo_window_manager_extend);
    EXPECT_TRUE(test::is_extended());
    panel.run(zo_window_manager_retract);
    EXPECT_TRUE(test::is_retracted());
}

TEST_F(ManagerCrossing, AToolbarThatComesBeforeThePanelIsShown) {
    panel.open();
    toolbar();
    panel.show();
    EXPECT_GT(height(), 40);
    EXPECT_TRUE(test::is_retracted());
    test::move_pointer(zo_ui_screen_x() + 700, zo_ui_screen_y());
    EXPECT_TRUE(test::is_extended());
}

TEST_F(ManagerCrossing, AToolbarOfAHiddenPanelThatIsKept) {
    panel.keep_extended(true);
    panel.show();
    const int before = height();
    panel.run(zo_window_manager_hide);
    toolbar();
    panel.show();
    EXPECT_TRUE(test::turn_until([&] { return height() > before; }));
    EXPECT_TRUE(test::is_extended());
}

}  // namespace
