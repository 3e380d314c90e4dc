// SPDX-License-Identifier: MIT
// A window that is hidden and shown again is where it was.
#include "ui/window/halted_manager.hpp"

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

// The desktop moves a window in its own time: the last place asked for counts, though it is not there yet.
TEST(WindowPlace, AMoveInTheTurnOfTheHidingCounts) {
    test::scoped_window window;
    GtkWidget* toplevel = window.show();
    test::settle_desktop();
    for (const auto& [x, y] : {std::pair(330, 250), std::pair(41, 52), std::pair(500, 90)}) {
        zo_window_move(window, 7, 9);
        zo_window_move(window, x, y);
        zo_window_hide(window);
        zo_window_show(window);
        test::run_tasks();
        test::settle_desktop();
        EXPECT_TRUE(test::turn_until([&] { return place_of(toplevel) == std::pair(x, y); }))
            << place_of(toplevel).first << "," << place_of(toplevel).second;
        hide_and_show(window, toplevel);
        EXPECT_TRUE(test::turn_until([&] { return place_of(toplevel) == std::pair(x, y); }));
    }
}

// After an earlier move GTK answers that one's place, until the window manager has done the later one.
TEST(WindowPlace, AMoveCountsThoughTheWindowManagerIsSlow) {
    if (test::session_wm() == "none") return;
    test::scoped_window window;
    GtkWidget* toplevel = window.show();
    test::settle_desktop();
    zo_window_move(window, 330, 250);
    ASSERT_TRUE(test::turn_until([&] { return place_of(toplevel) == std::pair(330, 250); }));
    test::settle_desktop();
    {
        const test::halted_manager slow;
        zo_window_move(window, 41, 52);
        zo_window_hide(window);
        zo_window_show(window);
        test::run_tasks();
    }
    test::settle_desktop();
    EXPECT_TRUE(test::turn_until([&] { return place_of(toplevel) == std::pair(41, 52); }))
        << place_of(toplevel).first << "," << place_of(toplevel).second;
}

// It hears of everything at once, and is not waited for: what it loses is asked for again.
TEST(WindowPlace, ComesBackThoughTheWindowManagerIsSlow) {
    if (test::session_wm() == "none") return;
    test::scoped_window window;
    GtkWidget* toplevel = window.show();
    test::settle_desktop();
    for (int round = 0; round < 5; ++round) {
        {
            const test::halted_manager slow;
            for (int pairs = 0; pairs < 2; ++pairs) {
                zo_window_hide(window);
                zo_window_show(window);
            }
            test::run_tasks();
        }
        test::settle_desktop();
        const auto is_viewable = [&] {
            const std::string facts = test::run_command({"xwininfo", "-id", test::x_window(toplevel)});
            return facts.find("IsViewable") != std::string::npos;
        };
        ASSERT_TRUE(test::turn_until(is_viewable, std::chrono::seconds(5))) << "round " << round;
        for (const char* hint : {"STATE_ABOVE", "STATE_SKIP_TASKBAR", "STATE_SKIP_PAGER"})
            EXPECT_TRUE(test::x_property_becomes(toplevel, "_NET_WM_STATE", hint)) << hint;
    }
}

// Where somebody else moved it since is where it comes back.
TEST(WindowPlace, AnOlderMoveDoesNotCount) {
    test::scoped_window window;
    GtkWidget* toplevel = window.show();
    test::settle_desktop();
    zo_window_move(window, 330, 250);
    ASSERT_TRUE(test::turn_until([&] { return place_of(toplevel) == std::pair(330, 250); }));
    test::settle_desktop();
    gtk_window_move(GTK_WINDOW(toplevel), 60, 70);
    ASSERT_TRUE(test::turn_until([&] { return place_of(toplevel) == std::pair(60, 70); }));
    test::settle_desktop();
    hide_and_show(window, toplevel);
    EXPECT_TRUE(test::turn_until([&] { return place_of(toplevel) == std::pair(60, 70); }));
}

// A new tree knows nothing of the old one's place.
TEST(WindowPlace, AMoveBeforeTheClosingIsForgotten) {
    test::scoped_window window;
    window.show();
    test::settle_desktop();
    zo_window_move(window, 3, 4);
    zo_window_close(window);
    test::run_tasks();
    GtkWidget* toplevel = window.open();
    zo_window_show(window);
    zo_window_hide(window);
    zo_window_show(window);
    test::run_tasks();
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(toplevel); }));
    test::settle_desktop();
    EXPECT_NE(place_of(toplevel), std::pair(3, 4));
}

}  // namespace
