// SPDX-License-Identifier: MIT
#pragma once

#include <zo_ui/platform/linux.hpp>

// The first client window with exactly this name and class, looking below `window` and its descendants,
// parents before children and siblings in the server's order. 0 as `window` means the root of the default
// screen. 0 when none is found.
Window find_window_by_class(Display* display, Window window, const char* res_name, const char* res_class);
