// SPDX-License-Identifier: MIT
#include "support/desktop.hpp"
#include "support/ui.hpp"

#include <cstdlib>

namespace {

std::vector<int> cached() {
    return {zo_ui_screen_x(),   zo_ui_screen_y(),   zo_ui_screen_width(),   zo_ui_screen_height(),
            zo_ui_workarea_x(), zo_ui_workarea_y(), zo_ui_workarea_width(), zo_ui_workarea_height()};
}

std::vector<int> read_now() {
    GdkMonitor* monitor = gdk_display_get_monitor(gdk_display_get_default(), 0);
    GdkRectangle screen{};
    GdkRectangle work{};
    gdk_monitor_get_geometry(monitor, &screen);
    gdk_monitor_get_workarea(monitor, &work);
    return {screen.x, screen.y, screen.width, screen.height, work.x, work.y, work.width, work.height};
}

// The geometry is GTK's: in its logical pixels, not in the device's.
int scale() {
    const char* text = std::getenv("GDK_SCALE");
    return text ? std::atoi(text) : 1;
}

// A mode of this name and these timings, in the order of xrandr's own list, on the private X server's one
// output.
void set_mode(const std::string& name, const std::vector<std::string>& timings) {
    std::vector<std::string> make{"xrandr", "--newmode", name};
    make.insert(make.end(), timings.begin(), timings.end());
    test::run_command(make);
    test::run_command({"xrandr", "--addmode", "screen", name});
    test::run_command({"xrandr", "--output", "screen", "--mode", name});
}

TEST(Screen, IsThatOfTheFirstMonitor) {
    EXPECT_EQ(cached(), read_now());
    EXPECT_EQ(zo_ui_screen_width(), 1920 / scale());
    EXPECT_EQ(zo_ui_screen_height(), 1080 / scale());
}

TEST(Screen, KeepsTheValuesOfTheStart) {
    const std::vector<int> before = cached();
    set_mode("small", {"60", "1024", "1048", "1184", "1344", "768", "771", "777", "806"});
    EXPECT_TRUE(test::turn_until([&] { return read_now()[2] == 1024 / scale(); }));
    EXPECT_EQ(cached(), before);
    test::run_command({"xrandr", "--output", "screen", "--mode", "1920x1080"});
    EXPECT_TRUE(
        test::turn_until([&] { return read_now()[2] == 1920 / scale() && read_now()[6] == 1920 / scale(); }));
    zo_ui_init();
    EXPECT_EQ(cached(), read_now());
}

// Events still reach widgets through the installed handler.
TEST(Screen, EventsGoOnToGtk) {
    GtkWidget* window = gtk_window_new(GTK_WINDOW_POPUP);
    GtkWidget* button = gtk_button_new_with_label("press me");
    gtk_container_add(GTK_CONTAINER(window), button);
    int clicks = 0;
    zo_ui_connect_button_click_signal(button, [&](GtkWidget*) { ++clicks; });
    gtk_window_move(GTK_WINDOW(window), 200, 200);
    gtk_widget_show_all(window);
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(window); }));
    test::click(button);
    EXPECT_TRUE(test::turn_until([&] { return clicks == 1; }));
    gtk_widget_destroy(window);
}

}  // namespace
