// SPDX-License-Identifier: MIT
// leaving_program main|exit: shows an indicator, says "shown" when it is there, waits for a click on its only
// entry, and leaves with the icon in the tray.
#include <gtk/gtk.h>
#include <zo_ui/zo_ui.hpp>

#include <cstdlib>
#include <string>

int main(int argc, char** argv) {
    gtk_init(&argc, &argv);
    const bool by_exit = argc > 1 && std::string(argv[1]) == "exit";
    // Never destroyed, like the indicator: a leak to nobody but a program that goes on.
    static const auto& indicator =
        *new zo_appindicator_ptr(zo_appindicator_new("leaving", "Leaving", "icon"));
    zo_appindicator_add_action(indicator, "leave", "Leave", [by_exit](zo_appindicator_ptr, std::string&) {
        if (by_exit) std::exit(0);
        gtk_main_quit();
    });
    zo_appindicator_show(indicator);
    gtk_main();
    return 0;
}
