// SPDX-License-Identifier: MIT
#include "endurance/lives.hpp"

void endurance::turn() {
    while (g_main_context_pending(nullptr)) g_main_context_iteration(nullptr, FALSE);
}

void endurance::live_a_life(long i) {
    const zo_window_ptr window = zo_window_new(i % 2 ? "one" : "other");
    zo_window_set_title(window, "title");
    zo_window_open(window);
    zo_window_show(window);
    turn();
    zo_window_hide(window);
    zo_window_close(window);
    zo_window_destroy(window);
    turn();
}

void endurance::notify(long i, const zo_window_manager_ptr& manager) {
    const zo_notification_ptr notification = zo_notification_new();
    zo_notification_set_title(notification, "title");
    zo_notification_set_content(notification, "some <b>content</b>");
    if (i % 2) zo_notification_set_manager(notification, manager);
    if (i % 3 == 0) zo_notification_add_action(notification, "a", "Action", [](const std::string&) {});
    zo_notification_open_show(notification);
    turn();
    zo_notification_destroy(notification);
    turn();
}

void endurance::indicate(long i) {
    const zo_appindicator_ptr indicator =
        zo_appindicator_new(i % 2 ? "one" : "other", "title", "mail-unread");
    zo_appindicator_add_action(indicator, "a", "Action", [](const zo_appindicator_ptr&, std::string&) {});
    zo_appindicator_show(indicator);
    turn();
    zo_appindicator_to_object(indicator)->destroy("endurance", 1);
    turn();
}

void endurance::arm_timeouts(int count) {
    int left = count / 2;
    for (int i = 0; i < count; ++i) {
        const unsigned long id =
            zo_system_service_timeout([&left] { --left; }, i % 2 ? 1 : 1000000, "endurance", 1);
        if (i % 2 == 0) zo_system_service_timeout_clear(id);
    }
    while (left > 0) g_main_context_iteration(nullptr, TRUE);
}
