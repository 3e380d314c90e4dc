// SPDX-License-Identifier: MIT
// A window's properties as they were when it was opened.
#pragma once

#include <zo_ui/zo_handles.hpp>

#include <functional>
#include <string>

namespace zo {

struct window_settings {
    std::function<void(zo_window_ptr)> on_open;
    bool popup_window = false;
    bool window_managed = false;
    bool use_rgba_visual = false;
    bool use_system_decoration = false;
    bool skip_pager = false;
    bool skip_taskbar_hint = false;
    bool resizable = false;
    bool keep_above = false;
    bool drag_enabled = false;
    bool use_built_in_title = false;
    bool enable_title_back = false;
    bool enable_title_exit = false;
    bool enable_title_menu = false;
    bool enable_title_hint = false;
    bool enable_title_save_to_photo = false;
    bool enable_title_close = false;
    bool enable_title_minimize = false;
    bool enable_content_ads = false;
    bool use_scroll = false;
    std::string title;
    std::string style_class;
    std::string id;
};

// Reads all of it under one lock.
window_settings read_window_settings(_zo_window& window);

// Resolves flags that exclude each other, in this copy alone: the properties keep what the application set. A
// popup writes its one diagnostic line here.
void normalise(window_settings& settings);

// "messagebox" followed by the id: the content box's widget name.
std::string content_name(const std::string& id);

}  // namespace zo
