// SPDX-License-Identifier: MIT
// An icon in the desktop's tray, with a menu. Entries are sorted by their names, hence the numbers.
#include <zo_ui/zo_ui.hpp>

namespace {

void show_note() {
    zo_notification_ptr note = zo_notification_new();
    zo_notification_set_title(note, "From the tray");
    zo_notification_set_content(note, "The icon's menu has called.");
    zo_notification_set_timeout(note, 5000);
    zo_notification_open_show(note);
}

}  // namespace

int main(int argc, char** argv) {
    gtk_init(&argc, &argv);
    zo_ui_init();
    GError* error = nullptr;
    zo_theme_set_theme_path(zo_theme_get_system_path());
    zo_theme_use_theme("brevant", error);
    if (error) g_printerr("no theme: %s\n", error->message);
    g_clear_error(&error);

    zo_appindicator_ptr tray = zo_appindicator_new("zo-example", "Example", "applications-graphics");
    zo_appindicator_add_action(tray, "1-note", "Show a note",
                               [](zo_appindicator_ptr, std::string&) { show_note(); });
    zo_appindicator_add_action(tray, "2-quit", "Quit",
                               [](zo_appindicator_ptr, std::string&) { gtk_main_quit(); });
    zo_appindicator_show(tray);
    gtk_main();

    zo_appindicator_to_object(tray)->destroy("tray", __LINE__);
    zo_system_service_end();
    zo_theme_uninit();
}
