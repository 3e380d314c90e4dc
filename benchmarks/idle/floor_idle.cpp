// SPDX-License-Identifier: MIT
// The same panel, windows, notification and icon in plain calls of the toolkit.
#include <desktop/desktop.hpp>
#include <notifications/floor_popup.hpp>
#include <panel/floor_tree.hpp>
#include <windows/floor_tree.hpp>

#include <libayatana-appindicator/app-indicator.h>

namespace {

void show_panel_with_windows() {
    gdk_monitor_get_workarea(gdk_display_get_monitor(gdk_display_get_default(), 0), &floor_window::workarea);
    GtkWidget* row = floor_panel::row_new();
    GtkWidget* panel = floor_panel::panel_new(row);
    for (int i = 0; i < bench::started_windows; ++i) {
        floor_panel::add_window(row, i);
        floor_window::open_window(i);
    }
    gtk_widget_show_all(panel);
}

void show_icon() {
    AppIndicator* const icon =
        app_indicator_new("bench", "applications-system", APP_INDICATOR_CATEGORY_APPLICATION_STATUS);
    GtkWidget* menu = gtk_menu_new();
    GtkWidget* item = gtk_menu_item_new_with_label("Quit");
    gtk_menu_shell_append(GTK_MENU_SHELL(menu), item);
    gtk_widget_show_all(menu);
    app_indicator_set_menu(icon, GTK_MENU(menu));
    app_indicator_set_title(icon, "Bench");
    app_indicator_set_status(icon, APP_INDICATOR_STATUS_ACTIVE);
}

}  // namespace

int main() {
    bench::begin();
    show_panel_with_windows();
    floor_popup::show("", "Something to read", floor_popup::top);
    show_icon();
    gtk_main();
}
