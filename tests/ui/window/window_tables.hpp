// SPDX-License-Identifier: MIT
// The window's exported functions as tables, for tests that go through all of them.
#pragma once

#include "support/ui.hpp"

#include <functional>
#include <string>
#include <vector>

namespace test {

struct window_flag {
    const char* name;
    const char* property;
    bool initial;
    bool (*get)(zo_window_ptr);
    bool (*set)(zo_window_ptr, bool);
};
inline void PrintTo(const window_flag& row, std::ostream* out) { *out << row.name; }

#define ZO_TEST_FLAG(name, property, initial) \
    { #name, property, initial, zo_window_get_##name, zo_window_set_##name }

inline constexpr window_flag window_flags[] = {
    ZO_TEST_FLAG(managed_window, "window-managed", true),
    ZO_TEST_FLAG(popup_window, "popup-window", false),
    ZO_TEST_FLAG(use_rgba_visual, "use-rgba-visual", true),
    ZO_TEST_FLAG(use_system_decoration, "use-system-decoration", false),
    ZO_TEST_FLAG(skip_pager, "skip-pager", true),
    ZO_TEST_FLAG(skip_taskbar_hint, "skip-taskbar-hint", true),
    ZO_TEST_FLAG(resizable, "re-sizable", false),
    ZO_TEST_FLAG(keep_above, "keep-above", true),
    ZO_TEST_FLAG(drag_enabled, "drag-enabled", true),
    ZO_TEST_FLAG(use_built_in_title, "use-built-in-title", true),
    ZO_TEST_FLAG(enable_title_back, "enable-title-back", false),
    ZO_TEST_FLAG(enable_title_exit, "enable-title-exit", false),
    ZO_TEST_FLAG(enable_title_menu, "enable-title-menu", false),
    ZO_TEST_FLAG(enable_title_hint, "enable-title-hint", false),
    ZO_TEST_FLAG(enable_title_save_to_photo, "enable-title-save-to-photo", false),
    ZO_TEST_FLAG(enable_title_close, "enable-title-close", true),
    ZO_TEST_FLAG(enable_title_minimize, "enable-title-minimize", true),
    ZO_TEST_FLAG(enable_content_ads, "enable-content-ads", false),
    ZO_TEST_FLAG(use_scroll, "use_scroll", true),
};

#undef ZO_TEST_FLAG

struct window_text_row {
    const char* name;
    const char* property;
    const char* initial;
    bool (*get)(zo_window_ptr, std::string&);
    bool (*set)(zo_window_ptr, std::string);
    const char* change_property;
    bool (*set_callback)(zo_window_ptr, std::function<void(zo_window_ptr, std::string)>);
};
inline void PrintTo(const window_text_row& row, std::ostream* out) { *out << row.name; }

inline constexpr window_text_row window_texts[] = {
    {"id", "window-id", "", zo_window_get_id, zo_window_set_id, "window-id-change",
     zo_window_set_window_id_change_callback},
    {"class", "window-class", "global-window", zo_window_get_class, zo_window_set_class,
     "window-class-change", zo_window_set_window_class_change_callback},
    {"title", "window-title-text", "", zo_window_get_title, zo_window_set_title, "window-title-change",
     zo_window_set_window_title_text_change_callback},
};

// A setter of a callback. What is stored calls `called`, whatever its arguments.
struct window_callback {
    const char* setter;
    const char* property;
    const char* signature;
    bool (*store)(const zo_window_ptr& window, std::function<void()> called);
    bool (*clear)(const zo_window_ptr& window);
    // Takes the stored callable out of the property list and calls it; false when it is empty.
    bool (*call)(const zo_window_ptr& window, const char* property);
};
inline void PrintTo(const window_callback& row, std::ostream* out) { *out << row.property; }

template <typename Result, typename... Arguments>
struct callback_functions {
    using callable = std::function<Result(Arguments...)>;

    template <bool (*Setter)(zo_window_ptr, callable)>
    static bool store(const zo_window_ptr& window, std::function<void()> called) {
        return Setter(window, [called](Arguments...) {
            called();
            return Result();
        });
    }

    template <bool (*Setter)(zo_window_ptr, callable)>
    static bool clear(const zo_window_ptr& window) {
        return Setter(window, nullptr);
    }

    static bool call(const zo_window_ptr& window, const char* property) {
        const zo_object_ptr object = zo_window_to_object(window);
        callable stored;
        object->property_lock(__FILE__, __LINE__);
        const bool found = zo_property_get_extract<callable>(object->property_list, property, &stored);
        object->property_unlock();
        if (found && stored) stored(Arguments()...);
        return found && stored;
    }
};

#define ZO_TEST_CALLBACK(setter, property, signature, ...)                  \
    {                                                                       \
        "zo_window_set_" #setter, property, signature,                      \
            callback_functions<__VA_ARGS__>::store<zo_window_set_##setter>, \
            callback_functions<__VA_ARGS__>::clear<zo_window_set_##setter>, \
            callback_functions<__VA_ARGS__>::call                           \
    }
#define ZO_TEST_PLAIN(setter, property) \
    ZO_TEST_CALLBACK(setter, property, "void(zo_window_ptr)", void, zo_window_ptr)

inline const window_callback window_callbacks[] = {
    ZO_TEST_PLAIN(window_open_callback, "window-open"),
    ZO_TEST_PLAIN(window_show_callback, "window-show"),
    ZO_TEST_PLAIN(window_hide_callback, "window-hide"),
    ZO_TEST_PLAIN(window_close_callback, "window-close"),
    ZO_TEST_PLAIN(window_activate_callback, "window-activate"),
    ZO_TEST_PLAIN(window_restore_callback, "window-restore"),
    ZO_TEST_PLAIN(window_destroy_callback, "window-destroy"),
    ZO_TEST_CALLBACK(window_close_request_callback, "window-close-request", "bool(zo_window_ptr)", bool,
                     zo_window_ptr),
    ZO_TEST_PLAIN(window_go_back_callback, "go-back"),
    ZO_TEST_PLAIN(window_hint_request_callback, "hint-request"),
    ZO_TEST_PLAIN(window_exit_app_request_callback, "app-exit-request"),
    ZO_TEST_CALLBACK(save_to_photo_handler, "handle-photo", "void(zo_window_ptr,GdkPixbuf*)", void,
                     zo_window_ptr, GdkPixbuf*),
    ZO_TEST_CALLBACK(menu_create_handler, "menu-create", "void(zo_window_ptr,GtkGrid*)", void, zo_window_ptr,
                     GtkGrid*),
    ZO_TEST_CALLBACK(window_title_text_change_callback, "window-title-change",
                     "void(zo_window_ptr,std::string)", void, zo_window_ptr, std::string),
    ZO_TEST_CALLBACK(window_class_change_callback, "window-class-change", "void(zo_window_ptr,std::string)",
                     void, zo_window_ptr, std::string),
    ZO_TEST_CALLBACK(window_id_change_callback, "window-id-change", "void(zo_window_ptr,std::string)", void,
                     zo_window_ptr, std::string),
    ZO_TEST_CALLBACK(window_event_callback, "window-on-event", "void(zo_window_ptr,zo_window_event_ptr)",
                     void, zo_window_ptr, zo_window_event_ptr),
};

#undef ZO_TEST_PLAIN
#undef ZO_TEST_CALLBACK

// The posted operations on a window alone.
struct window_operation {
    const char* name;
    bool (*post)(const zo_window_ptr& window);
};

inline const window_operation window_operations[] = {
    {"zo_window_open", [](const zo_window_ptr& w) { return zo_window_open(w); }},
    {"zo_window_show", [](const zo_window_ptr& w) { return zo_window_show(w); }},
    {"zo_window_hide", [](const zo_window_ptr& w) { return zo_window_hide(w); }},
    {"zo_window_activate", [](const zo_window_ptr& w) { return zo_window_activate(w); }},
    {"zo_window_restore", [](const zo_window_ptr& w) { return zo_window_restore(w); }},
    {"zo_window_close", [](const zo_window_ptr& w) { return zo_window_close(w); }},
    {"zo_window_destroy", [](const zo_window_ptr& w) { return zo_window_destroy(w); }},
};

}  // namespace test
