// SPDX-License-Identifier: MIT
// The panel: a launcher at the left, the active window's title and a clock at the right, a toolbar when asked
// for.
#include "active_title.hpp"
#include "workshop.hpp"

#include <ctime>

namespace {

GtkWidget* launcher_new(demo::workshop& shop) {
    struct entry {
        const char* label;
        zo_window_ptr demo::workshop::*window;
    };
    static constexpr entry entries[] = {
        {"Notes", &demo::workshop::notes},
        {"Studio", &demo::workshop::studio},
        {"Settings", &demo::workshop::settings},
        {"Messages", &demo::workshop::messages},
    };
    GtkWidget* menu = gtk_menu_new();
    for (const entry& row : entries) {
        GtkWidget* item = gtk_menu_item_new_with_label(row.label);
        zo_ui_connect_menuitem_click_signal(item, [&shop, &row](GtkMenuItem*) {
            shop.log.add("panel", std::string("launch: ") + row.label);
            demo::summon(shop, shop.*row.window);
        });
        gtk_menu_shell_append(GTK_MENU_SHELL(menu), item);
    }
    gtk_widget_show_all(menu);
    GtkWidget* button = gtk_menu_button_new();
    gtk_button_set_label(GTK_BUTTON(button), "Windows");
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

// Ticks as long as its label lives.
struct clock {
    GtkWidget* label;  // null once the panel is closed
    unsigned long timeout = 0;
};

void tick(const std::shared_ptr<clock>& ticking) {
    if (!ticking->label) return;
    gtk_label_set_text(GTK_LABEL(ticking->label), time_of_day().c_str());
    constexpr unsigned long second = 1000;
    ticking->timeout = zo_system_service_timeout([ticking] { tick(ticking); }, second, "demo", __LINE__);
}

GtkWidget* clock_new() {
    GtkWidget* label = gtk_label_new("");
    gtk_widget_set_name(label, "clock");
    gtk_widget_set_margin_start(label, 8);
    gtk_widget_set_margin_end(label, 12);
    const auto ticking = std::make_shared<clock>(clock{label});
    zo_ui_connect_widget_destroy(label, [ticking] {
        ticking->label = nullptr;
        zo_system_service_timeout_clear(ticking->timeout);
    });
    tick(ticking);
    return label;
}

GtkBox* toolbar_new(demo::workshop& shop) {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 6);
    struct action {
        const char* label;
        bool (*act)(zo_window_ptr);
    };
    static constexpr action actions[] = {
        {"Hide all", [](zo_window_ptr window) { return zo_window_hide(window); }},
        {"Show all", [](zo_window_ptr window) { return zo_window_show(window); }},
    };
    for (const action& row : actions) {
        GtkWidget* button = gtk_button_new_with_label(row.label);
        zo_ui_connect_button_click_signal(button, [&shop, &row](GtkWidget*) {
            for (const zo_window_ptr& window : {shop.notes, shop.studio, shop.settings}) row.act(window);
        });
        gtk_box_pack_start(GTK_BOX(box), button, FALSE, FALSE, 0);
    }
    gtk_widget_show_all(box);
    return GTK_BOX(box);
}

}  // namespace

void demo::make_panel(workshop& shop) {
    shop.panel = zo_window_manager_new("panel");
    zo_window_manager_on_open(shop.panel, [&shop](zo_window_manager_ptr panel) {
        zo_window_manager_add_widget_left(panel, launcher_new(shop));
        zo_window_manager_add_widget_right(panel, active_title_new());
        zo_window_manager_add_widget_right(panel, clock_new());
        shop.log.add("panel", "open");
    });
    zo_window_manager_on_show(shop.panel, [&shop](zo_window_manager_ptr) { shop.log.add("panel", "show"); });
    zo_window_manager_on_hide(shop.panel, [&shop](zo_window_manager_ptr) { shop.log.add("panel", "hide"); });
    zo_window_manager_on_close(shop.panel, [&shop](zo_window_manager_ptr) {
        shop.toolbar = nullptr;
        shop.log.add("panel", "close");
    });
}

void demo::show_toolbar(workshop& shop, bool on) {
    if (on == (shop.toolbar != nullptr)) return;
    if (on) {
        GtkBox* toolbar = toolbar_new(shop);
        if (zo_window_manager_add_toolbar(shop.panel, toolbar)) shop.toolbar = toolbar;
    } else if (zo_window_manager_remove_toolbar(shop.panel, shop.toolbar)) {
        shop.toolbar = nullptr;
    }
}
