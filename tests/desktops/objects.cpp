// SPDX-License-Identifier: MIT
#include "desktops/objects.hpp"

#include "desktops/widgets.hpp"

#include <map>
#include <utility>

namespace {

std::map<std::string, zo_window_ptr> windows;
std::map<std::string, zo_notification_ptr> notifications;
std::string words;
zo_window_manager_ptr panel;
zo_appindicator_ptr tray;

void tell(const std::string& what) { words += (words.empty() ? "" : " ") + what; }

gboolean on_state(GtkWidget*, GdkEventWindowState* event, gpointer) {
    if (event->changed_mask & GDK_WINDOW_STATE_MAXIMIZED)
        tell(event->new_window_state & GDK_WINDOW_STATE_MAXIMIZED ? "maximised" : "unmaximised");
    return FALSE;
}

void on_open(zo_window_ptr window) {
    GtkWidget* button = zo_ui_button_new_with_label("Press me");
    gtk_widget_set_size_request(button, 400, 200);
    zo_ui_connect_button_click_signal(button, [](GtkWidget*) { tell("pressed"); });
    zo_window_add_content_child(window, button, true, false, 12, false);
    // The library's own handlers are connected already, and answer first.
    GtkWidget* const toplevel = gtk_widget_get_toplevel(button);
    g_signal_connect(toplevel, "window-state-event", G_CALLBACK(on_state), nullptr);
    const auto word = [](const char* signal, const char* what, GtkWidget* widget) {
        g_signal_connect_swapped(widget, signal, G_CALLBACK(+[](const char* text) -> gboolean {
                                     tell(text);
                                     return FALSE;
                                 }),
                                 const_cast<char*>(what));
    };
    word("map-event", "mapped", toplevel);
    word("unmap-event", "unmapped", toplevel);
}

void on_menu(zo_window_ptr, GtkGrid* grid) {
    GtkWidget* const entry = gtk_button_new_with_label("Entry");
    g_signal_connect(entry, "clicked", G_CALLBACK(+[] { tell("entry"); }), nullptr);
    gtk_grid_attach(grid, entry, 0, 0, 1, 1);
}

// The title bar has every button, and each tells.
void connect_title(const zo_window_ptr& window) {
    for (auto enable :
         {zo_window_set_enable_title_back, zo_window_set_enable_title_exit, zo_window_set_enable_title_menu,
          zo_window_set_enable_title_hint, zo_window_set_enable_title_save_to_photo,
          zo_window_set_enable_title_close, zo_window_set_enable_title_minimize})
        enable(window, true);
    zo_window_set_window_go_back_callback(window, [](zo_window_ptr) { tell("back"); });
    zo_window_set_window_exit_app_request_callback(window, [](zo_window_ptr) { tell("exit"); });
    zo_window_set_window_hint_request_callback(window, [](zo_window_ptr) { tell("help"); });
    zo_window_set_save_to_photo_handler(window, [](zo_window_ptr, GdkPixbuf*) { tell("photo"); });
    zo_window_set_menu_create_handler(window, on_menu);
    zo_window_set_window_hide_callback(window, [](zo_window_ptr) { tell("hidden"); });
}

}  // namespace

bool driver::veto = false;

std::string driver::told() { return std::exchange(words, {}); }

zo_window_ptr driver::window(const std::string& id) { return windows[id]; }

void driver::make_window(const std::string& id, bool keep_above) {
    const zo_window_ptr window = windows[id] = zo_window_new(id);
    zo_window_set_title(window, "Title of " + id);
    zo_window_set_keep_above(window, keep_above);
    connect_title(window);
    zo_window_set_window_open_callback(window, on_open);
    zo_window_set_window_close_request_callback(window, [](zo_window_ptr) {
        tell("asked");
        return veto;
    });
    zo_window_set_window_close_callback(window, [](zo_window_ptr) { tell("closed"); });
    if (panel) zo_window_set_window_manager(window, panel);
    zo_window_open(window);
}

void driver::make_panel(bool keep_extended) {
    panel = zo_window_manager_new("");
    zo_window_manager_set_keep_extended(panel, keep_extended);
    zo_window_manager_open(panel);
    zo_window_manager_show(panel);
}

void driver::make_notification(const std::string& name) {
    const zo_notification_ptr notification = notifications[name] = zo_notification_new();
    zo_notification_set_title(notification, "Notice " + name);
    zo_notification_set_content(notification, "Content of " + name);
    zo_notification_add_action(notification, "act", "Act on " + name,
                               [](const std::string&) { tell("acted"); });
    zo_notification_on_close(notification, [](zo_notification_ptr) { tell("dismissed"); });
    if (panel) zo_notification_set_manager(notification, panel);
    zo_notification_open_show(notification);
}

void driver::make_tray() {
    tray = zo_appindicator_new("zo-desktops", "Desktops", "dialog-information");
    zo_appindicator_add_action(tray, "one", "First entry",
                               [](zo_appindicator_ptr, std::string&) { tell("chosen"); });
    zo_appindicator_show(tray);
}

std::string driver::state(const std::string& id) {
    if (!windows.contains(id)) return "unknown";
    bool opened = false;
    bool visible = false;
    zo_window_is_opened(windows[id], &opened);
    zo_window_is_visible(windows[id], &visible);
    return std::string(opened ? "opened" : "closed") + (visible ? " visible" : " hidden");
}
