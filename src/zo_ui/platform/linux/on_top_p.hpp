// SPDX-License-Identifier: MIT
#pragma once

#include <gtk/gtk.h>

namespace zo::platform {

// Keeps a popup above all windows that a window manager looks after, or would if one ran, for as long as the
// popup lives; on the loop, before the popup is realised. Other popups, such as menus, stay where they are.
// A window that comes back on top again and again at once is let be.
void keep_on_top(GtkWidget* popup);

}  // namespace zo::platform
