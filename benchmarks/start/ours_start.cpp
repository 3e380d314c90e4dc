// SPDX-License-Identifier: MIT
// Ends when the panel and ten windows are on screen.
#include <desktop/desktop.hpp>
#include <panel/titles.hpp>

#include <zo_ui/zo_ui.hpp>

int main() {
    bench::begin();
    zo_ui_init();
    const zo_window_manager_ptr manager = zo_window_manager_new("");
    zo_window_manager_set_keep_extended(manager, true);
    zo_window_manager_open(manager);
    zo_window_manager_show(manager);
    for (int i = 0; i < bench::started_windows; ++i) {
        const zo_window_ptr window = zo_window_new("window" + std::to_string(i));
        zo_window_set_title(window, bench::title(i));
        zo_window_set_window_manager(window, manager);
        zo_window_open(window);
        zo_window_show(window);
    }
    bench::turn_until_all_drawn(bench::started_windows + 1);
    bench::leave();
}
