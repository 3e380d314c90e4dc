// SPDX-License-Identifier: MIT
// The same panel, windows, notification and icon in plain calls of the toolkit.
#include <desktop/desktop.hpp>
#include <notifications/floor_popup.hpp>
#include <panel/floor_desktop.hpp>

#include <libayatana-appindicator/app-indicator.h>

namespace {

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
    floor_panel::show_panel_with_windows();
    floor_popup::show("", "Something to read", floor_popup::top);
    show_icon();
    gtk_main();
}
