// SPDX-License-Identifier: MIT
// The same panel and windows in plain GTK calls.
#include <desktop/desktop.hpp>
#include <panel/floor_tree.hpp>
#include <windows/floor_tree.hpp>

int main() {
    bench::begin();
    gdk_monitor_get_workarea(gdk_display_get_monitor(gdk_display_get_default(), 0), &floor_window::workarea);
    GtkWidget* row = floor_panel::row_new();
    GtkWidget* panel = floor_panel::panel_new(row);
    for (int i = 0; i < bench::started_windows; ++i) {
        floor_panel::add_window(row, i);
        floor_window::open_window(i);
    }
    gtk_widget_show_all(panel);
    bench::turn_until_all_drawn(bench::started_windows + 1);
    bench::leave();
}
