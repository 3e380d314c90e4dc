// SPDX-License-Identifier: MIT
// The icon in the desktop's tray. Its entries are sorted by their names, hence the numbers.
#include "tray.hpp"

#include "notifications.hpp"

void demo::show_tray(workshop& shop) {
    if (shop.tray) return;
    shop.tray = zo_appindicator_new(tray_name, "Workshop", "applications-graphics");
    struct entry {
        const char* name;
        const char* label;
        void (*act)(workshop&);
    };
    static constexpr entry entries[] = {
        {"1-open", "Open the panel",
         [](workshop& w) {
             zo_window_manager_open(w.panel);
             zo_window_manager_show(w.panel);
         }},
        {"2-close", "Close the panel", [](workshop& w) { zo_window_manager_close(w.panel); }},
        {"3-raise", "Raise a notification", [](workshop& w) { raise_message(w, messages()[0]); }},
        {"4-quit", "Quit", [](workshop& w) { quit(w); }},
    };
    for (const entry& row : entries)
        zo_appindicator_add_action(shop.tray, row.name, row.label,
                                   [&shop, &row](zo_appindicator_ptr, const std::string& name) {
                                       shop.log.add("tray", name);
                                       row.act(shop);
                                   });
    zo_appindicator_show(shop.tray);
}
