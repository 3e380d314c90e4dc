// SPDX-License-Identifier: MIT
#pragma once

#include <gtk/gtk.h>

namespace demo {

// A quiet ground behind everything, for a private display that has none. Returns the window; the caller
// destroys it.
GtkWidget* show_backdrop();

}  // namespace demo
