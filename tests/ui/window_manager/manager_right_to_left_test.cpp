// SPDX-License-Identifier: MIT
// The panel where text runs from right to left.
#include "ui/window_manager/panel.hpp"

namespace {

bool prepare_right_to_left(int* argc, char*** argv) {
    if (!test::prepare_ui(argc, argv)) return false;
    gtk_widget_set_default_direction(GTK_TEXT_DIR_RTL);
    return true;
}
const test::preparation right_to_left{prepare_right_to_left};

int x_in_panel(GtkWidget* widget) {
    int x = 0;
    gtk_widget_translate_coordinates(widget, test::panel(), 0, 0, &x, nullptr);
    return x;
}

GtkWidget* block(int width) {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    gtk_widget_set_size_request(box, width, 10);
    gtk_widget_show(box);
    return box;
}

TEST(ManagerRightToLeft, IsMirrored) {
    const test::scoped_panel panel;
    panel.keep_extended(true);
    panel.show();
    test::joined_window a(panel, "a");
    test::joined_window b(panel, "b");
    a.show();
    b.show();
    ASSERT_TRUE(test::turn_until(
        [] { return x_in_panel(test::close_button("b")) > 0 && x_in_panel(test::task_button("a")) > 0; }));
    test::settle_desktop();
    EXPECT_GT(x_in_panel(test::task_button("b")), x_in_panel(test::close_button("b")));
    EXPECT_GT(x_in_panel(test::close_button("b")), x_in_panel(test::task_button("a")));
    EXPECT_GT(x_in_panel(test::part("manager-taskbox-left")),
              x_in_panel(test::part("manager-taskbox-scroll")));
    EXPECT_EQ(test::place_of(test::panel()).width, zo_ui_screen_width());
    panel.keep_extended(false);
    test::click(test::task_button("a"));
    EXPECT_TRUE(test::turn_until([&] { return !test::state_of(a.get()).visible; }));
    test::move_pointer(zo_ui_screen_x() + 500, zo_ui_screen_y() + 500);
    EXPECT_TRUE(test::is_retracted());
}

// Whatever stands at its ends, and whenever it came there.
TEST(ManagerRightToLeft, StaysAsWideAsTheScreen) {
    const test::scoped_panel panel;
    panel.keep_extended(true);
    panel.show();
    // Once the widget has been laid out.
    const auto fits_with = [](GtkWidget* widget) {
        EXPECT_TRUE(test::turn_until([&] { return gtk_widget_get_allocated_width(widget) > 1; }));
        test::settle_desktop();
        return test::turn_until([] { return test::place_of(test::panel()).width == zo_ui_screen_width(); },
                                std::chrono::seconds(2));
    };
    GtkWidget* left = block(60);
    GtkWidget* right = block(90);
    EXPECT_TRUE(zo_window_manager_add_widget_left(panel, left));
    EXPECT_TRUE(fits_with(left)) << test::place_of(test::panel());
    EXPECT_TRUE(zo_window_manager_add_widget_right(panel, right));
    EXPECT_TRUE(fits_with(right)) << test::place_of(test::panel());
    EXPECT_GT(x_in_panel(left), x_in_panel(right));
    EXPECT_GT(x_in_panel(left), x_in_panel(test::part("lock-locked")));
    EXPECT_TRUE(zo_window_manager_remove_widget_left(panel, left));
    GtkWidget* toolbar = block(10);
    EXPECT_TRUE(zo_window_manager_add_toolbar(panel, GTK_BOX(toolbar)));
    EXPECT_TRUE(fits_with(toolbar)) << test::place_of(test::panel());
    EXPECT_TRUE(test::is_extended());
    EXPECT_TRUE(
        test::turn_until([&] { return gtk_widget_get_allocated_width(toolbar) == zo_ui_screen_width(); }));
}

}  // namespace
