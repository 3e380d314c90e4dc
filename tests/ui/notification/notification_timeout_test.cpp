// SPDX-License-Identifier: MIT
// The timer follows showing and hiding. Reaches inside: what it shows is not to be seen from outside without
// measuring time.
#include "ui/notification/popup.hpp"
#include "ui/window_manager/panel.hpp"

#include <zo_ui/zo_notification/notification_p.hpp>

namespace {

using access = zo::notification_access;

TEST(NotificationTimeout, RunsOnlyWhileItIsShownAndAnewEachTime) {
    const test::scoped_panel panel;
    panel.show();
    const test::scoped_notification notification;
    zo_notification_set_manager(notification, panel);
    zo_notification_set_timeout(notification, 3'600'000);
    _zo_notification& object = *notification.get();
    const std::time_t begin = std::time(nullptr);
    notification.show();
    const unsigned long first = access::timeout_id(object);
    EXPECT_NE(first, 0U);
    EXPECT_GE(access::shown_at(object), begin);
    access::shown_at(object) -= 90;
    panel.run(zo_window_manager_hide);
    EXPECT_EQ(access::timeout_id(object), 0U);
    EXPECT_GE(access::shown_for(object), 90);
    // The timeout of the next show, read then: short enough to see it run out.
    zo_notification_set_timeout(notification, 20);
    panel.show();
    EXPECT_TRUE(test::turn_until([&] { return test::state_of(notification).destroyed; }));
    EXPECT_EQ(access::timeout_id(object), 0U);
}

TEST(NotificationTimeout, ClosingCancelsIt) {
    const test::scoped_notification notification;
    zo_notification_set_timeout(notification, 3'600'000);
    notification.show();
    EXPECT_NE(access::timeout_id(*notification.get()), 0U);
    notification.close();
    EXPECT_EQ(access::timeout_id(*notification.get()), 0U);
}

TEST(NotificationTimeout, TheManagerIsLetGoOfAtTheEnd) {
    const zo_window_manager_ptr manager = zo_window_manager_new("");
    const test::scoped_notification notification;
    zo_notification_set_manager(notification, manager);
    EXPECT_EQ(access::manager(*notification.get()), manager);
    const long held = manager.use_count();
    notification.close();
    EXPECT_FALSE(access::manager(*notification.get()));
    EXPECT_EQ(manager.use_count(), held - 1);
    zo_window_manager_destroy(manager);
    test::run_tasks();
}

TEST(NotificationTimeout, SettingAManagerLetsGoOfTheOneBefore) {
    const zo_window_manager_ptr manager = zo_window_manager_new("");
    const test::scoped_notification notification;
    const long free = manager.use_count();
    zo_notification_set_manager(notification, manager);
    EXPECT_EQ(manager.use_count(), free + 1);
    zo_notification_set_manager(notification, {});
    EXPECT_EQ(manager.use_count(), free);
    zo_window_manager_destroy(manager);
    test::run_tasks();
}

}  // namespace
