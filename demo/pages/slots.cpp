// SPDX-License-Identifier: MIT
#include "code_regions.hpp"
#include "controls.hpp"
#include "page.hpp"
#include "texts.hpp"

using demo::_;
using demo::N_;

namespace {

// begin: slots
// Widgets at both ends of the panel's row; a box is taken out again.
struct slot {
    const char* name;
    const char* label;
    bool (*add)(zo_window_manager_ptr, GtkWidget*);
    bool (*remove)(zo_window_manager_ptr, GtkWidget*);
};
constexpr slot slots[] = {
    {"add-left", N_("At the start"), zo_window_manager_add_widget_left,
     zo_window_manager_remove_widget_left},
    {"add-right", N_("At the end"), zo_window_manager_add_widget_right,
     zo_window_manager_remove_widget_right},
};

void fill_slot(demo::workshop& shop, const slot& place) {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    GtkWidget* button = zo_ui_button_new_with_label(_("Remove me"));
    gtk_widget_set_name(button,
                        (std::string("remove-") + place.name).c_str());
    gtk_container_add(GTK_CONTAINER(box), button);
    zo_ui_connect_button_click_signal(button, [&shop, &place,
                                               box](GtkWidget*) {
        const bool removed = place.remove(shop.panel, box);
        shop.log.add("panel", std::string(place.name) +
                                  (removed ? ": removed" : ": refused"));
    });
    const bool added = place.add(shop.panel, box);
    gtk_widget_show_all(box);
    shop.log.add("panel", std::string(place.name) +
                              (added ? ": added" : ": refused"));
    zo_window_manager_extend(shop.panel);
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
                 demo::heading_new(_("Add a widget to the row")));
    std::vector<demo::button_text> places;
    for (const slot& place : slots)
        places.push_back({place.name, _(place.label),
                          [&shop, &place] { fill_slot(shop, place); }});
    demo::append(controls, demo::buttons_new(places, 2));
    demo::append(
        controls,
        demo::note_new(_(
            "The panel shows it, and clicking it takes it away again.")));
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
