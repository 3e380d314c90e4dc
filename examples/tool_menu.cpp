// SPDX-License-Identifier: MIT
// A window with a tool menu and a photo button: both are entries of the title bar that call back.
#include <zo_ui/zo_ui.hpp>

namespace {

void fill(const zo_window_ptr& window) {
    GtkWidget* text = gtk_text_view_new();
    gtk_widget_set_name(text, "note");
    gtk_widget_set_size_request(text, 360, 140);
    gtk_text_buffer_set_text(gtk_text_view_get_buffer(GTK_TEXT_VIEW(text)), "Milk\nBread\nTwo stamps", -1);
    zo_window_add_content_child(window, text, true, true, 0, false);
}

// Called each time the menu opens. A press of one of its buttons runs the callback and closes the menu.
void fill_menu(const zo_window_ptr& window, GtkGrid* grid) {
    static constexpr const char* titles[] = {"Shopping", "Travel", "Ideas"};
    for (int row = 0; const char* title : titles) {
        GtkWidget* button = gtk_button_new_with_label(title);
        zo_ui_connect_button_click_signal(
            button, [window, title](GtkWidget*) { zo_window_set_title(window, title); });
        gtk_grid_attach(grid, button, 0, row++, 1, 1);
    }
}

void save(const zo_window_ptr& window, GdkPixbuf* photo) {
    GError* error = nullptr;
    const bool saved = photo && gdk_pixbuf_save(photo, "notes.png", "png", &error, nullptr);
    zo_window_set_title(window, saved ? "Saved as notes.png" : error ? error->message : "No picture");
    g_clear_error(&error);
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

    zo_window_ptr window = zo_window_new("notes");
    zo_window_set_title(window, "Notes");
    zo_window_set_enable_title_menu(window, true);
    zo_window_set_enable_title_save_to_photo(window, true);
    zo_window_set_window_open_callback(window, fill);
    zo_window_set_menu_create_handler(window, fill_menu);
    zo_window_set_save_to_photo_handler(window, save);
    zo_window_set_window_close_callback(window, [](zo_window_ptr) { gtk_main_quit(); });
    zo_window_open(window);
    zo_window_show(window);
    gtk_main();

    zo_window_destroy(window);
    zo_system_service_end();
    zo_theme_uninit();
}
