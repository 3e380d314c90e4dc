// SPDX-License-Identifier: MIT
// The panel: a launcher at the left, the active window's title and a
// clock at the right, a toolbar when asked for.
#include "active_title.hpp"
#include "controls.hpp"
#include "texts.hpp"
#include "workshop.hpp"

#include <ctime>

using demo::_;
using demo::N_;

namespace {

GtkWidget* launcher_new(demo::workshop& shop) {
    struct entry {
        const char* name;
        const char* label;
        zo_window_ptr demo::workshop::*window;
    };
    static constexpr entry entries[] = {
        {"gallery", N_("Gallery"), &demo::workshop::gallery},
        {"studio", N_("Studio"), &demo::workshop::studio},
        {"notes", N_("Notes"), &demo::workshop::notes},
    };
    GtkWidget* menu = gtk_menu_new();
    for (const entry& row : entries) {
        GtkWidget* item = gtk_menu_item_new_with_label(_(row.label));
        zo_ui_connect_menuitem_click_signal(
            item, [&shop, &row](GtkMenuItem*) {
                shop.log.add("panel", std::string("launch: ") + row.name);
                demo::summon(shop, shop.*row.window);
            });
        gtk_menu_shell_append(GTK_MENU_SHELL(menu), item);
    }
    gtk_widget_show_all(menu);
    GtkWidget* button = gtk_menu_button_new();
    gtk_button_set_label(GTK_BUTTON(button), _("Windows"));
    gtk_widget_set_name(button, "launcher");
    gtk_menu_button_set_popup(GTK_MENU_BUTTON(button), menu);
    return button;
}

std::string time_of_day() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char text[16];
    return {text, std::strftime(text, sizeof text, "%H:%M", &local)};
}

GtkWidget* clock_new() {
    GtkWidget* label = gtk_label_new("");
    gtk_widget_set_name(label, "clock");
    gtk_widget_set_margin_start(label, 8);
    gtk_widget_set_margin_end(label, 12);
    constexpr unsigned long second = 1000;
    demo::keep_fresh(label, second, [label] {
        gtk_label_set_text(GTK_LABEL(label), time_of_day().c_str());
    });
    return label;
}

}  // namespace

void demo::make_panel(workshop& shop) {
    shop.panel = zo_window_manager_new("panel");
    zo_window_manager_on_open(
        shop.panel, [&shop](zo_window_manager_ptr panel) {
            zo_window_manager_add_widget_left(panel, launcher_new(shop));
            zo_window_manager_add_widget_right(panel, active_title_new());
            zo_window_manager_add_widget_right(panel, clock_new());
            shop.log.add("panel", "open");
        });
    zo_window_manager_on_show(shop.panel, [&shop](zo_window_manager_ptr) {
        shop.log.add("panel", "show");
    });
    zo_window_manager_on_hide(shop.panel, [&shop](zo_window_manager_ptr) {
        shop.log.add("panel", "hide");
    });
    zo_window_manager_on_close(shop.panel,
                               [&shop](zo_window_manager_ptr) {
                                   shop.toolbar = nullptr;
                                   shop.log.add("panel", "close");
                               });
}
