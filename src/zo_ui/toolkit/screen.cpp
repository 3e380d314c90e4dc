// SPDX-License-Identifier: MIT
#include <zo_ui/zo_ui_screen.hpp>

#include <zo_ui/toolkit/process_state_p.hpp>

using zo::toolkit;

void zo_ui_init() {
    gdk_event_handler_set([](GdkEvent* event, gpointer) { gtk_main_do_event(event); }, nullptr,
                          [](gpointer) {});
    GdkDisplay* display = gdk_display_get_default();
    GdkMonitor* monitor = display ? gdk_display_get_monitor(display, 0) : nullptr;
    if (!monitor) return;
    gdk_monitor_get_geometry(monitor, &toolkit().screen);
    gdk_monitor_get_workarea(monitor, &toolkit().workarea);
}

int zo_ui_screen_x() { return toolkit().screen.x; }
int zo_ui_screen_y() { return toolkit().screen.y; }
int zo_ui_screen_width() { return toolkit().screen.width; }
int zo_ui_screen_height() { return toolkit().screen.height; }
int zo_ui_workarea_x() { return toolkit().workarea.x; }
int zo_ui_workarea_y() { return toolkit().workarea.y; }
int zo_ui_workarea_width() { return toolkit().workarea.width; }
int zo_ui_workarea_height() { return toolkit().workarea.height; }
