// SPDX-License-Identifier: MIT
#include "support/loop.hpp"

#include <gtest/gtest.h>
#include <zo_ui/platform/linux/pointer_p.hpp>

#include "platform/foreign_window.hpp"
#include "platform/x_client.hpp"

namespace {

TEST(Pointer, ThePositionIsTheRoots) {
    test::output_of("xdotool mousemove 123 45");
    int x = -1, y = -1;
    EXPECT_TRUE(GetCursorPos(&x, &y));
    EXPECT_EQ(x, 123);
    EXPECT_EQ(y, 45);
}

TEST(Pointer, OnlyWhatIsAskedForIsStored) {
    test::output_of("xdotool mousemove 67 89");
    int x = -1, y = -1;
    EXPECT_TRUE(GetCursorPos(nullptr, &y));
    EXPECT_EQ(y, 89);
    EXPECT_TRUE(GetCursorPos(&x, nullptr));
    EXPECT_EQ(x, 67);
    EXPECT_TRUE(GetCursorPos(nullptr, nullptr));
}

TEST(Pointer, AWindowUnderThePointerChangesNothing) {
    const test::foreign_window window({"title=under"});
    test::output_of("xdotool mousemove 100 110");
    int x = -1, y = -1;
    EXPECT_TRUE(GetCursorPos(&x, &y));
    EXPECT_EQ(x, 100);
    EXPECT_EQ(y, 110);
}

}  // namespace
