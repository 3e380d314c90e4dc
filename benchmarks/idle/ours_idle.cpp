// SPDX-License-Identifier: MIT
// Has a panel, ten windows, a notification and an icon in the tray on screen, and does nothing.
#include <desktop/desktop.hpp>
#include <panel/ours_window.hpp>

int main() {
    bench::begin();
    zo_ui_init();
    const zo_window_manager_ptr manager = zo_window_manager_new("");
    bench::show_panel_with_windows(manager);
    const zo_notification_ptr notification = zo_notification_new();
    zo_notification_set_content(notification, "Something to read");
    zo_notification_set_timeout(notification, 3600000);
    zo_notification_open_show(notification);
    const zo_appindicator_ptr icon = zo_appindicator_new("bench", "Bench", "applications-system");
    zo_appindicator_add_action(icon, "quit", "Quit", [](const zo_appindicator_ptr&, std::string&) {});
    zo_appindicator_show(icon);
    gtk_main();
}
