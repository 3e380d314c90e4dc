// SPDX-License-Identifier: MIT
#pragma once

#include <gtk/gtk.h>

namespace zo {

// A horizontal box, shown and empty, in the scroller. It looks like any box that is packed at its end without
// expanding, but what one child costs does not grow with the others: only a child that changed is measured,
// only one that moves or is in sight is laid out, and only those in sight are drawn. A plain box does each of
// it for all.
GtkWidget* task_row_new(GtkScrolledWindow* scroller);

// Packs a child that is shown left of those that are there.
void task_row_add(GtkWidget* row, GtkWidget* child);

}  // namespace zo
