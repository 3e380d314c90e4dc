// SPDX-License-Identifier: MIT
// Menus that have nothing to do with the panel, on a screen that is wider and higher than the panel's
// monitor.
#include "ui/window_manager/menu.hpp"

#include <cstdlib>

namespace {

// Before the toolkit looks at the screen.
bool prepare_monitor(int* argc, char*** argv) {
    return std::system("xrandr --setmonitor moved 960/254x700/190+960+120 screen") == 0 &&
           test::prepare_ui(argc, argv);
}
const test::preparation monitor_ready{prepare_monitor};

// The menu of a window at this place goes while the pointer is below the panel.
void expect_left_alone(int x, int y) {
    test::move_pointer(zo_ui_screen_x() + 500, zo_ui_screen_y() + 500);
    const test::scoped_panel panel;
    panel.show();
    GtkWidget* window = gtk_window_new(GTK_WINDOW_POPUP);
    GtkWidget* button = test::menu_button();
    gtk_container_add(GTK_CONTAINER(window), button);
    gtk_window_move(GTK_WINDOW(window), x, y);
    gtk_widget_show_all(window);
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(window); }));
    panel.run(zo_window_manager_extend);
    EXPECT_TRUE(test::is_extended());
    test::use_menu(button, zo_ui_screen_y() + 500);
    EXPECT_TRUE(test::is_extended());
    gtk_widget_destroy(window);
}

TEST(ManagerForeignMenu, BesideThePanel) {
    ASSERT_EQ(zo_ui_screen_x(), 960);
    expect_left_alone(300, zo_ui_screen_y());
}

TEST(ManagerForeignMenu, AboveThePanel) {
    ASSERT_EQ(zo_ui_screen_y(), 120);
    expect_left_alone(zo_ui_screen_x() + 300, 20);
}

}  // namespace
