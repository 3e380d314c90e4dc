// SPDX-License-Identifier: MIT
// The property table, in the order of initialisation, and the clearing of the callbacks.
#include <zo_ui/zo_window/window_callbacks_p.hpp>

namespace {

using zo::window_callback_row;

template <typename Signature>
void init_callback(zo::property_guard& guard, const char* name) {
    guard.init<std::function<Signature>>(name, nullptr, "nullptr");
}

template <typename Signature>
boost::any clear_callback(zo::property_guard& guard, const char* name) {
    std::function<Signature> fn;
    guard.write(name, fn, {"nullptr"});
    return fn;
}

template <typename Signature>
constexpr window_callback_row row(const char* name) {
    return {name, init_callback<Signature>, clear_callback<Signature>};
}

using plain = void(zo_window_ptr);
using text = void(zo_window_ptr, std::string);

constexpr window_callback_row callbacks[] = {
    row<plain>("window-open"),
    row<plain>("window-show"),
    row<plain>("window-hide"),
    row<plain>("window-close"),
    row<plain>("window-activate"),
    row<plain>("window-restore"),
    row<plain>("window-destroy"),
    row<bool(zo_window_ptr)>("window-close-request"),
    row<plain>("go-back"),
    row<plain>("hint-request"),
    row<plain>("app-exit-request"),
    row<void(zo_window_ptr, GdkPixbuf*)>("handle-photo"),
    row<void(zo_window_ptr, GtkGrid*)>("menu-create"),
    row<text>("window-title-change"),
    row<text>("window-class-change"),
    row<text>("window-id-change"),
    row<void(zo_window_ptr, zo_window_event_ptr)>("window-on-event"),
};

struct flag_default {
    const char* name;
    bool value;
};

constexpr flag_default flags[] = {
    {"popup-window", false},
    {"window-managed", true},
    {"window-visible", false},
    {"window-opened", false},
    {"window-destroyed", false},
    {"window-restore-visible", false},
    {"window-restore-opened", false},
    {"window-restore-destroyed", false},
    {"use-rgba-visual", true},
    {"use-system-decoration", false},
    {"skip-pager", true},
    {"skip-taskbar-hint", true},
    {"re-sizable", false},
    {"keep-above", true},
    {"drag-enabled", true},
    {"use-built-in-title", true},
    {"enable-title-back", false},
    {"enable-title-exit", false},
    {"enable-title-menu", false},
    {"enable-title-hint", false},
    {"enable-title-save-to-photo", false},
    {"enable-title-close", true},
    {"enable-title-minimize", true},
    {"enable-content-ads", false},
    {"use_scroll", true},
};

}  // namespace

void _zo_window::init_properties() {
    zo::property_guard guard(*this, zo::window_source::file, zo::window_source::constructor);
    for (const window_callback_row& row : callbacks) row.init(guard, row.name);
    for (const flag_default& flag : flags)
        guard.init<bool>(flag.name, flag.value, flag.value ? "true" : "false");
    guard.init<std::string>("window-title-text", "", "\"\"");
    guard.init<std::string>("window-class", "global-window", "\"global-window\"");
    guard.init<std::string>("window-id", "", "\"\"");
    guard.init<int>("instanceId", 0, "0");
}

// All but "window-close", which the close inside a destroy still calls.
std::vector<boost::any> zo::clear_window_callbacks(property_guard& guard) {
    std::vector<boost::any> cleared;
    cleared.reserve(std::size(callbacks));
    for (const window_callback_row& row : callbacks)
        if (std::string_view(row.name) != "window-close") cleared.push_back(row.clear(guard, row.name));
    return cleared;
}
