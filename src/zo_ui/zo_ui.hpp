// SPDX-License-Identifier: MIT
/// @file
/// The user-interface library, in reading order. Link with `pkg-config --cflags --libs zo_ui` or the CMake
/// target `zo::ui`.
///
/// Start-up: `gtk_init`, zo_ui_init(), zo_theme_use_theme(); then make objects; then run the main loop.
///
/// Threads: exported functions of objects may be called from any thread unless they say otherwise; what
/// touches the screen is posted and runs on the loop, as every callback does. The toolkit and theme functions
/// (`zo_ui_*`, `zo_theme_*`) belong to the loop's thread.
#pragma once

#include <zo_core/zo_core.hpp>

#include <zo_ui/zo_handles.hpp>

#include <zo_ui/zo_window_event.hpp>

#include <zo_ui/zo_window.hpp>

#include <zo_ui/zo_window_manager.hpp>

#include <zo_ui/zo_notification.hpp>

#include <zo_ui/zo_appindicator.hpp>

#include <zo_ui/zo_theme.hpp>

#include <zo_ui/zo_ui_connect.hpp>
#include <zo_ui/zo_ui_screen.hpp>
#include <zo_ui/zo_ui_tools.hpp>
#include <zo_ui/zo_ui_widgets.hpp>
