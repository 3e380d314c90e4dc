// SPDX-License-Identifier: MIT
/// @file
/// Small widgets that carry the library's style classes, and boxes that hold a widget in place.
///
/// @thread the loop's
/// @owner the result is new and has a floating reference, as GTK's constructors give it
#pragma once

#include <zo_core/zo_export.hpp>

#include <gtk/gtk.h>
#include <string>

/// An empty button with the class `zo-button`.
ZO_EXPORT GtkWidget* zo_ui_button_new();

/// A button with the class `zo-button` that shows `label`.
ZO_EXPORT GtkWidget* zo_ui_button_new_with_label(std::string label);

/// @{
/// A square button of 32, 24 or 16 pixels, with the class `size-32`, `size-24` or `size-16` and, unless it is
/// empty, `style_class`. Icons come from the theme.
ZO_EXPORT GtkWidget* zo_ui_button32_new(std::string style_class);
ZO_EXPORT GtkWidget* zo_ui_button24_new(std::string style_class);
ZO_EXPORT GtkWidget* zo_ui_button16_new(std::string style_class);
/// @}

/// A horizontal box at the top centre that keeps `child` at its natural size. `show` shows the box.
/// @owner the box owns `child`, which may be null; the box is new, with a floating reference
ZO_EXPORT GtkWidget* zo_ui_get_top_centared_widget(GtkWidget* child, bool show);

/// A horizontal box in the centre that keeps `child` at its natural size. The box is shown, whatever `show`
/// is.
/// @owner the box owns `child`, which may be null; the box is new, with a floating reference
ZO_EXPORT GtkWidget* zo_ui_get_centared_widget(GtkWidget* child, bool show);

/// A horizontal box at the top and start that keeps `child` at its natural size. `show` shows the box.
/// @owner the box owns `child`, which may be null; the box is new, with a floating reference
ZO_EXPORT GtkWidget* zo_ui_get_left_top_padding_widget(GtkWidget* child, bool show);

/// A horizontal box at the start that keeps `child` at its natural size. `show` shows the box and the child.
/// @owner the box owns `child`, which may be null; the box is new, with a floating reference
ZO_EXPORT GtkWidget* zo_ui_get_left_padding_widget(GtkWidget* child, bool show);

/// A horizontal box at the end that keeps `child` at its natural size. `show` shows the box.
/// @owner the box owns `child`, which may be null; the box is new, with a floating reference
ZO_EXPORT GtkWidget* zo_ui_get_right_padding_widget(GtkWidget* child, bool show);
