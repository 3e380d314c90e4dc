// SPDX-License-Identifier: MIT
#include "desktops/widgets.hpp"

#include <gdk/gdkx.h>

#include <sstream>

namespace {

bool has_class(GtkWidget* widget, const std::string& name) {
    return gtk_style_context_has_class(gtk_widget_get_style_context(widget), name.c_str());
}

bool is_named(GtkWidget* widget, const std::string& name) {
    return name[0] == '.' ? has_class(widget, name.substr(1)) : name == gtk_widget_get_name(widget);
}

}  // namespace

GtkWidget* driver::named(const std::string& name) {
    GtkWidget* found = nullptr;
    GList* all = gtk_window_list_toplevels();
    for (GList* item = all; item; item = item->next)
        if (is_named(GTK_WIDGET(item->data), name)) found = GTK_WIDGET(item->data);
    g_list_free(all);
    return found;
}

GtkWidget* driver::part(GtkWidget* root, const std::string& style_class) {
    if (!root || has_class(root, style_class)) return root;
    if (!GTK_IS_CONTAINER(root)) return nullptr;
    GtkWidget* found = nullptr;
    GList* children = gtk_container_get_children(GTK_CONTAINER(root));
    for (GList* item = children; item && !found; item = item->next)
        found = part(GTK_WIDGET(item->data), style_class);
    g_list_free(children);
    return found;
}

std::string driver::place(GtkWidget* widget) {
    GdkWindow* native = widget ? gtk_widget_get_window(widget) : nullptr;
    if (!native || !gtk_widget_get_mapped(widget)) return "-";
    int x = 0;
    int y = 0;
    int left = 0;
    int top = 0;
    GtkWidget* root = gtk_widget_get_toplevel(widget);
    gtk_widget_translate_coordinates(widget, root, 0, 0, &x, &y);
    gdk_window_get_origin(gtk_widget_get_window(root), &left, &top);
    std::ostringstream text;
    text << left + x << " " << top + y << " " << gtk_widget_get_allocated_width(widget) << " "
         << gtk_widget_get_allocated_height(widget);
    return text.str();
}

std::string driver::xid(const std::string& name) {
    GtkWidget* widget = named(name);
    GdkWindow* native = widget ? gtk_widget_get_window(widget) : nullptr;
    return native ? std::to_string(gdk_x11_window_get_xid(native)) : "-";
}
