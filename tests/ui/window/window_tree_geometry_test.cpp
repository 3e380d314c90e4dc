// SPDX-License-Identifier: MIT
// What the desktop is told of the window's size and place.
#include "support/desktop.hpp"
#include "ui/window/tree_support.hpp"

namespace {

// The bound is the only one that is set: the minimum is what GTK takes from the content.
TEST(WindowGeometry, IsBoundedByTheWorkArea) {
    for (const bool resizable : {true, false}) {
        test::scoped_window window("w");
        zo_window_set_resizable(window, resizable);
        GtkWidget* toplevel = window.show();
        const std::string bound =
            std::to_string(zo_ui_workarea_width()) + " by " + std::to_string(zo_ui_workarea_height() - 120);
        const std::string hints = test::x_property(toplevel, "WM_NORMAL_HINTS");
        EXPECT_NE(hints.find("program specified maximum size: " + bound), std::string::npos) << hints;
        EXPECT_EQ(hints.find("size increment"), std::string::npos) << hints;
    }
}

TEST(WindowGeometry, ANewWindowIsCentred) {
    test::scoped_window window("w");
    GtkWidget* toplevel = window.open();
    zo_window_add_content_child(window, test::block(400, 300), true, true, 0, false);
    zo_window_show(window);
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(toplevel); }));
    test::settle_desktop();
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    gtk_window_get_position(GTK_WINDOW(toplevel), &x, &y);
    gtk_window_get_size(GTK_WINDOW(toplevel), &width, &height);
    EXPECT_NEAR(x + width / 2, zo_ui_workarea_x() + zo_ui_workarea_width() / 2, 1);
    EXPECT_NEAR(y + height / 2, zo_ui_workarea_y() + zo_ui_workarea_height() / 2, 1);
}

TEST(WindowGeometry, TheDesktopSeesADialog) {
    test::scoped_window window("w");
    GtkWidget* toplevel = window.show();
    EXPECT_NE(test::x_property(toplevel, "_NET_WM_WINDOW_TYPE").find("_NET_WM_WINDOW_TYPE_DIALOG"),
              std::string::npos);
}

}  // namespace
