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
    std::optional<fuzz::title_button> button = std::nullopt;
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
    {zo_window_set_enable_title_back, zo_window_get_enable_title_back, fuzz::title_button::back},
    {zo_window_set_enable_title_exit, zo_window_get_enable_title_exit, fuzz::title_button::exit},
    {zo_window_set_enable_title_menu, zo_window_get_enable_title_menu, fuzz::title_button::menu},
    {zo_window_set_enable_title_hint, zo_window_get_enable_title_hint, fuzz::title_button::hint},
    {zo_window_set_enable_title_save_to_photo, zo_window_get_enable_title_save_to_photo,
     fuzz::title_button::photo},
    {zo_window_set_enable_content_ads, zo_window_get_enable_content_ads},
    {zo_window_set_use_scroll, zo_window_get_use_scroll},
};

// In the order of title_button.
constexpr bool (*title_setters[])(zo_window_ptr, bool) = {
    zo_window_set_enable_title_exit,          zo_window_set_enable_title_hint,
    zo_window_set_enable_title_save_to_photo, zo_window_set_enable_title_close,
    zo_window_set_enable_title_minimize,      zo_window_set_enable_title_menu,
    zo_window_set_enable_title_back};
static_assert(std::size(title_setters) == fuzz::title_buttons_count);

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

void do_nothing_with_text(zo_window_ptr, std::string) {}

// Those that are told are set as the others of the window are.
struct other_callback {
    std::optional<fuzz::event> told;
    bool (*set)(zo_window_ptr, std::function<void(zo_window_ptr, std::string)>);
};
constexpr other_callback other_callbacks[] = {
    {fuzz::event::back, nullptr},
    {fuzz::event::hint, nullptr},
    {fuzz::event::exit, nullptr},
    {std::nullopt, zo_window_set_window_id_change_callback},
    {std::nullopt, zo_window_set_window_class_change_callback},
    {fuzz::event::photo, nullptr},
    {fuzz::event::menu, nullptr},
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
    const auto set = row(other_callbacks, which / 2).set;
    return which % 2 ? set(window, do_nothing_with_text) : set(window, nullptr);
}

std::optional<fuzz::event> fuzz::other_event_of(int which) { return row(other_callbacks, which / 2).told; }

std::optional<fuzz::title_button> fuzz::button_of_flag(int which) { return row(flags, which / 2).button; }

fuzz::title_flags fuzz::title_flags_of(int which) {
    title_flags wanted{};
    for (std::size_t button = 0; button < wanted.size(); ++button) wanted[button] = which >> button & 1;
    return wanted;
}

bool fuzz::set_title_flags(const zo_window_ptr& window, int which) {
    const title_flags wanted = title_flags_of(which);
    bool done = true;
    for (std::size_t button = 0; button < wanted.size(); ++button)
        done = title_setters[button](window, wanted[button]) && done;
    return done;
}

bool fuzz::set_something(const zo_notification_ptr& notification, int which) {
    return row(notification_setters, which)(notification);
}
