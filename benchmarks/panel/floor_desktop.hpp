// SPDX-License-Identifier: MIT
// The panel and the windows that a program starts with, as somebody would write them by hand.
#pragma once

#include <panel/floor_tree.hpp>
#include <windows/floor_tree.hpp>

namespace floor_panel {

inline void show_panel_with_windows() {
    gdk_monitor_get_workarea(gdk_display_get_monitor(gdk_display_get_default(), 0), &floor_window::workarea);
    GtkWidget* row = row_new();
    GtkWidget* panel = panel_new(row);
    for (int i = 0; i < bench::started_windows; ++i) {
        add_window(row, i);
        floor_window::open_window(i);
    }
    gtk_widget_show_all(panel);
}

}  // namespace floor_panel
