// SPDX-License-Identifier: MIT
// Two notifications: one with a link and actions that waits for an answer, and one that leaves by itself.
// The program ends when both are closed.
#include <zo_ui/zo_ui.hpp>

namespace {

zo_notification_ptr notification_new(const char* title, const char* text, int& open) {
    zo_notification_ptr notification = zo_notification_new();
    zo_notification_set_title(notification, title);
    zo_notification_set_content(notification, text);
    zo_notification_on_close(notification, [&open](zo_notification_ptr) {
        if (--open == 0) gtk_main_quit();
    });
    ++open;
    return notification;
}

}  // namespace

int main(int argc, char** argv) {
    gtk_init(&argc, &argv);
    zo_ui_init();
    GError* error = nullptr;
    zo_theme_set_theme_path(zo_theme_get_system_path());
    zo_theme_use_theme("brevant", error);
    if (error) g_printerr("no theme: %s\n", error->message);
    g_clear_error(&error);

    int open = 0;
    zo_notification_ptr invitation = notification_new(
        "Message from Ana",
        "Shall we meet at <b>ten</b>? Here is <a href=\"https://example.org/plan\">the plan</a>.", open);
    const auto answer = [](std::string name) { g_print("answer: %s\n", name.c_str()); };
    zo_notification_add_action(invitation, "yes", "I come", answer);
    zo_notification_add_action(invitation, "no", "Not today", answer);
    zo_notification_on_activate_link_callback(invitation, [](zo_notification_ptr, std::string& uri) {
        g_print("link: %s\n", uri.c_str());
        return true;  // dealt with; false lets GTK open it
    });
    zo_notification_open_show(invitation);

    zo_notification_ptr battery = notification_new("Battery", "Charged to 80 %.", open);
    zo_notification_set_timeout(battery, 5000);  // milliseconds
    zo_notification_open_show(battery);
    gtk_main();

    zo_system_service_end();
    zo_theme_uninit();
}
