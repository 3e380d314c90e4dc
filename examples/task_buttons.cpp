// SPDX-License-Identifier: MIT
// Three windows on one panel. Each gets a task button, which hides the window and brings it back, and a
// small button that closes it. The program ends with the last window.
#include <zo_ui/zo_ui.hpp>

namespace {

struct kind {
    const char* id;
    const char* title;
    int x, y;
};
constexpr kind kinds[] = {{"mail", "Mail", 40, 80}, {"music", "Music", 220, 210}, {"maps", "Maps", 400, 340}};

void open_window(const kind& row, const zo_window_manager_ptr& panel, int& open) {
    zo_window_ptr window = zo_window_new(row.id);
    zo_window_set_title(window, row.title);
    zo_window_set_window_manager(window, panel);
    zo_window_set_window_open_callback(window, [&row](zo_window_ptr opened) {
        GtkWidget* label = gtk_label_new((std::string("Press \"") + row.title + "\" in the panel.").c_str());
        zo_window_add_content_child(opened, label, false, false, 24, false);
    });
    zo_window_set_window_close_callback(window, [&open](zo_window_ptr) {
        if (--open == 0) gtk_main_quit();
    });
    zo_window_open(window);
    zo_window_move(window, zo_ui_workarea_x() + row.x, zo_ui_workarea_y() + row.y);
    zo_window_show(window);
    ++open;
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

    zo_window_manager_ptr panel = zo_window_manager_new("");
    zo_window_manager_set_keep_extended(panel, true);
    zo_window_manager_open(panel);
    zo_window_manager_show(panel);

    int open = 0;
    for (const kind& row : kinds) open_window(row, panel, open);
    gtk_main();

    zo_window_manager_close(panel);
    zo_window_manager_destroy(panel);  // ends its windows, too
    zo_system_service_end();
    zo_theme_uninit();
}
