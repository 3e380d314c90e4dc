// SPDX-License-Identifier: MIT
#include "code_regions.hpp"
#include "controls.hpp"
#include "page.hpp"
#include "texts.hpp"

using demo::_;

namespace {

// begin: widgets
// Square buttons of three sizes; the theme gives a class its icon.
using maker = GtkWidget* (*)(std::string);
constexpr maker sizes[] = {zo_ui_button16_new, zo_ui_button24_new,
                           zo_ui_button32_new};
constexpr const char* icons[] = {
    "icon-add",  "icon-remove",   "icon-check", "icon-search",
    "icon-edit", "icon-settings", "icon-save",  "icon-copy",
    "icon-info", "icon-warning"};

GtkWidget* icon_grid(demo::workshop& shop) {
    GtkWidget* grid = gtk_grid_new();
    for (int row = 0; const maker make : sizes) {
        for (int column = 0; const char* icon : icons) {
            GtkWidget* button = make(icon);
            zo_ui_connect_button_click_signal(
                button, [&shop, icon](GtkWidget*) {
                    shop.log.add("widgets", icon);
                });
            gtk_grid_attach(GTK_GRID(grid),
                            zo_ui_get_centared_widget(button, true),
                            column++, row, 1, 1);
        }
        ++row;
    }
    return grid;
}

// The clipboard's text comes when its owner has answered.
void read_clipboard(demo::workshop& shop) {
    zo_ui_get_clipboard_text(gtk_clipboard_get(GDK_SELECTION_CLIPBOARD),
                             [&shop](GtkClipboard*, const char* text) {
                                 shop.log.add("clipboard",
                                              text ? text : "empty");
                             });
}
// end: widgets

GtkWidget* grid_new(demo::workshop& shop) {
    GtkWidget* grid = icon_grid(shop);
    gtk_grid_set_column_homogeneous(GTK_GRID(grid), TRUE);
    gtk_grid_set_row_spacing(GTK_GRID(grid), 8);
    return grid;
}

GtkWidget* plain_buttons(demo::workshop& shop) {
    GtkWidget* row = demo::buttons_new(
        {{"plain", _("Plain"),
          [&shop] { shop.log.add("widgets", "plain"); }},
         {"suggested", _("Suggested"),
          [&shop] { shop.log.add("widgets", "suggested"); }},
         {"destructive", _("Destructive"),
          [&shop] { shop.log.add("widgets", "destructive"); }}});
    demo::add_class(gtk_grid_get_child_at(GTK_GRID(row), 1, 0),
                    "suggested-action");
    demo::add_class(gtk_grid_get_child_at(GTK_GRID(row), 2, 0),
                    "destructive-action");
    return row;
}

void fill(demo::workshop& shop, GtkWidget* controls) {
    demo::append(controls, demo::heading_new(_("Sized buttons")));
    demo::append(controls, grid_new(shop));
    demo::append(controls, demo::heading_new(_("Buttons")));
    demo::append(controls, plain_buttons(shop));
    demo::append(controls,
                 demo::heading_new(_("What a theme covers besides")));
    GtkWidget* scale =
        gtk_scale_new_with_range(GTK_ORIENTATION_HORIZONTAL, 0, 100, 1);
    gtk_range_set_value(GTK_RANGE(scale), 40);
    gtk_scale_set_draw_value(GTK_SCALE(scale), FALSE);
    gtk_widget_set_size_request(scale, 180, -1);
    demo::append(controls, demo::row_new(_("Scale"), scale));
    GtkWidget* check = gtk_check_button_new();
    gtk_toggle_button_set_active(GTK_TOGGLE_BUTTON(check), TRUE);
    demo::append(controls, demo::row_new(_("Check box"), check));
    demo::append(
        controls,
        demo::row_new(
            _("Entry"),
            demo::entry_new("sample-entry", "", [&shop](auto text) {
                shop.log.add("widgets", "entry: " + text);
            })));
    demo::append(controls, demo::heading_new(_("Clipboard")));
    demo::append(controls,
                 demo::buttons_new(
                     {{"read-clipboard", _("Log the clipboard's text"),
                       [&shop] { read_clipboard(shop); }}},
                     1));
}

}  // namespace

const demo::page demo::widgets_page{
    "widgets",
    N_("Look"),
    N_("Widgets and tools"),
    N_("Small parts that carry the theme's classes."),
    code::widgets,
    fill,
};
