// SPDX-License-Identifier: MIT
// The icon in the desktop's tray. Its entries are sorted by their names,
// hence the numbers.
#include "tray.hpp"

#include "notifications.hpp"
#include "texts.hpp"

// begin: tray
void demo::show_tray(workshop& shop) {
    if (shop.tray) return;
    shop.tray = zo_appindicator_new(tray_name, _("Workshop"), tray_icon);
    struct entry {
        const char* name;
        const char* label;
        void (*act)(workshop&);
    };
    static constexpr entry entries[] = {
        {"1-open", N_("Open the panel"),
         [](workshop& w) {
             zo_window_manager_open(w.panel);
             zo_window_manager_show(w.panel);
         }},
        {"2-close", N_("Close the panel"),
         [](workshop& w) { zo_window_manager_close(w.panel); }},
        {"3-raise", N_("Raise a notification"),
         [](workshop& w) { raise_message(w, messages()[0]); }},
        {"4-quit", N_("Quit"), [](workshop& w) { quit(w); }},
    };
    for (const entry& row : entries)
        zo_appindicator_add_action(
            shop.tray, row.name, _(row.label),
            [&shop, &row](zo_appindicator_ptr, const std::string& name) {
                shop.log.add("tray", name);
                row.act(shop);
            });
    zo_appindicator_show(shop.tray);
}
// end: tray

void demo::remove_tray(workshop& shop) {
    if (shop.tray)
        zo_appindicator_to_object(shop.tray)->destroy("demo", __LINE__);
    shop.tray.reset();
}
