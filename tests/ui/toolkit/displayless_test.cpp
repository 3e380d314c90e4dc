// SPDX-License-Identifier: MIT
// Without any display: nothing crashes, nothing is read, and windows refuse to open.
#include "support/loop.hpp"
#include "support/output.hpp"

#include <gtest/gtest.h>
#include <zo_ui/zo_ui.hpp>

namespace {

TEST(Displayless, InitLeavesZeros) {
    ASSERT_EQ(gdk_display_get_default(), nullptr);
    zo_ui_init();
    EXPECT_EQ(zo_ui_screen_width(), 0);
    EXPECT_EQ(zo_ui_workarea_height(), 0);
}

TEST(Displayless, AWindowReportsAndStaysClosed) {
    const zo_window_ptr window = zo_window_new("w");
    zo_window_open(window);
    zo_window_show(window);
    test::captured_output output;
    test::run_tasks();
    EXPECT_NE(output.text().find("assertion failed: display != nullptr"), std::string::npos);
    bool opened = true;
    zo_window_is_opened(window, &opened);
    EXPECT_FALSE(opened);
    zo_window_destroy(window);
}

TEST(Displayless, APanelReportsAndStaysClosed) {
    const zo_window_manager_ptr manager = zo_window_manager_new("m");
    zo_window_manager_open(manager);
    test::captured_output output;
    test::run_tasks();
    EXPECT_NE(output.text().find("assertion failed: display != nullptr"), std::string::npos);
    bool opened = true;
    zo_window_manager_is_opened(manager, &opened);
    EXPECT_FALSE(opened);
    zo_window_manager_destroy(manager);
}

}  // namespace
