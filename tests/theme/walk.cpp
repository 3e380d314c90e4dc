// SPDX-License-Identifier: MIT
#include "theme/walk.hpp"

#include <algorithm>

bool theme::has_class(GtkWidget* widget, const char* name) {
    return gtk_style_context_has_class(gtk_widget_get_style_context(widget), name);
}

std::vector<std::string> theme::classes_of(GtkWidget* widget) {
    std::vector<std::string> result;
    GList* names = gtk_style_context_list_classes(gtk_widget_get_style_context(widget));
    for (GList* name = names; name; name = name->next)
        result.emplace_back(static_cast<const char*>(name->data));
    g_list_free(names);
    std::sort(result.begin(), result.end());
    return result;
}

std::vector<GtkWidget*> theme::children(GtkWidget* widget) {
    std::vector<GtkWidget*> result;
    if (!GTK_IS_CONTAINER(widget)) return result;
    gtk_container_forall(
        GTK_CONTAINER(widget),
        [](GtkWidget* child, gpointer data) {
            static_cast<std::vector<GtkWidget*>*>(data)->push_back(child);
        },
        &result);
    return result;
}

GtkWidget* theme::find(GtkWidget* root, const std::function<bool(GtkWidget*)>& wanted) {
    if (!root || wanted(root)) return root;
    for (GtkWidget* child : children(root))
        if (GtkWidget* found = find(child, wanted)) return found;
    return nullptr;
}

GtkWidget* theme::find_class(GtkWidget* root, const char* name) {
    return find(root, [name](GtkWidget* widget) { return has_class(widget, name); });
}

std::vector<GtkWidget*> theme::mapped_widgets(GtkWidget* root) {
    std::vector<GtkWidget*> result{root};
    for (GtkWidget* child : children(root)) {
        if (!gtk_widget_get_mapped(child)) continue;
        const std::vector<GtkWidget*> below = mapped_widgets(child);
        result.insert(result.end(), below.begin(), below.end());
    }
    return result;
}

std::string theme::selector_of(GtkWidget* widget) {
    const char* element = gtk_widget_class_get_css_name(GTK_WIDGET_GET_CLASS(widget));
    std::string result = element;
    const std::string name = gtk_widget_get_name(widget);
    if (name != G_OBJECT_TYPE_NAME(widget)) result += "#" + name;
    for (const std::string& style_class : classes_of(widget)) result += "." + style_class;
    return result;
}

std::string theme::describe(GtkWidget* widget) {
    std::string result = selector_of(widget);
    GtkWidget* const parent = gtk_widget_get_parent(widget);
    if (!parent) return result;
    GtkWidget* const toplevel = gtk_widget_get_toplevel(widget);
    if (parent != toplevel) result = selector_of(parent) + " > " + result;
    return selector_of(toplevel) + " " + result;
}
