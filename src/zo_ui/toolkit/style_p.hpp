// SPDX-License-Identifier: MIT
// Style classes, accessible names and texts of widgets.
#pragma once

#include <gtk/gtk.h>
#include <string>

namespace zo {

// An empty name is no class; one that is there already is not added twice.
void add_class(GtkWidget* widget, const char* name);
void remove_class(GtkWidget* widget, const char* name);
bool has_class(GtkWidget* widget, const char* name);

// A widget of `size` by `size` pixels, which `size_class` tells the theme.
void as_square(GtkWidget* widget, int size, const char* size_class, const char* style_class);

// Sets the tooltip and, for a button that shows only an icon, the same text as the name that assistive
// programs read.
void set_tooltip(GtkWidget* widget, const std::string& markup);

// Gives what assistive programs read of `widget` the widget's tooltip as its name.
void name_by_tooltip(AtkObject* accessible, GtkWidget* widget);

// Toolkit and buses refuse a text that is not UTF-8 altogether: this is what can be read of it.
std::string readable(const std::string& text);

}  // namespace zo
