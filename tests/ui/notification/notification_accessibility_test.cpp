// SPDX-License-Identifier: MIT
// Popups for those who do not see them.
#include "ui/notification/popup.hpp"

#include <cstdlib>

namespace {

std::string assist(std::vector<std::string> arguments) {
    const std::string script = std::string(std::getenv("ZO_SOURCE_DIR")) + "/tests/support/accessibility.py";
    arguments.insert(arguments.begin(), {"/usr/bin/python3", script, "zo-test"});
    return test::run_command(arguments);
}

// One test, since GTK's bridge to assistive programs complains when a new one asks after a window was
// destroyed.
TEST(NotificationAccessibility, APopupIsFoundReadAndPressed) {
    std::string pressed;
    const test::scoped_notification notification("Mail", "From <b>Ana</b>");
    zo_notification_add_action(notification, "read", "Read it", [&](std::string name) { pressed = name; });
    std::string announced;
    const auto hear = [](GSignalInvocationHint*, guint, const GValue* values, gpointer data) -> gboolean {
        *static_cast<std::string*>(data) = g_value_get_string(values + 1);
        return TRUE;
    };
    const guint signal = g_signal_lookup("announcement", ATK_TYPE_OBJECT);
    gulong hook = signal ? g_signal_add_emission_hook(signal, 0, hear, &announced, nullptr) : 0;
    GtkWidget* popup = notification.show();
    if (signal) {
        EXPECT_EQ(announced, "Mail\nFrom Ana");
        g_signal_remove_emission_hook(signal, hook);
    }
    AtkObject* accessible = gtk_widget_get_accessible(popup);
    EXPECT_EQ(atk_object_get_role(accessible), ATK_ROLE_NOTIFICATION);
    EXPECT_STREQ(atk_object_get_name(accessible), "Mail");
    EXPECT_STREQ(atk_object_get_description(accessible), "From Ana");

    ASSERT_TRUE(test::turn_until([] { return !assist({"names"}).empty(); }));
    const std::string names = assist({"names"});
    const std::string close =
        atk_object_get_name(gtk_widget_get_accessible(notification.part("title-close")));
    EXPECT_EQ(close, "Close the notification");
    EXPECT_NE(names.find("push button: " + close + "\n"), std::string::npos) << names;
    EXPECT_NE(names.find("push button: Read it\n"), std::string::npos) << names;
    EXPECT_EQ(assist({"notifications"}), "notification: Mail: From Ana\n");
    assist({"press", "Read it"});
    EXPECT_TRUE(test::turn_until([&] { return pressed == "read"; }));
    EXPECT_TRUE(test::turn_until([&] { return test::state_of(notification).destroyed; }));
}

}  // namespace
