// SPDX-License-Identifier: MIT
#pragma once

#include <gtk/gtk.h>

namespace demo {

// A region of the demo's own sources, taken from the file when the demo is built.
struct code_region {
    const char* file;
    const char* text;
};

// Shows the code in the theme's colours, left to right in every language, with its file's name and a button
// that copies it.
GtkWidget* code_view_new(const code_region& code);

// Gives a text tag a colour of the theme, and again whenever the view's style changes.
void follow_theme_colour(GtkTextTag* tag, GtkWidget* view, const char* colour);

}  // namespace demo
