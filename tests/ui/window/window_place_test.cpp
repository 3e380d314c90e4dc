// SPDX-License-Identifier: MIT
// A window that is hidden and shown again is where it was.
#include "support/desktop.hpp"
#include "support/ui.hpp"

namespace {

std::pair<int, int> place_of(GtkWidget* toplevel) {
    std::pair<int, int> place;
    gdk_window_get_origin(gtk_widget_get_window(toplevel), &place.first, &place.second);
    return place;
}

void hide_and_show(const test::scoped_window& window, GtkWidget* toplevel) {
    zo_window_hide(window);
    test::run_tasks();
    test::settle_desktop();
    zo_window_show(window);
    test::run_tasks();
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(toplevel); }));
    test::settle_desktop();
}

TEST(WindowPlace, SurvivesHidingAndShowing) {
    test::scoped_window window;
    GtkWidget* toplevel = window.show();
    zo_window_move(window, 120, 140);
    const std::pair moved(120, 140);
    ASSERT_TRUE(test::turn_until([&] { return place_of(toplevel) == moved; }));
    for (int round = 0; round < 3; ++round) {
        hide_and_show(window, toplevel);
        EXPECT_TRUE(test::turn_until([&] { return place_of(toplevel) == moved; }));
    }
}

TEST(WindowPlace, AMoveWhileHiddenCounts) {
    test::scoped_window window;
    GtkWidget* toplevel = window.show();
    zo_window_hide(window);
    test::run_tasks();
    test::settle_desktop();
    zo_window_move(window, 310, 220);
    zo_window_show(window);
    test::run_tasks();
    EXPECT_TRUE(test::turn_until([&] { return place_of(toplevel) == std::pair(310, 220); }))
        << place_of(toplevel).first << "," << place_of(toplevel).second;
}

// Before it was on screen there is no place to come back to: the first one is the middle of the screen.
TEST(WindowPlace, OfAWindowHiddenBeforeItCameIsTheMiddle) {
    test::scoped_window window;
    GtkWidget* toplevel = window.open();
    zo_window_show(window);
    hide_and_show(window, toplevel);
    EXPECT_GT(place_of(toplevel).first, 0);
    EXPECT_GT(place_of(toplevel).second, 0);
}

}  // namespace
