// SPDX-License-Identifier: MIT
// own_theme [FOLDER]: a window in a theme of the application's own, FOLDER/dusk/style.css.
#include <zo_ui/zo_ui.hpp>

namespace {

void fill(const zo_window_ptr& window) {
    GtkWidget* label = gtk_label_new("Classes and names are addressed by the sheet.");
    GtkWidget* accept = zo_ui_button_new_with_label("Accept");
    gtk_style_context_add_class(gtk_widget_get_style_context(accept), "accept");
    zo_ui_connect_button_click_signal(accept, [window](GtkWidget*) { zo_window_close(window); });
    zo_window_add_content_child(window, label, true, true, 8, false);
    zo_window_add_content_child(window, accept, false, false, 0, true);
}

}  // namespace

int main(int argc, char** argv) {
    gtk_init(&argc, &argv);
    zo_ui_init();
    zo_theme_set_theme_path(argc > 1 ? argv[1] : "examples/themes/");  // with the last slash
    GError* error = nullptr;
    zo_theme_use_theme("dusk", error);
    if (!error) zo_theme_add_css_permanent("accept.css", error);  // stays, whatever theme is used later
    if (error) {
        g_printerr("own_theme: %s\n", error->message);
        g_error_free(error);
        return 1;
    }

    zo_window_ptr window = zo_window_new("dusk-window");
    zo_window_set_title(window, "Dusk");
    zo_window_set_enable_title_back(window, true);
    zo_window_set_window_open_callback(window, fill);
    zo_window_set_window_close_callback(window, [](zo_window_ptr) { gtk_main_quit(); });
    zo_window_open(window);
    zo_window_show(window);
    gtk_main();

    zo_window_destroy(window);
    zo_system_service_end();
    zo_theme_uninit();
}
