// SPDX-License-Identifier: MIT
#include "ui/window/window_tables.hpp"

#include <random>

namespace {

constexpr std::size_t count = 1000;

std::size_t toplevels() { return test::toplevels("zo-window").size(); }

TEST(ManyWindows, InMixedOrderLeaveNothingBehind) {
    std::mt19937 random(7);
    std::vector<zo_window_ptr> windows;
    // Few ids: GLib keeps every widget name for good.
    for (std::size_t i = 0; i < count; ++i) windows.push_back(zo_window_new("w" + std::to_string(i % 10)));
    EXPECT_EQ(zo_object_ref_count("[zo_window]"), static_cast<long>(count));
    for (int round = 0; round < 2; ++round) {
        std::shuffle(windows.begin(), windows.end(), random);
        for (std::size_t i = 0; i < windows.size(); ++i) {
            zo_window_open(windows[i]);
            if (i % 5 == 0) zo_window_show(windows[i]);
            if (i % 10 == 0) zo_window_hide(windows[i]);
            if (random() % 2) zo_window_close(windows[i]);
        }
        if (round % 2) test::run_tasks();
    }
    std::size_t opened = 0;
    test::run_tasks();
    for (const zo_window_ptr& window : windows) opened += test::state_of(window).opened;
    EXPECT_EQ(toplevels(), opened);
    EXPECT_GT(opened, 0U);
    std::shuffle(windows.begin(), windows.end(), random);
    for (std::size_t i = 0; i < windows.size(); ++i) {
        if (i % 3 == 0)
            zo_window_destroy(windows[i], "many", static_cast<int>(i));
        else
            zo_window_destroy(windows[i]);
        if (i % 2) windows[i].reset();
    }
    test::run_tasks();
    EXPECT_EQ(zo_object_ref_count("[zo_window]"), static_cast<long>(count / 2));
    windows.clear();
    EXPECT_EQ(zo_object_ref_count("[zo_window]"), 0);
    EXPECT_EQ(toplevels(), 0U);
}

// One window, many lives: the widgets of each are gone before the next.
TEST(ManyWindows, OneWindowWithManyLives) {
    test::scoped_window window;
    for (int life = 0; life < 500; ++life) {
        zo_window_open(window);
        if (life % 10 == 0) zo_window_show(window);
        zo_window_close(window);
    }
    test::run_tasks();
    EXPECT_EQ(zo_window_instance_id(window), 500);
    EXPECT_EQ(toplevels(), 0U);
    EXPECT_EQ(window.get().use_count(), 2);
}

}  // namespace
