// SPDX-License-Identifier: MIT
// floor_window ALIVE: the same tree in plain GTK calls.
#include <desktop/desktop.hpp>
#include <windows/floor_tree.hpp>
#include <windows/window_run.hpp>

#include <map>

namespace {

std::map<int, GtkWidget*> windows;

GtkWidget* open(int number) { return windows[number] = floor_window::open_window(number); }

void destroy(int number) {
    if (floor_window::active == windows[number]) floor_window::active = nullptr;
    gtk_widget_destroy(windows[number]);
    windows.erase(number);
}

}  // namespace

int main(int, char** arguments) {
    bench::begin();
    gdk_monitor_get_workarea(gdk_display_get_monitor(gdk_display_get_default(), 0), &floor_window::workarea);
    return bench::run_windows({open, destroy}, arguments);
}
