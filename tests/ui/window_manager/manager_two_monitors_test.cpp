// SPDX-License-Identifier: MIT
// A panel on a desktop of two monitors: it belongs to the first one, wherever that stands. The argument says
// where the second one is: beside, before or above it.
#include "ui/window_manager/panel.hpp"
#include "ui/window_manager/two_monitors.hpp"

namespace {

bool prepare_monitors(int* argc, char*** argv) {
    return test::arrange_monitors(*argc > 1 ? (*argv)[1] : "") && test::prepare_ui(argc, argv);
}
const test::preparation monitors_ready{prepare_monitors};

test::place geometry_of(int monitor) {
    GdkRectangle r{};
    gdk_monitor_get_geometry(gdk_display_get_monitor(gdk_display_get_default(), monitor), &r);
    return {r.x, r.y, r.width, r.height};
}

class ManagerTwoMonitors : public testing::Test {
  protected:
    ManagerTwoMonitors() { away(); }

    // Points of the panel's monitor and of the other one.
    static void touch(int x, int y) { at(geometry_of(0), x, y); }
    static void touch_other(int x, int y) { at(geometry_of(1), x, y); }
    static void away() { touch(500, 400); }

    test::scoped_panel panel;

  private:
    static void at(const test::place& monitor, int x, int y) {
        test::move_pointer(monitor.x + x, monitor.y + y);
        test::settle_desktop();
    }
};

TEST_F(ManagerTwoMonitors, TheFirstOneIsTheScreen) {
    ASSERT_EQ(gdk_display_get_n_monitors(gdk_display_get_default()), 2);
    ASSERT_NE(geometry_of(0), geometry_of(1));
    EXPECT_EQ((test::place{zo_ui_screen_x(), zo_ui_screen_y(), zo_ui_screen_width(), zo_ui_screen_height()}),
              geometry_of(0));
    GdkRectangle area{};
    gdk_monitor_get_workarea(gdk_display_get_monitor(gdk_display_get_default(), 0), &area);
    EXPECT_EQ((test::place{zo_ui_workarea_x(), zo_ui_workarea_y(), zo_ui_workarea_width(),
                           zo_ui_workarea_height()}),
              (test::place{area.x, area.y, area.width, area.height}));
}

TEST_F(ManagerTwoMonitors, ThePanelIsAsWideAsItsMonitor) {
    panel.show();
    EXPECT_TRUE(test::is_retracted()) << test::place_of(test::panel());
    EXPECT_EQ(test::place_of(test::panel()).width, geometry_of(0).width);
    panel.run(zo_window_manager_extend);
    EXPECT_TRUE(test::is_extended()) << test::place_of(test::panel());
}

TEST_F(ManagerTwoMonitors, OnlyItsOwnEdgeBringsItOut) {
    panel.show();
    touch_other(500, 0);
    EXPECT_TRUE(test::is_retracted());
    touch_other(500, 400);
    EXPECT_TRUE(test::is_retracted());
    touch(500, 0);
    EXPECT_TRUE(test::is_extended());
    away();
    EXPECT_TRUE(test::is_retracted());
}

// From the first row sideways or upwards the pointer comes to the other monitor above the panel's last row;
// from below the panel it has left before.
TEST_F(ManagerTwoMonitors, LeavingToTheOtherMonitorKeepsItOut) {
    panel.show();
    const test::place mine = geometry_of(0);
    const test::place other = geometry_of(1);
    touch(other.x < mine.x ? 1 : mine.width - 2, 0);
    EXPECT_TRUE(test::is_extended());
    if (other.y < mine.y)
        touch_other(500, other.height - 2);
    else
        touch_other(other.x < mine.x ? other.width - 2 : 1, 0);
    EXPECT_TRUE(test::is_extended()) << test::place_of(test::panel());
    touch(500, 2);
    away();
    EXPECT_TRUE(test::is_retracted());
}

// The geometry is that of the start; the panel stays where it is and goes on working.
TEST_F(ManagerTwoMonitors, TheOtherOneIsSwitchedOffAndOnAgain) {
    panel.show();
    panel.run(zo_window_manager_extend);
    const test::place before = test::place_of(test::panel());
    for (const char* command : {"xrandr --output DUMMY1 --off; xrandr",
                                "xrandr --output DUMMY1 --mode 1024x768 --pos 0x0; xrandr"}) {
        test::run_command({"sh", "-c", command});
        test::settle_desktop();
        EXPECT_EQ(test::place_of(test::panel()), before);
        EXPECT_EQ(zo_ui_screen_x(), before.x);
        EXPECT_EQ(zo_ui_screen_width(), before.width);
        panel.run(zo_window_manager_retract);
        EXPECT_TRUE(test::is_retracted());
        panel.run(zo_window_manager_extend);
        EXPECT_TRUE(test::is_extended());
    }
}

}  // namespace
