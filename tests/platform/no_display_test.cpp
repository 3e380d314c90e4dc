// SPDX-License-Identifier: MIT
// Run without a display.
#include "support/output.hpp"

#include <gtest/gtest.h>
#include <zo_ui/platform/linux.hpp>
#include <zo_ui/platform/linux/search_p.hpp>

namespace {

TEST(NoDisplay, NoneIsOpened) { EXPECT_EQ(open_display(), nullptr); }

TEST(NoDisplay, NothingIsActive) {
    EXPECT_EQ(getActiveWindow(), 0U);
    unsigned long window = 99;
    int pid = 99;
    std::string title = "before", res_name = "before", res_class = "before";
    EXPECT_FALSE(getActiveWindowInfo(window, title, res_name, res_class, pid));
    EXPECT_EQ(window, 0U);
    EXPECT_EQ(pid, 0);
    EXPECT_EQ(title + res_name + res_class, "beforebeforebefore");
}

TEST(NoDisplay, NothingIsSteered) {
    EXPECT_FALSE(setActiveWindow(1234));
    EXPECT_FALSE(HideWindow(1234));
    EXPECT_EQ(find_window_by_class(open_display(), 0, "a", "B"), 0U);
}

TEST(NoDisplay, ThePrintOutSaysSo) {
    const test::captured_output output;
    testX11ActiveWindow();
    EXPECT_EQ(output.text(), "could not retrieve active window info\n");
}

}  // namespace
