// SPDX-License-Identifier: MIT
// Small widgets that carry the library's style classes, and boxes that hold a widget in place.
//
// Only on the loop's thread. Every result is a new widget with a floating reference, as GTK's constructors
// give it.
#pragma once

#include <zo_core/zo_export.hpp>

#include <gtk/gtk.h>
#include <string>

// A button with the class "zo-button".
ZO_EXPORT GtkWidget* zo_ui_button_new();
ZO_EXPORT GtkWidget* zo_ui_button_new_with_label(std::string label);

// A square button of 32, 24 or 16 pixels, with the class "size-32", "size-24" or "size-16" and, unless it is
// empty, `style_class`. Icons come from the theme.
ZO_EXPORT GtkWidget* zo_ui_button32_new(std::string style_class);
ZO_EXPORT GtkWidget* zo_ui_button24_new(std::string style_class);
ZO_EXPORT GtkWidget* zo_ui_button16_new(std::string style_class);

// Horizontal boxes around `child` (may be null) that keep it at its natural size, and place themselves: at
// the top centre; in the centre; at the top and start; at the start; at the end. `show` shows the box; the
// centred box is always shown, and the start box shows its child too.
ZO_EXPORT GtkWidget* zo_ui_get_top_centared_widget(GtkWidget* child, bool show);
ZO_EXPORT GtkWidget* zo_ui_get_centared_widget(GtkWidget* child, bool show);
ZO_EXPORT GtkWidget* zo_ui_get_left_top_padding_widget(GtkWidget* child, bool show);
ZO_EXPORT GtkWidget* zo_ui_get_left_padding_widget(GtkWidget* child, bool show);
ZO_EXPORT GtkWidget* zo_ui_get_right_padding_widget(GtkWidget* child, bool show);
