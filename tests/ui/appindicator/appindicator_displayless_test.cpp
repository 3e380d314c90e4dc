// SPDX-License-Identifier: MIT
// Without any display: nothing crashes, and the indicator is reported and not shown.
#include "support/loop.hpp"
#include "support/output.hpp"

#include <gtest/gtest.h>
#include <zo_ui/zo_ui.hpp>

namespace {

TEST(AppindicatorDisplayless, ReportsAndShowsNothing) {
    ASSERT_EQ(gdk_display_get_default(), nullptr);
    zo_appindicator_ptr indicator = zo_appindicator_new("dark", "Dark", "icon");
    zo_appindicator_add_action(indicator, "a", "A", nullptr);
    zo_appindicator_show(indicator);
    test::captured_output output;
    test::run_tasks();
    EXPECT_EQ(output.text(),
              "\x1b[1;31mZO-SYSTEM**ERROR**\x1b[0;0m: assertion failed: display != nullptr - dark - "
              "src/zo_ui/zo_appindicator:284\n");
    zo_appindicator_to_object(indicator)->destroy("test", 1);
    test::run_tasks();
    EXPECT_EQ(indicator.use_count(), 1);
}

}  // namespace
