// SPDX-License-Identifier: MIT
// The three properties that a manager keeps in each of its windows.
#pragma once

#include <zo_core/zo_property_access_p.hpp>
#include <zo_ui/zo_handles.hpp>

#include <gtk/gtk.h>
#include <functional>
#include <unordered_map>
#include <utility>

namespace zo {

template <>
struct type_text<GtkWidget*> {
    static constexpr const char* value = "GtkWidget*";
};
template <>
struct type_text<std::function<void(GtkWidget*)>*> {
    static constexpr const char* value = "std::function<void(GtkWidget*)>*";
};

enum class task_role { button, close };

// Whose task a widget of the row is.
using task_map = std::unordered_map<GtkWidget*, std::pair<const _zo_window*, task_role>>;

struct task {
    GtkWidget* button = nullptr;
    GtkWidget* close = nullptr;
    std::function<void(GtkWidget*)>* click = nullptr;  // owned by the manager's side
};

// Creates the properties where they do not exist, with both widgets null; an existing click handler stays.
void join_task(const zo_window_ptr& window);

// Each reads what its caller acts on, and reports what of that is missing: everything, the two widgets, or
// the button that shows the title. The last gives the close button too, if there is one.
task read_task(const zo_window_ptr& window);
task read_task_buttons(const zo_window_ptr& window);
task read_titled_task(const zo_window_ptr& window);
void write_task_button(const zo_window_ptr& window, GtkWidget* button);
void write_task_close(const zo_window_ptr& window, GtkWidget* button);
void write_task_click(const zo_window_ptr& window, std::function<void(GtkWidget*)>* click);

}  // namespace zo
