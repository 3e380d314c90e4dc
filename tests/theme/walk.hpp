// SPDX-License-Identifier: MIT
// Widgets seen from outside: their children, classes, and a line that says which one it is.
#pragma once

#include <gtk/gtk.h>

#include <functional>
#include <string>
#include <vector>

namespace theme {

bool has_class(GtkWidget* widget, const char* name);
std::vector<std::string> classes_of(GtkWidget* widget);
std::vector<GtkWidget*> children(GtkWidget* widget);

// The first, depth first; null when there is none.
GtkWidget* find(GtkWidget* root, const std::function<bool(GtkWidget*)>& wanted);
GtkWidget* find_class(GtkWidget* root, const char* name);

// Those on screen, parents before children.
std::vector<GtkWidget*> mapped_widgets(GtkWidget* root);

// As a selector would name it, "button#name.class", and with what stands around it.
std::string selector_of(GtkWidget* widget);
std::string describe(GtkWidget* widget);

}  // namespace theme
