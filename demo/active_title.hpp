// SPDX-License-Identifier: MIT
#pragma once

#include <gtk/gtk.h>

namespace demo {

// A label that shows the title of the desktop's active window, whoever it belongs to.
GtkWidget* active_title_new();

}  // namespace demo
