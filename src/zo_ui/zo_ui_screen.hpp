// SPDX-License-Identifier: MIT
// The geometry of the first monitor, as it was when zo_ui_init read it.
#pragma once

#include <zo_core/zo_export.hpp>

// Prepares the toolkit: installs the GDK event handler and reads the geometry and work area of monitor 0.
// Call it once, on the loop's thread, after gtk_init. Without a display everything stays 0.
ZO_EXPORT void zo_ui_init();

// The monitor and its work area (EWMH _NET_WORKAREA), in root coordinates, in GTK's (logical) pixels. 0
// before zo_ui_init; later changes of the monitor are not followed. On the loop's thread.
ZO_EXPORT int zo_ui_screen_x();
ZO_EXPORT int zo_ui_screen_y();
ZO_EXPORT int zo_ui_screen_width();
ZO_EXPORT int zo_ui_screen_height();
ZO_EXPORT int zo_ui_workarea_x();
ZO_EXPORT int zo_ui_workarea_y();
ZO_EXPORT int zo_ui_workarea_width();
ZO_EXPORT int zo_ui_workarea_height();
