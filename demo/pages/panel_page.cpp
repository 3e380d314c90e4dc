// SPDX-License-Identifier: MIT
#include "code_regions.hpp"
#include "controls.hpp"
#include "page.hpp"
#include "texts.hpp"

using demo::_;

namespace {

// begin: panel
// A panel that goes takes its windows along. Those that were visible when
// they were saved come back with it.
void save_windows(demo::workshop& shop) {
    for (const zo_window_ptr& window :
         {shop.gallery, shop.studio, shop.notes})
        zo_window_save(window);
}

void come_back(demo::workshop& shop) {
    constexpr unsigned long a_while = 1500;
    zo_system_service_timeout(
        [panel = shop.panel] {
            zo_window_manager_open(panel);
            zo_window_manager_show(panel);
        },
        a_while, "demo", __LINE__);
}

void hide_for_a_while(demo::workshop& shop) {
    save_windows(shop);
    zo_window_manager_hide(shop.panel);
    come_back(shop);
}

void close_for_a_while(demo::workshop& shop) {
    save_windows(shop);
    zo_window_manager_close(shop.panel);
    come_back(shop);
}
// end: panel

std::string yes_or_no(bool value) { return value ? _("yes") : _("no"); }

void fill(demo::workshop& shop, GtkWidget* controls) {
    demo::append(
        controls,
        demo::buttons_new(
            {{"extend", _("Slide it out"),
              [&shop] { zo_window_manager_extend(shop.panel); }},
             {"retract", _("Slide it away"),
              [&shop] { zo_window_manager_retract(shop.panel); }},
             {"hide-panel", _("Hide for a while"),
              [&shop] { hide_for_a_while(shop); }},
             {"close-panel", _("Close for a while"),
              [&shop] { close_for_a_while(shop); }}},
            2));
    demo::append(controls,
                 demo::toggle_new(
                     "keep-extended", _("Stays out"),
                     zo_window_manager_get_keep_extended(shop.panel),
                     [&shop](bool on) {
                         zo_window_manager_set_keep_extended(shop.panel,
                                                             on);
                         shop.log.add("panel", on ? "keep extended: on"
                                                  : "keep extended: off");
                     }));
    demo::append(controls, demo::heading_new(_("State")));
    demo::append(
        controls,
        demo::facts_new({
            {_("Opened"),
             [&shop] {
                 bool opened = false;
                 zo_window_manager_is_opened(shop.panel, &opened);
                 return yes_or_no(opened);
             }},
            {_("Visible"),
             [&shop] {
                 bool visible = false;
                 zo_window_manager_is_visible(shop.panel, &visible);
                 return yes_or_no(visible);
             }},
            {_("Stays out"),
             [&shop] {
                 return yes_or_no(
                     zo_window_manager_get_keep_extended(shop.panel));
             }},
        }));
    demo::append(
        controls,
        demo::note_new(
            _("The panel waits at the upper edge of the screen: point "
              "there. Its lock button keeps it out.")));
}

}  // namespace

const demo::page demo::panel_page{
    "panel",
    N_("Panel"),
    N_("Sliding panel"),
    N_("A row of tasks that slides out under the pointer."),
    code::panel,
    fill,
};
