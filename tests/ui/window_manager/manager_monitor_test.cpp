// SPDX-License-Identifier: MIT
// A panel on a monitor that does not begin at 0, or has two device pixels for each logical one; which of
// them the argument says.
#include "ui/window_manager/panel.hpp"

#include <cstdlib>
#include <string>

namespace {

std::string monitor;

// Before the toolkit looks at the screen.
bool prepare_monitor(int* argc, char*** argv) {
    monitor = *argc > 1 ? (*argv)[1] : "";
    if (monitor == "scaled") setenv("GDK_SCALE", "2", 1);
    if (monitor == "moved" && std::system("xrandr --setmonitor moved 960/254x700/190+960+120 screen") != 0)
        return false;
    return test::prepare_ui(argc, argv);
}
const test::preparation monitor_ready{prepare_monitor};

TEST(ManagerMonitor, IsTheOneThatWasAskedFor) {
    const test::place screen{zo_ui_screen_x(), zo_ui_screen_y(), zo_ui_screen_width(), zo_ui_screen_height()};
    EXPECT_EQ(screen, monitor == "moved" ? (test::place{960, 120, 960, 700}) : (test::place{0, 0, 960, 540}));
}

TEST(ManagerMonitor, ThePanelSlidesAtItsTop) {
    const int scale = monitor == "scaled" ? 2 : 1;
    const auto point = [scale](int y) {
        test::move_pointer((zo_ui_screen_x() + 500) * scale, (zo_ui_screen_y() + y) * scale);
        test::settle_desktop();
    };
    const test::scoped_panel panel;
    for (int round = 0; round < 2; ++round) {
        point(300);
        panel.open();
        GtkWidget* right = gtk_label_new("right");
        EXPECT_TRUE(zo_window_manager_add_widget_right(panel, right));
        panel.show();
        EXPECT_TRUE(test::is_retracted()) << test::place_of(test::panel());
        EXPECT_EQ(test::place_of(test::panel()).width, zo_ui_screen_width());
        point(0);
        EXPECT_TRUE(test::is_extended()) << test::place_of(test::panel());
        point(5);
        EXPECT_TRUE(test::is_extended());
        point(300);
        EXPECT_TRUE(test::is_retracted()) << test::place_of(test::panel());
        panel.close();
    }
}

TEST(ManagerMonitor, TakesWidgetsAndToolbars) {
    const auto block = [](int width, int height) {
        GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
        gtk_widget_set_size_request(box, width, height);
        gtk_widget_show(box);
        return box;
    };
    const test::scoped_panel panel;
    panel.show();
    const test::place before = test::place_of(test::panel());
    GtkWidget* left = block(60, 10);
    EXPECT_TRUE(zo_window_manager_add_widget_left(panel, left));
    EXPECT_TRUE(zo_window_manager_add_widget_right(panel, block(90, 10)));
    GtkWidget* toolbar = block(10, 10);
    gtk_container_add(GTK_CONTAINER(toolbar), block(10, 36));
    EXPECT_TRUE(zo_window_manager_add_toolbar(panel, GTK_BOX(toolbar)));
    EXPECT_TRUE(test::turn_until([&] { return gtk_widget_get_allocated_height(toolbar) >= 36; }));
    EXPECT_TRUE(test::turn_until([] { return test::place_of(test::panel()).width == zo_ui_screen_width(); }))
        << test::place_of(test::panel());
    EXPECT_TRUE(test::is_retracted()) << test::place_of(test::panel());
    EXPECT_GT(test::place_of(test::panel()).height, before.height);
    EXPECT_TRUE(
        test::turn_until([&] { return gtk_widget_get_allocated_width(toolbar) == zo_ui_screen_width(); }));
    EXPECT_TRUE(zo_window_manager_remove_widget_left(panel, left));
    EXPECT_TRUE(zo_window_manager_remove_toolbar(panel, GTK_BOX(toolbar)));
    EXPECT_TRUE(test::turn_until([&] { return test::place_of(test::panel()) == before; }));
    EXPECT_TRUE(test::is_retracted());
}

TEST(ManagerMonitor, TheRowWorks) {
    const test::scoped_panel panel;
    panel.keep_extended(true);
    panel.show();
    EXPECT_TRUE(test::is_extended());
    test::joined_window a(panel, "a");
    a.show();
    test::settle_desktop();
    test::click(test::task_button("a"));
    EXPECT_TRUE(test::turn_until([&] { return !test::state_of(a.get()).visible; }));
    test::click(test::part("lock-locked"));
    EXPECT_TRUE(test::turn_until([&] { return !zo_window_manager_get_keep_extended(panel); }));
}

}  // namespace
