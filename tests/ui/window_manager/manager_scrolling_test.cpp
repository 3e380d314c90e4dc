// SPDX-License-Identifier: MIT
// A row that is wider than its place, in the direction of text that the argument says.
#include "ui/window_manager/panel.hpp"

namespace {

bool prepare_direction(int* argc, char*** argv) {
    const std::string direction = *argc > 1 ? (*argv)[1] : "";
    if (!test::prepare_ui(argc, argv)) return false;
    gtk_widget_set_default_direction(direction == "right_to_left" ? GTK_TEXT_DIR_RTL : GTK_TEXT_DIR_LTR);
    return true;
}
const test::preparation direction_ready{prepare_direction};

int x_in_panel(GtkWidget* widget) {
    int x = 0;
    gtk_widget_translate_coordinates(widget, test::panel(), 0, 0, &x, nullptr);
    return x;
}

TEST(ManagerScrolling, ANewButtonIsScrolledIntoView) {
    const test::scoped_panel panel;
    panel.keep_extended(true);
    panel.show();
    std::vector<std::unique_ptr<test::joined_window>> windows;
    auto* scroll = GTK_SCROLLED_WINDOW(test::part("manager-taskbox-scroll"));
    GtkAdjustment* row = gtk_scrolled_window_get_hadjustment(scroll);
    for (int i = 0; gtk_adjustment_get_upper(row) < 2 * gtk_adjustment_get_page_size(row); ++i) {
        ASSERT_LT(i, 200);
        windows.push_back(std::make_unique<test::joined_window>(panel, "window " + std::to_string(i)));
        windows.back()->open();
        test::settle_desktop();
    }
    for (const double value : {0.0, gtk_adjustment_get_upper(row)}) {
        gtk_adjustment_set_value(row, value);
        windows.push_back(std::make_unique<test::joined_window>(panel, "newest"));
        windows.back()->open();
        EXPECT_TRUE(test::turn_until(
            [&] {
                const int x = x_in_panel(test::task_button("newest")) - x_in_panel(GTK_WIDGET(scroll));
                return x >= 0 && x + gtk_widget_get_allocated_width(test::task_button("newest")) <=
                                     gtk_widget_get_allocated_width(GTK_WIDGET(scroll));
            },
            std::chrono::seconds(3)));
        zo_window_set_id(windows.back()->get(), "older");
        windows.back()->run(zo_window_close);
    }
}

}  // namespace
