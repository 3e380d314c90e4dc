// SPDX-License-Identifier: MIT
// The application's own widgets and toolbars on the panel.
#include <zo_ui/zo_window_manager/manager_p.hpp>

#include <zo_ui/toolkit/style_p.hpp>
#include <zo_ui/zo_ui_screen.hpp>
#include <zo_ui/zo_ui_widgets.hpp>

bool _zo_window_manager::add_to_region(GtkWidget* region, GtkWidget* widget) {
    if (!is_opened() || !region || !GTK_IS_WIDGET(widget)) return false;
    if (gtk_widget_get_parent(widget) || gtk_widget_is_toplevel(widget)) return false;
    gtk_box_pack_start(GTK_BOX(region), zo_ui_get_left_padding_widget(widget, true), FALSE, FALSE, 0);
    return true;
}

// Only a box is taken out, with its padding (test "ALabelStaysWhereItIs").
bool _zo_window_manager::remove_from_region(GtkWidget* region, GtkWidget* widget) {
    if (!is_opened() || !region || !GTK_IS_BOX(widget)) return false;
    GtkWidget* padding = gtk_widget_get_parent(widget);
    if (!padding || gtk_widget_get_parent(padding) != region) return false;
    gtk_container_remove(GTK_CONTAINER(region), padding);
    return true;
}

bool _zo_window_manager::add_widget_left(GtkWidget* widget) {
    return add_to_region(widgets_.taskbox_left, widget);
}

bool _zo_window_manager::remove_widget_left(GtkWidget* widget) {
    return remove_from_region(widgets_.taskbox_left, widget);
}

bool _zo_window_manager::add_widget_right(GtkWidget* widget) {
    return add_to_region(widgets_.taskbox_right, widget);
}

bool _zo_window_manager::remove_widget_right(GtkWidget* widget) {
    return remove_from_region(widgets_.taskbox_right, widget);
}

bool _zo_window_manager::add_toolbar(GtkBox* toolbar) {
    if (!is_opened() || !widgets_.wrapper || !GTK_IS_BOX(toolbar)) return false;
    GtkWidget* widget = GTK_WIDGET(toolbar);
    if (gtk_widget_get_parent(widget)) return false;
    gtk_widget_set_size_request(widget, zo_ui_screen_width(), -1);
    zo::add_class(widget, "manager-toolbar");
    gtk_box_pack_start(GTK_BOX(widgets_.wrapper), widget, FALSE, FALSE, 0);
    return true;
}

bool _zo_window_manager::remove_toolbar(GtkBox* toolbar) {
    if (!is_opened() || !widgets_.wrapper || !GTK_IS_BOX(toolbar)) return false;
    GtkWidget* widget = GTK_WIDGET(toolbar);
    if (widget == widgets_.taskbox || gtk_widget_get_parent(widget) != widgets_.wrapper) return false;
    gtk_container_remove(GTK_CONTAINER(widgets_.wrapper), widget);
    return true;
}
