// SPDX-License-Identifier: MIT
#include "notifications.hpp"

#include "texts.hpp"

#include <algorithm>

namespace {

constexpr int timeout = 2000;

}  // namespace

const std::vector<demo::message>& demo::messages() {
    static const std::vector<message> kinds{
        {"backup",
         N_("Three actions"),
         N_("Backup finished"),
         N_("1,204 files went to the archive. Three were left out, "
            "because they "
            "changed while they were read."),
         {{"open", N_("Open")},
          {"later", N_("Later")},
          {"dismiss", N_("Dismiss")}}},
        {"invitation",
         N_("Markup and a link"),
         N_("Message from Ana"),
         N_("Shall we meet at <b>ten</b> in the <i>small</i> room? Here "
            "is <a "
            "href=\"https://example.org/plan\">the plan</a>."),
         {{"reply", N_("Reply")}}},
        {"plain",
         N_("No actions"),
         N_("Battery at 80 %"),
         N_("Charging goes on until it is full."),
         {}},
        {"broken",
         N_("Broken markup"),
         N_("Not markup"),
         N_("a <b>tag that nobody closes"),
         {}},
        {"arabic",
         N_("Right to left"),
         "رسالة جديدة",
         "وصلت <b>رسالة</b> قبل دقيقتين، وهي تنتظر الرد.",
         {{"reply", "رد"}}},
        {"long",
         N_("Long words"),
         N_("One word may be very long"),
         "/srv/archive/photographs/2026/november/"
         "from-the-old-camera-that-nobody-remembers-how-to-use/"
         "IMG_20261121_180000_original_unprocessed_full_resolution.tiff",
         {},
         false},
    };
    return kinds;
}

// begin: notifications
void demo::raise_message(workshop& shop, const message& kind) {
    const zo_notification_ptr notification = zo_notification_new();
    zo_notification_set_title(notification, _(kind.title));
    zo_notification_set_content(notification, _(kind.content));
    zo_notification_set_is_markup(notification, kind.is_markup);
    zo_notification_set_timeout(notification,
                                shop.messages_leave ? timeout : 0);
    if (shop.messages_on_panel)
        zo_notification_set_manager(notification, shop.panel);

    for (const auto& [name, label] : kind.actions)
        zo_notification_add_action(notification, name, _(label),
                                   [&shop](const std::string& chosen) {
                                       shop.log.add("messages",
                                                    "action: " + chosen);
                                   });
    zo_notification_on_activate_link_callback(
        notification, [&shop](auto, const std::string& uri) {
            shop.log.add("messages", "link: " + uri);
            return true;
        });
    zo_notification_on_close(
        notification,
        [&shop, name = kind.name](const zo_notification_ptr& closed) {
            std::erase(shop.raised, closed);
            shop.log.add("messages", std::string("closed: ") + name);
        });

    shop.raised.push_back(notification);
    zo_notification_open_show(notification);
    shop.log.add("messages", std::string("raised: ") + kind.name);
}
// end: notifications

void demo::raise_own_message(workshop& shop, const std::string& title,
                             const std::string& content) {
    raise_message(shop, {"own", "", title.c_str(), content.c_str(), {}});
}

void demo::close_messages(workshop& shop) {
    for (const zo_notification_ptr& notification : shop.raised)
        zo_notification_destroy(notification);
}
