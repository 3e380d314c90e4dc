// SPDX-License-Identifier: MIT
// The end of the service while popups are up: widgets are forgotten, not destroyed. For good, so it is the
// only test of its program.
#include "ui/notification/popup.hpp"

namespace {

TEST(NotificationServiceEnd, ForgetsThePopups) {
    const zo_notification_ptr notification = zo_notification_new();
    int closed = 0;
    zo_notification_on_close(notification, [&](const zo_notification_ptr&) { ++closed; });
    zo_notification_set_title(notification, "t");
    zo_notification_set_timeout(notification, 3'600'000);
    zo_notification_open_show(notification);
    test::run_tasks();
    ASSERT_EQ(test::toplevels("zo-notification").size(), 1U);
    GtkWidget* popup = test::toplevels("zo-notification")[0];
    zo_notification_destroy(notification);
    zo_system_service_end();  // runs what is queued
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(test::state_of(notification), (test::state{false, false, true}));
    EXPECT_TRUE(GTK_IS_WINDOW(popup)) << "still there";
    EXPECT_FALSE(gtk_widget_get_visible(popup));
    // Its buttons hold the notification; nothing of it is called any more.
    gtk_button_clicked(GTK_BUTTON(test::find_class(popup, "title-close")));
    EXPECT_EQ(closed, 1);
    gtk_widget_destroy(popup);
}

}  // namespace
