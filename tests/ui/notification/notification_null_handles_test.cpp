// SPDX-License-Identifier: MIT
// Every exported function on an empty handle: its warning, a neutral result, nothing posted.
#include "ui/notification/popup.hpp"

namespace {

struct row {
    const char* name;
    std::function<bool(zo_notification_ptr)> call;
};

const row rows[] = {
    {"zo_notification_set_title", [](auto n) { return zo_notification_set_title(n, "t"); }},
    {"zo_notification_set_content", [](auto n) { return zo_notification_set_content(n, "c"); }},
    {"zo_notification_set_timeout", [](auto n) { return zo_notification_set_timeout(n, 1); }},
    {"zo_notification_set_is_markup", [](auto n) { return zo_notification_set_is_markup(n, true); }},
    {"zo_notification_set_manager", [](auto n) { return zo_notification_set_manager(n, {}); }},
    {"zo_notification_add_action",
     [](auto n) { return zo_notification_add_action(n, "n", "l", [](const std::string&) {}); }},
    {"zo_notification_on_close", [](auto n) { return zo_notification_on_close(n, nullptr); }},
    {"zo_notification_on_activate_link_callback",
     [](auto n) { return zo_notification_on_activate_link_callback(n, nullptr); }},
    {"zo_notification_open_show", [](auto n) { return zo_notification_open_show(n); }},
    {"zo_notification_destroy", [](auto n) { return zo_notification_destroy(n); }},
    {"zo_notification_get_id", [](auto n) { return zo_notification_get_id(n) != 0; }},
    {"zo_notification_to_object", [](auto n) { return zo_notification_to_object(n) != nullptr; }},
    {"zo_notification_from_object", [](auto n) { return !n && zo_notification_from_object({}) != nullptr; }},
};

TEST(NotificationNullHandles, AreWarnedOfAndRefused) {
    for (const row& r : rows) {
        const test::captured_output output;
        EXPECT_FALSE(r.call({})) << r.name;
        EXPECT_EQ(output.text(), test::null_handle_line(r.name));
        test::run_tasks();
        EXPECT_EQ(output.lines().size(), 1U) << r.name;
    }
}

TEST(NotificationNullHandles, TheTypeTestIsSilent) {
    const test::captured_output output;
    EXPECT_FALSE(zo_is_notification({}));
    EXPECT_EQ(output.text(), "");
}

TEST(NotificationCasting, GoesToTheBaseAndBack) {
    const test::scoped_notification notification;
    const zo_object_ptr object = zo_notification_to_object(notification);
    EXPECT_TRUE(zo_is_notification(object));
    EXPECT_EQ(object->get_type(), "[zo_notification]");
    EXPECT_EQ(zo_notification_from_object(object), notification.get());
    const test::scoped_window window;
    const test::captured_output output;
    EXPECT_FALSE(zo_is_notification(zo_window_to_object(window)));
    EXPECT_FALSE(zo_notification_from_object(zo_window_to_object(window)));
    EXPECT_FALSE(zo_is_window(object));
    EXPECT_EQ(output.text(), "");
}

TEST(NotificationCasting, EveryIdIsNew) {
    const test::scoped_notification one;
    const test::scoped_notification two;
    EXPECT_NE(zo_notification_get_id(one), 0U);
    EXPECT_LT(zo_notification_get_id(one), zo_notification_get_id(two));
}

}  // namespace
