// SPDX-License-Identifier: MIT
#include "fuzz/calls_tables.hpp"

namespace {

template <typename T, std::size_t N>
const T& row(const T (&table)[N], int which) {
    return table[static_cast<std::size_t>(which) % N];
}

struct flag {
    bool (*set)(zo_window_ptr, bool);
    bool (*get)(zo_window_ptr);
};
constexpr flag flags[] = {
    {zo_window_set_managed_window, zo_window_get_managed_window},
    {zo_window_set_use_rgba_visual, zo_window_get_use_rgba_visual},
    {zo_window_set_use_system_decoration, zo_window_get_use_system_decoration},
    {zo_window_set_skip_pager, zo_window_get_skip_pager},
    {zo_window_set_skip_taskbar_hint, zo_window_get_skip_taskbar_hint},
    {zo_window_set_resizable, zo_window_get_resizable},
    {zo_window_set_keep_above, zo_window_get_keep_above},
    {zo_window_set_drag_enabled, zo_window_get_drag_enabled},
    {zo_window_set_enable_title_back, zo_window_get_enable_title_back},
    {zo_window_set_enable_title_exit, zo_window_get_enable_title_exit},
    {zo_window_set_enable_title_menu, zo_window_get_enable_title_menu},
    {zo_window_set_enable_title_hint, zo_window_get_enable_title_hint},
    {zo_window_set_enable_title_save_to_photo, zo_window_get_enable_title_save_to_photo},
    {zo_window_set_enable_content_ads, zo_window_get_enable_content_ads},
    {zo_window_set_use_scroll, zo_window_get_use_scroll},
};

using null_call = bool (*)();
bool value = false;

// True: refused.
constexpr null_call null_calls[] = {
    [] { return !zo_window_open({}); },
    [] { return !zo_window_show({}); },
    [] { return !zo_window_hide({}); },
    [] { return !zo_window_activate({}); },
    [] { return !zo_window_restore({}); },
    [] { return !zo_window_save({}); },
    [] { return !zo_window_move({}, 1, 1); },
    [] { return !zo_window_close({}); },
    [] { return !zo_window_destroy({}); },
    [] { return !zo_window_destroy({}, "fuzz", 1); },
    [] { return !zo_window_push_event({}, zo_window_event_new(1)); },
    [] { return !zo_window_set_window_manager({}, {}); },
    [] { return !zo_window_get_window_manager({}); },
    [] { return !zo_window_is_opened({}, &value); },
    [] { return !zo_window_set_bool_property({}, "fuzz", true); },
    [] { return !zo_window_get_bool_property({}, "fuzz"); },
    [] { return !zo_window_add_content_child({}, nullptr, true, true, 0, true); },
    [] { return !zo_window_set_window_open_callback({}, nullptr); },
    [] { return !zo_window_to_object({}) && !zo_window_from_object({}) && !zo_is_window({}); },
    [] { return !zo_window_manager_open({}); },
    [] { return !zo_window_manager_show({}); },
    [] { return !zo_window_manager_hide({}); },
    [] { return !zo_window_manager_close({}); },
    [] { return !zo_window_manager_destroy({}); },
    [] { return !zo_window_manager_extend({}) && !zo_window_manager_retract({}); },
    [] { return !zo_window_manager_set_keep_extended({}, true); },
    [] { return !zo_window_manager_get_keep_extended({}); },
    [] { return !zo_window_manager_is_visible({}, &value); },
    [] { return !zo_window_manager_on_open({}, nullptr); },
    [] { return !zo_window_manager_to_object({}) && !zo_window_manager_from_object({}); },
    [] { return !zo_notification_set_title({}, "fuzz") && !zo_notification_set_content({}, "fuzz"); },
    [] { return !zo_notification_set_timeout({}, 1) && !zo_notification_set_is_markup({}, true); },
    [] { return !zo_notification_set_manager({}, {}) && !zo_notification_get_id({}); },
    [] { return !zo_notification_open_show({}) && !zo_notification_destroy({}); },
    [] { return !zo_notification_on_close({}, nullptr); },
    [] { return !zo_notification_add_action({}, "fuzz", "Fuzz", nullptr); },
    [] { return !zo_notification_to_object({}) && !zo_notification_from_object({}); },
    [] { return !zo_appindicator_show({}) && !zo_appindicator_add_action({}, "fuzz", "Fuzz", nullptr); },
    [] { return !zo_appindicator_to_object({}) && !zo_appindicator_from_object({}); },
    [] { return !zo_window_event_get_code({}) && !zo_window_event_to_object({}); },
};

void do_nothing(zo_window_ptr) {}
void do_nothing_with_text(zo_window_ptr, std::string) {}

using other_callback = bool (*)(const zo_window_ptr&, bool there);
constexpr other_callback other_callbacks[] = {
    [](const zo_window_ptr& w, bool there) {
        return zo_window_set_window_go_back_callback(w, there ? do_nothing : nullptr);
    },
    [](const zo_window_ptr& w, bool there) {
        return zo_window_set_window_hint_request_callback(w, there ? do_nothing : nullptr);
    },
    [](const zo_window_ptr& w, bool there) {
        return zo_window_set_window_exit_app_request_callback(w, there ? do_nothing : nullptr);
    },
    [](const zo_window_ptr& w, bool there) {
        return zo_window_set_window_id_change_callback(w, there ? do_nothing_with_text : nullptr);
    },
    [](const zo_window_ptr& w, bool there) {
        return zo_window_set_window_class_change_callback(w, there ? do_nothing_with_text : nullptr);
    },
    [](const zo_window_ptr& w, bool) {
        return zo_window_set_save_to_photo_handler(w, [](const zo_window_ptr&, GdkPixbuf*) {});
    },
    [](const zo_window_ptr& w, bool) {
        return zo_window_set_menu_create_handler(w, [](const zo_window_ptr&, GtkGrid*) {});
    },
};

using setter = bool (*)(const zo_notification_ptr&);
constexpr setter notification_setters[] = {
    [](const zo_notification_ptr& n) { return zo_notification_set_content(n, "<i>other</i> content"); },
    [](const zo_notification_ptr& n) { return zo_notification_set_is_markup(n, false); },
    [](const zo_notification_ptr& n) { return zo_notification_set_timeout(n, 3600000); },
    [](const zo_notification_ptr& n) { return zo_notification_add_action(n, "more", "More", nullptr); },
};

}  // namespace

bool fuzz::refuses_null(int which) { return row(null_calls, which)(); }

bool fuzz::set_flag(const zo_window_ptr& window, int which) {
    const flag& one = row(flags, which / 2);
    return one.set(window, which % 2) && one.get(window) == static_cast<bool>(which % 2);
}

bool fuzz::set_other_callback(const zo_window_ptr& window, int which) {
    return row(other_callbacks, which / 2)(window, which % 2);
}

bool fuzz::set_something(const zo_notification_ptr& notification, int which) {
    return row(notification_setters, which)(notification);
}
