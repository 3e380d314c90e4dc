// SPDX-License-Identifier: MIT
// Widgets of the library found from outside.
#pragma once

#include <gtk/gtk.h>

#include <string>
#include <vector>

namespace fuzz {

bool has_class(GtkWidget* widget, const std::string& name);

// Toplevels and popups with a style class, without those that are on their way out.
std::vector<GtkWidget*> toplevels(const std::string& style_class);

// Depth first; null when there is none.
GtkWidget* find_class(GtkWidget* root, const std::string& style_class);
GtkWidget* find_button(GtkWidget* root, const std::string& name);

// A window, or its tool menu, which has the window's class, too. Null when there is none.
GtkWidget* find_toplevel(const std::string& style_class, bool tool_menu);

// Of the indicator's menu, in their order.
std::vector<GtkWidget*> menu_items();

// In the order of title_button.
constexpr const char* title_classes[] = {"title-exit",     "title-hint", "title-shoot", "title-close",
                                         "title-minimize", "title-menu", "title-back"};

struct task_buttons {
    GtkWidget* task = nullptr;
    GtkWidget* close = nullptr;  // the next one in the row
};
task_buttons find_task(const std::string& window_id);

// For each panel the names of its buttons in their order: those of tasks are the windows' ids.
std::vector<std::vector<std::string>> task_rows();

}  // namespace fuzz
