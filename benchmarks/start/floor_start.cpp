// SPDX-License-Identifier: MIT
// The same panel and windows in plain GTK calls.
#include <desktop/desktop.hpp>
#include <panel/floor_desktop.hpp>

int main() {
    bench::begin();
    floor_panel::show_panel_with_windows();
    bench::turn_until_all_drawn(bench::started_windows + 1);
    bench::leave();
}
