// SPDX-License-Identifier: MIT
// A window of ours that joined a panel.
#pragma once

#include <panel/titles.hpp>

#include <zo_ui/zo_ui.hpp>

namespace bench {

inline zo_window_ptr joined_window(int number, const zo_window_manager_ptr& manager) {
    const zo_window_ptr window = zo_window_new("window" + std::to_string(number));
    zo_window_set_title(window, title(number));
    zo_window_set_window_manager(window, manager);
    zo_window_open(window);
    return window;
}

// Opens and shows a panel and the windows that a program starts with.
inline void show_panel_with_windows(const zo_window_manager_ptr& manager) {
    zo_window_manager_open(manager);
    zo_window_manager_show(manager);
    for (int i = 0; i < started_windows; ++i) zo_window_show(joined_window(i, manager));
}

}  // namespace bench
