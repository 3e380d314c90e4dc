// SPDX-License-Identifier: MIT
// A window that does not close while its text is unsaved, whether its title button or the desktop asks.
#include <zo_ui/zo_ui.hpp>

namespace {

struct document {
    bool saved = true;
    GtkWidget* hint = nullptr;  // null without a window
};

void fill(document& text, const zo_window_ptr& window) {
    GtkWidget* entry = gtk_entry_new();
    gtk_entry_set_placeholder_text(GTK_ENTRY(entry), "Write something");
    GtkWidget* save = zo_ui_button_new_with_label("Save");
    text.hint = gtk_label_new("Everything is saved.");
    zo_ui_connect_widget_destroy(text.hint, [&text] { text.hint = nullptr; });
    zo_ui_connect_editable_text_change_signal(entry, [&text](GtkEditable*) {
        text.saved = false;
        gtk_label_set_text(GTK_LABEL(text.hint), "There are changes.");
    });
    zo_ui_connect_button_click_signal(save, [&text](GtkWidget*) {
        text.saved = true;
        gtk_label_set_text(GTK_LABEL(text.hint), "Everything is saved.");
    });
    for (GtkWidget* child : {entry, text.hint, save})
        zo_window_add_content_child(window, child, false, false, 6, false);
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

    document text;
    zo_window_ptr window = zo_window_new("editor");
    zo_window_set_title(window, "Editor");
    zo_window_set_window_open_callback(window, [&text](zo_window_ptr opened) { fill(text, opened); });
    zo_window_set_window_close_request_callback(window, [&text](zo_window_ptr) {
        if (!text.saved) gtk_label_set_text(GTK_LABEL(text.hint), "Save the text before you close.");
        return !text.saved;  // true keeps the window open
    });
    zo_window_set_window_close_callback(window, [](zo_window_ptr) { gtk_main_quit(); });
    zo_window_open(window);
    zo_window_show(window);
    gtk_main();

    zo_window_destroy(window);
    zo_system_service_end();
    zo_theme_uninit();
}
