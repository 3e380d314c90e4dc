// SPDX-License-Identifier: MIT
#include "notifications.hpp"

#include <algorithm>

namespace {

constexpr int timeout = 2000;

}  // namespace

const std::vector<demo::message>& demo::messages() {
    static const std::vector<message> kinds{
        {"Backup",
         "Backup finished",
         "1,204 files went to the archive. Three were left out, because they changed while they were read.",
         {"Open", "Later", "Dismiss"}},
        {"Invitation",
         "Message from Ana",
         "Shall we meet at <b>ten</b> in the <i>small</i> room? Here is "
         "<a href=\"https://example.org/plan\">the plan</a>.",
         {"Reply"}},
        {"No actions", "Battery at 80 %", "Charging goes on until it is full.", {}},
        {"Broken markup", "Not markup", "a <b>tag that nobody closes", {}},
        {"Right to left", "رسالة جديدة", "وصلت <b>رسالة</b> قبل دقيقتين، وهي تنتظر الرد.", {"رد"}},
        {"Long words",
         "One word may be very long",
         "/srv/archive/photographs/2026/november/from-the-old-camera-that-nobody-remembers-how-to-use/"
         "IMG_20261121_180000_original_unprocessed_full_resolution.tiff",
         {},
         false},
    };
    return kinds;
}

void demo::raise_message(workshop& shop, const message& kind) {
    const zo_notification_ptr notification = zo_notification_new();
    zo_notification_set_title(notification, kind.title);
    zo_notification_set_content(notification, kind.content);
    zo_notification_set_is_markup(notification, kind.is_markup);
    zo_notification_set_timeout(notification, shop.messages_leave ? timeout : 0);
    if (shop.messages_on_panel) zo_notification_set_manager(notification, shop.panel);
    for (const char* action : kind.actions)
        zo_notification_add_action(notification, action, action, [&shop](const std::string& name) {
            shop.log.add("messages", "action: " + name);
        });
    zo_notification_on_activate_link_callback(notification, [&shop](auto, const std::string& uri) {
        shop.log.add("messages", "link: " + uri);
        return true;
    });
    zo_notification_on_close(notification, [&shop, title = kind.title](const zo_notification_ptr& closed) {
        std::erase(shop.raised, closed);
        shop.log.add("messages", std::string("closed: ") + title);
    });
    shop.raised.push_back(notification);
    zo_notification_open_show(notification);
    shop.log.add("messages", std::string("raised: ") + kind.title);
}

void demo::close_messages(workshop& shop) {
    for (const zo_notification_ptr& notification : shop.raised) zo_notification_destroy(notification);
}
