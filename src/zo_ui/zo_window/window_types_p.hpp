// SPDX-License-Identifier: MIT
// How reports spell the types that a window stores, and the rows of the window's tables.
#pragma once

#include <zo_core/zo_property_access_p.hpp>
#include <zo_ui/zo_window/window_settings_p.hpp>
#include <zo_ui/zo_window/window_tree_p.hpp>

#include <string>

namespace zo {

template <>
struct type_text<std::function<void(zo_window_ptr)>> {
    static constexpr const char* value = "std::function<void(zo_window_ptr)>";
};
template <>
struct type_text<std::function<bool(zo_window_ptr)>> {
    static constexpr const char* value = "std::function<bool(zo_window_ptr)>";
};
template <>
struct type_text<std::function<void(zo_window_ptr, GdkPixbuf*)>> {
    static constexpr const char* value = "std::function<void(zo_window_ptr,GdkPixbuf*)>";
};
template <>
struct type_text<std::function<void(zo_window_ptr, GtkGrid*)>> {
    static constexpr const char* value = "std::function<void(zo_window_ptr,GtkGrid*)>";
};
template <>
struct type_text<std::function<void(zo_window_ptr, std::string)>> {
    static constexpr const char* value = "std::function<void(zo_window_ptr,std::string)>";
};
template <>
struct type_text<std::function<void(zo_window_ptr, zo_window_event_ptr)>> {
    static constexpr const char* value = "std::function<void(zo_window_ptr,zo_window_event_ptr)>";
};

struct window_access;
struct window_handlers;
struct tool_menu_handlers;
struct drag_handlers;

// One of the three texts: where it is stored, who is told, and how an opened window follows.
struct window_text {
    const char* property;
    const char* change_callback;
    int line;
    void (_zo_window::*apply)(const std::string& old, const std::string& changed);
    bool told_to_manager;

    static const window_text id;
    static const window_text style_class;
    static const window_text title;
};

// One row of the title bar. Without a flag the row is the label.
struct window_title_row {
    bool window_settings::*enabled;
    title_button button;
    const char* style_class;
    const char* tooltip_key;
    bool at_end;
};

}  // namespace zo
