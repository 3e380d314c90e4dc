// SPDX-License-Identifier: MIT
// What happens to one window asks nothing of the others, however many they are.
#include "ui/window/lock_witness.hpp"
#include "ui/window_manager/panel.hpp"

#include <memory>

namespace {

std::size_t locks_of(const std::function<void()>& action) {
    test::taken_locks.clear();
    action();
    return test::taken_locks.size();
}

// The locks taken for each step in the life of one window among others.
std::vector<std::size_t> costs_among(int others) {
    const test::scoped_panel panel;
    panel.open();
    std::vector<std::unique_ptr<test::joined_window>> windows;
    for (int i = 0; i < others; ++i) {
        windows.push_back(std::make_unique<test::joined_window>(panel, "other"));
        windows.back()->open();
    }
    test::scoped_window one("one");
    std::vector<std::size_t> costs;
    costs.push_back(locks_of([&] { panel.join(one); }));
    for (const auto operation : {zo_window_open, zo_window_show, zo_window_hide, zo_window_close})
        costs.push_back(locks_of([&] {
            EXPECT_TRUE(operation(one));
            test::run_tasks();
        }));
    costs.push_back(locks_of([&] {
        zo_window_set_title(one, "retitled");
        zo_window_set_window_manager(one, {});
        test::run_tasks();
    }));
    return costs;
}

TEST(ManagerCost, DoesNotGrowWithTheOthers) { EXPECT_EQ(costs_among(2), costs_among(60)); }

// Dimming one button and giving it another text of the same width moves none.
TEST(ManagerCost, LeavesTheOtherButtonsInPlace) {
    const test::scoped_panel panel;
    panel.keep_extended(true);
    panel.show();
    test::joined_window a(panel, "a");
    test::joined_window b(panel, "b");
    a.show();
    b.show();
    const auto with_long_title = [&](char letter) {
        zo_window_set_title(b, std::string(200, letter));
        test::run_tasks();
        EXPECT_TRUE(
            test::turn_until([] { return gtk_widget_get_allocated_width(test::task_button("b")) > 1; }));
        test::settle_desktop();
    };
    with_long_title('m');
    test::draw_again(test::panel());
    test::middle_of(test::task_button("a"));
    GtkAllocation before{};
    gtk_widget_get_allocation(test::task_button("a"), &before);
    int laid_out = 0;
    g_signal_connect_swapped(test::task_button("a"), "size-allocate",
                             G_CALLBACK(+[](int* count) { ++*count; }), &laid_out);
    with_long_title('w');
    b.run(zo_window_hide);
    test::draw_again(test::panel());
    GtkAllocation after{};
    gtk_widget_get_allocation(test::task_button("a"), &after);
    EXPECT_EQ(after.x, before.x);
    EXPECT_EQ(laid_out, 0);
}

}  // namespace
