// SPDX-License-Identifier: MIT
// A text that nothing on the loop follows, as the GObject's: a notification's title.
#include <core/access.hpp>

#include <zo_ui/zo_notification.hpp>

int main(int count, char** arguments) {
    const zo_notification_ptr notification = zo_notification_new();
    return bench::access_main(
        count, arguments, [](int) {},
        [&](int turn) { zo_notification_set_title(notification, bench::texts[turn % 2]); });
}
