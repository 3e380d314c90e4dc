// SPDX-License-Identifier: MIT
// Ends when the panel and ten windows are on screen.
#include <desktop/desktop.hpp>
#include <panel/ours_window.hpp>

int main() {
    bench::begin();
    zo_ui_init();
    const zo_window_manager_ptr manager = zo_window_manager_new("");
    zo_window_manager_set_keep_extended(manager, true);
    bench::show_panel_with_windows(manager);
    bench::turn_until_all_drawn(bench::started_windows + 1);
    bench::leave();
}
