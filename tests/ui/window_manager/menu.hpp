// SPDX-License-Identifier: MIT
// A button with a menu, used with a real pointer.
#pragma once

#include "ui/window_manager/panel.hpp"

namespace test {

// A button that opens a menu under itself.
inline GtkWidget* menu_button() {
    GtkWidget* menu = gtk_menu_new();
    gtk_menu_shell_append(GTK_MENU_SHELL(menu), gtk_menu_item_new_with_label("entry"));
    gtk_widget_show_all(menu);
    GtkWidget* button = gtk_menu_button_new();
    gtk_button_set_label(GTK_BUTTON(button), "menu");
    gtk_menu_button_set_popup(GTK_MENU_BUTTON(button), menu);
    gtk_widget_show_all(button);
    return button;
}

inline GtkWidget* menu_of(GtkWidget* button) {
    return GTK_WIDGET(gtk_menu_button_get_popup(GTK_MENU_BUTTON(button)));
}

// Opens the menu with a click, and takes it away with the pointer at this height of the screen.
inline void use_menu(GtkWidget* button, int y) {
    click(button);
    ASSERT_TRUE(turn_until([&] { return gtk_widget_get_mapped(menu_of(button)); }));
    move_pointer(zo_ui_screen_x() + 500, y);
    settle_desktop();
    gtk_menu_popdown(GTK_MENU(menu_of(button)));
    ASSERT_TRUE(turn_until([&] { return !gtk_widget_get_mapped(menu_of(button)); }));
    settle_desktop();
}

}  // namespace test
