// SPDX-License-Identifier: MIT
#pragma once

#include <gtk/gtk.h>

namespace zo {

// Gives the style class "active" to `window`, if it has the class "managed", and takes it from the one that
// had it: one window of the process is the active one. On the loop.
void mark_active(GtkWidget* window);

// True for the window that was marked last.
bool is_marked_active(GtkWidget* window);

}  // namespace zo
