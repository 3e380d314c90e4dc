// SPDX-License-Identifier: MIT
// Finding widgets by what a script can know of them.
#pragma once
#include <gtk/gtk.h>

#include <string>

namespace driver {

// A toplevel by its window's id, or its style class with a dot before.
GtkWidget* named(const std::string& name);

// A widget below, or the root itself, by its style class.
GtkWidget* part(GtkWidget* root, const std::string& style_class);

// Left, top, width and height on the screen, "-" when it is not there.
std::string place(GtkWidget* widget);

// The X window of a toplevel, "-" without one.
std::string xid(const std::string& name);

}  // namespace driver
