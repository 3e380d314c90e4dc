// SPDX-License-Identifier: MIT
#include "code_regions.hpp"
#include "controls.hpp"
#include "page.hpp"
#include "texts.hpp"

using demo::_;
using demo::N_;

namespace {

// begin: slots
// A widget at the left or right of the panel's row, and its way out
// again.
void add_left(demo::workshop& shop) {
    GtkWidget* button = zo_ui_button_new_with_label(_("At the start"));
    zo_window_manager_add_widget_left(shop.panel, button);
    zo_ui_connect_button_click_signal(
        button, [&shop](GtkWidget* clicked) {
            zo_window_manager_remove_widget_left(shop.panel, clicked);
            shop.log.add("panel", "removed at the left");
        });
    gtk_widget_show(button);
}

void add_right(demo::workshop& shop) {
    GtkWidget* button = zo_ui_button_new_with_label(_("At the end"));
    zo_window_manager_add_widget_right(shop.panel, button);
    zo_ui_connect_button_click_signal(
        button, [&shop](GtkWidget* clicked) {
            zo_window_manager_remove_widget_right(shop.panel, clicked);
            shop.log.add("panel", "removed at the right");
        });
    gtk_widget_show(button);
}

// A window is a task of the panel that it has joined.
void join(demo::workshop& shop, const zo_window_ptr& window, bool on) {
    zo_window_set_window_manager(
        window, on ? shop.panel : zo_window_manager_ptr());
    shop.log.add("panel", on ? "joined" : "left");
}
// end: slots

void hide_or_show_all(demo::workshop& shop, bool (*act)(zo_window_ptr)) {
    for (const zo_window_ptr& window :
         {shop.gallery, shop.studio, shop.notes})
        act(window);
}

GtkBox* toolbar_new(demo::workshop& shop) {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 6);
    struct action {
        const char* label;
        bool (*act)(zo_window_ptr);
    };
    static constexpr action actions[] = {
        {N_("Hide all"), zo_window_hide},
        {N_("Show all"), zo_window_show},
    };
    for (const action& row : actions) {
        GtkWidget* button = gtk_button_new_with_label(_(row.label));
        zo_ui_connect_button_click_signal(
            button, [&shop, &row](GtkWidget*) {
                hide_or_show_all(shop, row.act);
            });
        gtk_box_pack_start(GTK_BOX(box), button, FALSE, FALSE, 0);
    }
    gtk_widget_show_all(box);
    return GTK_BOX(box);
}

void fill(demo::workshop& shop, GtkWidget* controls) {
    demo::append(controls,
                 demo::buttons_new({{"add-left", _("Add at the start"),
                                     [&shop] { add_left(shop); }},
                                    {"add-right", _("Add at the end"),
                                     [&shop] { add_right(shop); }}},
                                   2));
    demo::append(
        controls,
        demo::note_new(
            _("The new button takes itself away when it is clicked.")));
    demo::append(controls,
                 demo::toggle_new(
                     "toolbar", _("Toolbar under the row"), shop.toolbar,
                     [&shop](bool on) { demo::show_toolbar(shop, on); }));
    demo::append(controls, demo::heading_new(_("Tasks")));
    const auto member = [&](const char* name, const char* label,
                            const zo_window_ptr& window) {
        const bool joined =
            zo_window_get_window_manager(window) != nullptr;
        demo::append(controls, demo::toggle_new(name, label, joined,
                                                [&shop, window](bool on) {
                                                    join(shop, window,
                                                         on);
                                                }));
    };
    member("join-studio", _("The studio is a task"), shop.studio);
    member("join-notes", _("The notes are a task"), shop.notes);
    demo::append(
        controls,
        demo::buttons_new({{"summon-studio", _("Open the studio"),
                            [&shop] { demo::summon(shop, shop.studio); }},
                           {"summon-notes", _("Open the notes"),
                            [&shop] { demo::summon(shop, shop.notes); }}},
                          2));
}

}  // namespace

void demo::show_toolbar(workshop& shop, bool on) {
    if (on == (shop.toolbar != nullptr)) return;
    if (on) {
        GtkBox* toolbar = toolbar_new(shop);
        if (zo_window_manager_add_toolbar(shop.panel, toolbar))
            shop.toolbar = toolbar;
    } else if (zo_window_manager_remove_toolbar(shop.panel,
                                                shop.toolbar)) {
        shop.toolbar = nullptr;
    }
}

const demo::page demo::slots_page{
    "slots",
    N_("Panel"),
    N_("Slots and tasks"),
    N_("Widgets and toolbars of your own, and windows as tasks."),
    code::slots,
    fill,
};
