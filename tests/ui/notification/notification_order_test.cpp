// SPDX-License-Identifier: MIT
// What is true inside the callbacks, and the exact reports of flags that cannot be made.
#include "ui/notification/popup.hpp"
#include "ui/window_manager/panel.hpp"

#include <zo_ui/zo_notification/notification_p.hpp>

#include <memory>

namespace {

using access = zo::notification_access;
using test::state;

TEST(NotificationOrder, InsideTheCloseCallback) {
    const test::scoped_panel panel;
    panel.show();
    const long held_by_others = panel.get().use_count();
    const auto token = std::make_shared<int>(0);
    const test::scoped_notification notification;
    zo_notification_set_manager(notification, panel);
    zo_notification_add_action(notification, "a", "A", [token](const std::string&) {});
    int called = 0;
    zo_notification_on_close(notification, [&, token](const zo_notification_ptr& self) {
        ++called;
        EXPECT_EQ(test::state_of(self), (state{false, false, false})) << "destroyed comes last";
        EXPECT_FALSE(notification.popup());
        EXPECT_TRUE(test::container_of(panel).empty());
        EXPECT_EQ(panel.get().use_count(), held_by_others) << "the manager is let go of";
        EXPECT_TRUE(zo_notification_to_object(self)->is_reffed());
        EXPECT_EQ(token.use_count(), 3) << "what callables hold goes afterwards";
    });
    notification.show();
    notification.close();
    EXPECT_EQ(called, 1);
    EXPECT_EQ(token.use_count(), 1);
}

TEST(NotificationOrder, InsideAnAction) {
    const test::scoped_notification notification;
    int called = 0;
    zo_notification_add_action(notification, "a", "A", [&](const std::string&) {
        ++called;
        EXPECT_EQ(test::state_of(notification), (state{true, true, false}));
        EXPECT_TRUE(gtk_widget_get_visible(notification.popup()));
    });
    notification.show();
    gtk_button_clicked(GTK_BUTTON(notification.action("a")));
    EXPECT_EQ(called, 1);
    EXPECT_EQ(test::state_of(notification), (state{false, false, true})) << "at once";
}

// Its end waits for the link; until then there is nothing to hide or show.
TEST(NotificationOrder, APopupThatGoesInsideItsLink) {
    const test::scoped_notification notification("t", "<a href=\"zo-test:uri\">this</a>");
    int called = 0;
    zo_notification_on_activate_link_callback(
        notification, [&](const zo_notification_ptr& self, std::string&) {
            ++called;
            gtk_widget_destroy(notification.popup());
            self->_hide();
            self->_show();
            EXPECT_EQ(test::state_of(self), (state{true, false, false}));
            return true;
        });
    notification.show();
    gboolean handled = FALSE;
    g_signal_emit_by_name(notification.part("content-text"), "activate-link", "zo-test:uri", &handled);
    EXPECT_TRUE(handled);
    EXPECT_EQ(called, 1);
    test::run_tasks();
    EXPECT_EQ(test::state_of(notification), (state{false, false, true}));
}

TEST(NotificationOrder, OneThatWasNeverOpenedLetsGoOfItsManager) {
    const test::scoped_panel panel;
    const long before = panel.get().use_count();
    const test::scoped_notification notification;
    zo_notification_set_manager(notification, panel);
    notification.close();
    EXPECT_EQ(panel.get().use_count(), before);
    EXPECT_TRUE(test::container_of(panel).empty());
}

// The words of the popup, not those that were set since.
TEST(NotificationOrder, WhatIsAnnouncedIsWhatIsShown) {
    const guint signal = g_signal_lookup("announcement", ATK_TYPE_OBJECT);
    if (!signal) return;  // older toolkits have none
    std::string announced;
    const auto hear = [](GSignalInvocationHint*, guint, const GValue* values, gpointer data) -> gboolean {
        *static_cast<std::string*>(data) = g_value_get_string(values + 1);
        return TRUE;
    };
    const gulong hook = g_signal_add_emission_hook(signal, 0, hear, &announced, nullptr);
    const test::scoped_notification notification("caf\xe9", "content");
    notification.get()->_open();
    zo_notification_set_title(notification, "later");
    notification.get()->_show();
    g_signal_remove_emission_hook(signal, hook);
    EXPECT_EQ(announced, "caf\xef\xbf\xbd\ncontent");
}

}  // namespace
