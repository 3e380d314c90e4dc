// SPDX-License-Identifier: MIT
#include "fuzz/calls_widgets.hpp"

#include <functional>

namespace {

std::vector<GtkWidget*> children(GtkWidget* widget) {
    std::vector<GtkWidget*> found;
    if (GTK_IS_CONTAINER(widget))
        gtk_container_forall(
            GTK_CONTAINER(widget),
            [](GtkWidget* child, gpointer all) {
                static_cast<std::vector<GtkWidget*>*>(all)->push_back(child);
            },
            &found);
    return found;
}

GtkWidget* find(GtkWidget* root, const std::function<bool(GtkWidget*)>& wanted) {
    if (!root || wanted(root)) return root;
    for (GtkWidget* child : children(root))
        if (GtkWidget* found = find(child, wanted)) return found;
    return nullptr;
}

}  // namespace

bool fuzz::has_class(GtkWidget* widget, const std::string& name) {
    return gtk_style_context_has_class(gtk_widget_get_style_context(widget), name.c_str());
}

std::vector<GtkWidget*> fuzz::toplevels(const std::string& style_class) {
    std::vector<GtkWidget*> found;
    GList* all = gtk_window_list_toplevels();
    for (GList* item = all; item; item = item->next)
        if (!gtk_widget_in_destruction(GTK_WIDGET(item->data)) &&
            has_class(GTK_WIDGET(item->data), style_class))
            found.push_back(GTK_WIDGET(item->data));
    g_list_free(all);
    return found;
}

GtkWidget* fuzz::find_class(GtkWidget* root, const std::string& style_class) {
    return find(root, [&](GtkWidget* widget) { return has_class(widget, style_class); });
}

GtkWidget* fuzz::find_button(GtkWidget* root, const std::string& name) {
    return find(root, [&](GtkWidget* widget) {
        return GTK_IS_BUTTON(widget) && name == gtk_widget_get_name(widget);
    });
}

GtkWidget* fuzz::find_toplevel(const std::string& style_class, bool tool_menu) {
    for (GtkWidget* found : toplevels(style_class))
        if (has_class(found, "tool-menu") == tool_menu) return found;
    return nullptr;
}

std::vector<GtkWidget*> fuzz::menu_items() {
    std::vector<GtkWidget*> items;
    GList* all = gtk_window_list_toplevels();
    for (GList* item = all; item; item = item->next) {
        GtkWidget* const child = gtk_bin_get_child(GTK_BIN(item->data));
        if (!child || !GTK_IS_MENU(child)) continue;
        for (GtkWidget* entry : children(child)) items.push_back(entry);
    }
    g_list_free(all);
    return items;
}

fuzz::task_buttons fuzz::find_task(const std::string& window_id) {
    for (GtkWidget* panel : toplevels("zo-manager")) {
        task_buttons found;
        GtkWidget* row = find_class(panel, "manager-taskbox-center");
        if (!row) continue;
        GList* paddings = gtk_container_get_children(GTK_CONTAINER(row));
        for (GList* item = paddings; item; item = item->next) {
            GtkWidget* button = find(GTK_WIDGET(item->data), [](GtkWidget* w) { return GTK_IS_BUTTON(w); });
            if (found.task && !found.close) found.close = button;
            if (button && window_id == gtk_widget_get_name(button)) found.task = button;
        }
        g_list_free(paddings);
        if (found.task) return found;
    }
    return {};
}

std::vector<std::vector<std::string>> fuzz::task_rows() {
    std::vector<std::vector<std::string>> rows;
    for (GtkWidget* panel : toplevels("zo-manager")) {
        GtkWidget* row = find_class(panel, "manager-taskbox-center");
        if (!row) continue;
        std::vector<std::string> names;
        GList* paddings = gtk_container_get_children(GTK_CONTAINER(row));
        for (GList* item = paddings; item; item = item->next)
            if (GtkWidget* button =
                    find(GTK_WIDGET(item->data), [](GtkWidget* w) { return GTK_IS_BUTTON(w); }))
                names.push_back(gtk_widget_get_name(button));
        g_list_free(paddings);
        rows.push_back(names);
    }
    return rows;
}
