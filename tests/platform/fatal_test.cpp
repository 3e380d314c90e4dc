// SPDX-License-Identifier: MIT
// Run without a display, with the module's sources built as with NDEBUG.
#include <gtest/gtest.h>
#include <zo_ui/platform/linux/pointer_p.hpp>

#ifndef NDEBUG
#error "to be built with NDEBUG"
#endif

namespace {

TEST(FatalDeathTest, AMissingDisplayIsFatalForThePointersPosition) {
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    int x = 0, y = 0;
    EXPECT_EXIT(
        GetCursorPos(&x, &y), testing::KilledBySignal(SIGABRT),
        "src/zo_ui/platform/linux:314: bool GetCursorPos\\(int\\*, int\\*\\): Assertion `display' failed\\.");
}

}  // namespace
