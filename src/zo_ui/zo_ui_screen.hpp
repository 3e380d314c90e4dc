// SPDX-License-Identifier: MIT
/// @file
/// The geometry of the first monitor, as it was when zo_ui_init() read it.
///
/// @thread the loop's
#pragma once

#include <zo_core/zo_export.hpp>

/// Prepares the toolkit: installs the GDK event handler and reads the geometry and work area of monitor 0.
/// Call it once, after `gtk_init`. Without a display everything stays 0.
ZO_EXPORT void zo_ui_init();

/// @{
/// The monitor, in root coordinates, in GTK's (logical) pixels. Later changes of the monitor are not
/// followed.
/// @state 0 before zo_ui_init()
ZO_EXPORT int zo_ui_screen_x();
ZO_EXPORT int zo_ui_screen_y();
ZO_EXPORT int zo_ui_screen_width();
ZO_EXPORT int zo_ui_screen_height();
/// @}

/// @{
/// The monitor's work area (`_NET_WORKAREA` of the window manager), in root coordinates, in GTK's (logical)
/// pixels. Later changes are not followed.
/// @state 0 before zo_ui_init()
ZO_EXPORT int zo_ui_workarea_x();
ZO_EXPORT int zo_ui_workarea_y();
ZO_EXPORT int zo_ui_workarea_width();
ZO_EXPORT int zo_ui_workarea_height();
/// @}
