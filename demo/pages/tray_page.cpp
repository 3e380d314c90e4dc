// SPDX-License-Identifier: MIT
// The code of this page is the tray's own.
#include "code_regions.hpp"
#include "controls.hpp"
#include "page.hpp"
#include "texts.hpp"
#include "tray.hpp"

using demo::_;

namespace {

void fill(demo::workshop& shop, GtkWidget* controls) {
    demo::append(controls,
                 demo::buttons_new({{"show-tray", _("Show the icon"),
                                     [&shop] {
                                         demo::show_tray(shop);
                                         shop.log.add("tray", "show");
                                     }},
                                    {"remove-tray", _("Take it away"),
                                     [&shop] {
                                         demo::remove_tray(shop);
                                         shop.log.add("tray", "destroy");
                                     }}},
                                   2));
    demo::append(controls, demo::heading_new(_("State")));
    demo::append(controls,
                 demo::facts_new({
                     {_("Shown"),
                      [&shop] { return shop.tray ? _("yes") : _("no"); }},
                     {_("Title"), [] { return _("Workshop"); }},
                     {_("Name"), [] { return demo::tray_name; }},
                     {_("Icon"), [] { return demo::tray_icon; }},
                 }));
    demo::append(
        controls,
        demo::note_new(
            _("The menu's entries stand in the order of their names. The "
              "tray itself belongs to the desktop: without one the icon "
              "waits until one comes.")));
}

}  // namespace

const demo::page demo::tray_page{
    "tray",          N_("Messages"),
    N_("Tray icon"), N_("An icon with a menu, in the desktop's tray."),
    code::tray,      fill,
};
