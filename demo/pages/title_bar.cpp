// SPDX-License-Identifier: MIT
// The code of this page is the studio's.
#include "code_regions.hpp"
#include "controls.hpp"
#include "page.hpp"
#include "texts.hpp"

using demo::_;
using demo::N_;

namespace {

void fill(demo::workshop& shop, GtkWidget* controls) {
    demo::append(controls,
                 demo::buttons_new(
                     {{"summon", _("Open the studio"),
                       [&shop] { demo::summon(shop, shop.studio); }}},
                     1));
    demo::append(controls,
                 demo::toggle_new(
                     "refuse-to-close", _("Samples refuse to close"),
                     shop.ask_before_closing,
                     [&shop](bool on) { shop.ask_before_closing = on; }));
    demo::append(controls,
                 demo::heading_new(_("Buttons of the title bar")));
    struct meaning {
        const char* icon;
        const char* text;
    };
    static constexpr meaning meanings[] = {
        {"title-exit", N_("asks to leave the application")},
        {"title-hint", N_("asks for help")},
        {"title-shoot", N_("hands over a picture of the window")},
        {"title-back", N_("goes one step back")},
        {"title-menu", N_("opens the tool menu, which a handler fills")},
        {"title-minimize", N_("hides the window")},
        {"title-close",
         N_("closes the window, unless a callback refuses")},
    };
    GtkWidget* grid = gtk_grid_new();
    gtk_grid_set_column_spacing(GTK_GRID(grid), 10);
    gtk_grid_set_row_spacing(GTK_GRID(grid), 8);
    int row = 0;
    for (const meaning& entry : meanings) {
        GtkWidget* icon = zo_ui_button16_new(entry.icon);
        gtk_widget_set_can_focus(icon, FALSE);
        gtk_widget_set_valign(icon, GTK_ALIGN_CENTER);
        GtkWidget* text = gtk_label_new(_(entry.text));
        gtk_label_set_xalign(GTK_LABEL(text), 0);
        gtk_label_set_line_wrap(GTK_LABEL(text), TRUE);
        gtk_grid_attach(GTK_GRID(grid), icon, 0, row, 1, 1);
        gtk_grid_attach(GTK_GRID(grid), text, 1, row++, 1, 1);
    }
    demo::append(controls, grid);
}

}  // namespace

const demo::page demo::title_bar_page{
    "title-bar",
    N_("Windows"),
    N_("Title bar"),
    N_("What its buttons ask goes to callbacks of the application."),
    code::title_bar,
    fill,
};
