// SPDX-License-Identifier: MIT
#include "support/desktop.hpp"
#include "support/ui.hpp"

namespace {

std::pair<int, int> place_of(GtkWidget* toplevel) {
    int x = 0;
    int y = 0;
    gdk_window_get_root_origin(gtk_widget_get_window(toplevel), &x, &y);
    return {x, y};
}

bool comes_to(GtkWidget* toplevel, int x, int y) {
    return test::turn_until([&] { return place_of(toplevel) == std::pair(x, y); });
}

TEST(WindowMove, MovesAShownWindow) {
    test::scoped_window window;
    GtkWidget* toplevel = window.show();
    test::settle_desktop();
    EXPECT_TRUE(zo_window_move(window, 210, 190));
    EXPECT_TRUE(comes_to(toplevel, 210, 190));
    EXPECT_TRUE(zo_window_move(window, 33, 44));
    EXPECT_TRUE(zo_window_move(window, 120, 77));
    EXPECT_TRUE(comes_to(toplevel, 120, 77));
}

TEST(WindowMove, IsPosted) {
    test::scoped_window window;
    GtkWidget* toplevel = window.open();
    zo_window_move(window, 91, 92);
    int x = 0;
    int y = 0;
    gtk_window_get_position(GTK_WINDOW(toplevel), &x, &y);
    EXPECT_NE(std::pair(x, y), std::pair(91, 92));
    test::run_tasks();
    gtk_window_get_position(GTK_WINDOW(toplevel), &x, &y);
    EXPECT_EQ(std::pair(x, y), std::pair(91, 92));
}

TEST(WindowMove, BeforeTheFirstShowSaysWhereItAppears) {
    test::scoped_window window;
    GtkWidget* toplevel = window.open();
    zo_window_move(window, 301, 202);
    window.show();
    EXPECT_TRUE(comes_to(toplevel, 301, 202));
}

TEST(WindowMove, OfAHiddenWindowIsKept) {
    test::scoped_window window;
    GtkWidget* toplevel = window.show();
    test::settle_desktop();
    zo_window_hide(window);
    test::run_tasks();
    test::settle_desktop();
    zo_window_move(window, 155, 166);
    window.show();
    EXPECT_TRUE(comes_to(toplevel, 155, 166));
}

TEST(WindowMove, DoesNothingUnlessOpened) {
    test::captured_output output;
    test::scoped_window window;
    EXPECT_TRUE(zo_window_move(window, 1, 2));
    test::run_tasks();
    window.open();
    zo_window_close(window);
    EXPECT_TRUE(zo_window_move(window, 3, 4));
    test::run_tasks();
    zo_window_destroy(window);
    EXPECT_TRUE(zo_window_move(window, 5, 6));
    test::run_tasks();
    EXPECT_EQ(output.text(), "");
}

// A tree that does not exist is not moved, whatever the flag says.
TEST(WindowMove, NeedsAToplevel) {
    test::scoped_window window;
    zo_window_set_bool_property(window, "window-opened", true);
    zo_window_move(window, 1, 2);
    test::run_tasks();
    zo_window_set_bool_property(window, "window-opened", false);
}

}  // namespace
