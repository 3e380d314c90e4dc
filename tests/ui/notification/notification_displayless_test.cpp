// SPDX-License-Identifier: MIT
// Without a display a notification stays closed, says so, and ends like every other one.
#include "support/loop.hpp"
#include "support/output.hpp"

#include <gtest/gtest.h>
#include <zo_ui/zo_ui.hpp>

namespace {

TEST(NotificationDisplayless, IsReportedAndStaysClosed) {
    const zo_notification_ptr notification = zo_notification_new();
    int closed = 0;
    zo_notification_on_close(notification, [&](const zo_notification_ptr&) { ++closed; });
    const test::captured_output output;
    EXPECT_TRUE(zo_notification_open_show(notification));
    test::run_tasks();
    ASSERT_EQ(output.lines().size(), 1U) << output.text();
    EXPECT_NE(output.text().find("display != nullptr - notification-open - src/zo_ui/zo_notification:204"),
              std::string::npos)
        << output.text();
    EXPECT_TRUE(zo_notification_destroy(notification));
    test::run_tasks();
    EXPECT_EQ(closed, 1);
}

}  // namespace
