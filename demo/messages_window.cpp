// SPDX-License-Identifier: MIT
// Messages: raises notifications of every kind, and shows the tray icon.
#include "notifications.hpp"
#include "tray.hpp"

namespace {

GtkWidget* button_new(const char* label, std::function<void()> pressed) {
    GtkWidget* button = zo_ui_button_new_with_label(label);
    zo_ui_connect_button_click_signal(button, [pressed](GtkWidget*) { pressed(); });
    return button;
}

GtkWidget* switch_row(const char* label, const char* name, bool& value) {
    GtkWidget* row = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 12);
    GtkWidget* control = gtk_switch_new();
    gtk_widget_set_name(control, name);
    gtk_switch_set_active(GTK_SWITCH(control), value);
    gtk_widget_set_valign(control, GTK_ALIGN_CENTER);
    atk_object_set_name(gtk_widget_get_accessible(control), label);
    zo_ui_connect_switch_button_change_signal(
        control, [&value](GtkSwitch* changed) { value = gtk_switch_get_active(changed); });
    gtk_box_pack_start(GTK_BOX(row), demo::text_label(label), TRUE, TRUE, 0);
    gtk_box_pack_end(GTK_BOX(row), control, FALSE, FALSE, 0);
    return row;
}

GtkWidget* kinds_grid(demo::workshop& shop) {
    GtkWidget* grid = gtk_grid_new();
    gtk_grid_set_column_homogeneous(GTK_GRID(grid), TRUE);
    gtk_grid_set_column_spacing(GTK_GRID(grid), 6);
    gtk_grid_set_row_spacing(GTK_GRID(grid), 6);
    int i = 0;
    for (const demo::message& kind : demo::messages()) {
        GtkWidget* button = button_new(kind.label, [&shop, &kind] { demo::raise_message(shop, kind); });
        gtk_grid_attach(GTK_GRID(grid), button, i % 2, i / 2, 1, 1);
        ++i;
    }
    return grid;
}

void build_content(demo::workshop& shop, const zo_window_ptr& window) {
    const auto add = [&window](GtkWidget* child, int padding) {
        zo_window_add_content_child(window, child, false, false, padding, false);
    };
    add(demo::text_label("<b>Raise a notification</b>"), 0);
    add(kinds_grid(shop), 6);
    add(switch_row("On the panel's stack", "on-panel", shop.messages_on_panel), 3);
    add(switch_row("For two seconds only", "leaving", shop.messages_leave), 3);
    add(button_new("Close all", [&shop] { demo::close_messages(shop); }), 3);
    add(button_new("Show the tray icon", [&shop] { demo::show_tray(shop); }), 3);
}

}  // namespace

void demo::make_messages_window(workshop& shop) {
    shop.messages = zo_window_new("messages");
    zo_window_set_title(shop.messages, "Messages");
    log_life_cycle(shop, shop.messages, "messages");
    zo_window_set_window_open_callback(shop.messages, [&shop](zo_window_ptr window) {
        build_content(shop, window);
        shop.log.add("messages", "open");
    });
}
