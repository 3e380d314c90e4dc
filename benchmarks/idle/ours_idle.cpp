// SPDX-License-Identifier: MIT
// Has a panel, ten windows, a notification and an icon in the tray on screen, and does nothing.
#include <desktop/desktop.hpp>
#include <panel/titles.hpp>

#include <zo_ui/zo_ui.hpp>

int main() {
    bench::begin();
    zo_ui_init();
    const zo_window_manager_ptr manager = zo_window_manager_new("");
    zo_window_manager_open(manager);
    zo_window_manager_show(manager);
    for (int i = 0; i < bench::started_windows; ++i) {
        const zo_window_ptr window = zo_window_new("window" + std::to_string(i));
        zo_window_set_title(window, bench::title(i));
        zo_window_set_window_manager(window, manager);
        zo_window_open(window);
        zo_window_show(window);
    }
    const zo_notification_ptr notification = zo_notification_new();
    zo_notification_set_content(notification, "Something to read");
    zo_notification_set_timeout(notification, 3600000);
    zo_notification_open_show(notification);
    const zo_appindicator_ptr icon = zo_appindicator_new("bench", "Bench", "applications-system");
    zo_appindicator_add_action(icon, "quit", "Quit", [](const zo_appindicator_ptr&, std::string&) {});
    zo_appindicator_show(icon);
    gtk_main();
}
