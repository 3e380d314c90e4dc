// SPDX-License-Identifier: MIT
// The first window: a text, a button, and a title that follows the button.
#include <zo_ui/zo_ui.hpp>

namespace {

void fill(const zo_window_ptr& window) {
    GtkWidget* label = gtk_label_new("This window is drawn by the theme, its title bar too.");
    GtkWidget* button = zo_ui_button_new_with_label("Press me");
    zo_ui_connect_button_click_signal(button, [window, presses = 0](GtkWidget*) mutable {
        zo_window_set_title(window, "Pressed: " + std::to_string(++presses));
    });
    zo_window_add_content_child(window, label, false, false, 6, false);
    zo_window_add_content_child(window, zo_ui_get_centared_widget(button, true), false, false, 6, false);
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

    zo_window_ptr window = zo_window_new("first");
    zo_window_set_title(window, "Hello");
    zo_window_set_window_open_callback(window, fill);
    zo_window_set_window_close_callback(window, [](zo_window_ptr) { gtk_main_quit(); });
    zo_window_open(window);
    zo_window_show(window);
    zo_window_activate(window);
    gtk_main();

    zo_window_destroy(window);
    zo_system_service_end();  // runs what is posted, the window's end among it
    zo_theme_uninit();
}
