// SPDX-License-Identifier: MIT
// An application that uses everything the library has and does as it is told on its standard input, while
// faults happen around it. Each command is answered by a line on its standard output.
#include "faults/queries.hpp"

#include <zo_ui/platform/linux.hpp>
#include <zo_ui/zo_ui.hpp>

#include <gdk/gdkx.h>

#include <cstdlib>
#include <iostream>
#include <map>
#include <sstream>
#include <string>

namespace {

zo_window_ptr window;
zo_window_manager_ptr manager;
zo_appindicator_ptr indicator;
int notifications_closed = 0;

void answer(const std::string& text) { std::cout << "> " << text << std::endl; }

void build() {
    manager = zo_window_manager_new("");
    zo_window_manager_open(manager);
    zo_window_manager_show(manager);
    window = zo_window_new("fault");
    zo_window_set_title(window, "Fault");
    zo_window_set_window_manager(window, manager);
    zo_window_open(window);
    zo_window_show(window);
    indicator = zo_appindicator_new("fault", "Fault", "help-about");
    zo_appindicator_add_action(indicator, "act", "Act",
                               [](const zo_appindicator_ptr&, const std::string&) {});
    zo_appindicator_show(indicator);
}

void take_down() {
    zo_appindicator_to_object(indicator)->destroy("application", 1);
    zo_window_destroy(window);
    zo_window_manager_close(manager);
    zo_window_manager_destroy(manager);
}

// Everything once: what is broken around it breaks nothing here.
void use() {
    const zo_notification_ptr notification = zo_notification_new();
    zo_notification_set_title(notification, "Fault");
    zo_notification_on_close(notification, [](const zo_notification_ptr&) { ++notifications_closed; });
    zo_notification_open_show(notification);
    zo_notification_destroy(notification);
    zo_window_hide(window);
    zo_window_show(window);
    zo_window_manager_extend(manager);
    zo_window_manager_retract(manager);
}

// Until the process ends.
void be_busy() {
    answer("busy");
    for (;;) {
        use();
        getActiveWindow();
        zo_system_service_exec([] { answer("busy"); }, "application", 1);
        while (gtk_events_pending()) gtk_main_iteration();
    }
}

void tell_state() {
    bool opened = false;
    bool visible = false;
    zo_window_is_opened(window, &opened);
    zo_window_is_visible(window, &visible);
    answer(std::string("window ") + (opened && visible ? "on screen" : "gone") +
           ", notifications closed: " + std::to_string(notifications_closed));
}

void use_theme(std::istream& words) {
    std::string path, name;
    words >> path >> name;
    zo_theme_set_theme_path(path);
    GError* error = nullptr;
    zo_theme_use_theme(name, error);
    answer(error ? std::string("refused: ") + error->message : "loaded");
    g_clear_error(&error);
}

// Of the window's text, as the style sheets have it.
void tell_colour() {
    GtkWidget* toplevel = nullptr;
    GList* const all = gtk_window_list_toplevels();
    for (GList* at = all; at; at = at->next)
        if (std::string("fault") == gtk_widget_get_name(GTK_WIDGET(at->data)))
            toplevel = GTK_WIDGET(at->data);
    g_list_free(all);
    GtkStyleContext* const style = gtk_widget_get_style_context(toplevel);
    GdkRGBA colour{};
    gtk_style_context_get_color(style, gtk_style_context_get_state(style), &colour);
    char* const text = gdk_rgba_to_string(&colour);
    answer(text);
    g_free(text);
}

// The X window of the panel: the only popup that is as wide as the screen.
void tell_panel() {
    unsigned long found = 0;
    GList* const all = gtk_window_list_toplevels();
    for (GList* at = all; at; at = at->next) {
        GdkWindow* const surface = gtk_widget_get_window(GTK_WIDGET(at->data));
        if (surface && gtk_window_get_window_type(GTK_WINDOW(at->data)) == GTK_WINDOW_POPUP &&
            gdk_window_get_width(surface) == zo_ui_screen_width())
            found = gdk_x11_window_get_xid(surface);
    }
    g_list_free(all);
    answer(std::to_string(found));
}

// The monitors that GDK knows, each as "WIDTHxHEIGHT+X+Y".
void tell_monitors() {
    GdkDisplay* const display = gdk_display_get_default();
    std::ostringstream text;
    for (int number = 0; number < gdk_display_get_n_monitors(display); ++number) {
        GdkRectangle place{};
        gdk_monitor_get_geometry(gdk_display_get_monitor(display, number), &place);
        text << (number > 0 ? " " : "") << place.width << "x" << place.height << "+" << place.x << "+"
             << place.y;
    }
    answer(text.str());
}

void translate(std::istream& words) {
    std::string key;
    words >> key;
    answer(zo_lang_get_string(key));
}

void obey(const std::string& line) {
    std::istringstream words(line);
    std::string command;
    words >> command;
    if (command == "use") return use();
    if (command == "state") {
        // After what was posted before.
        return zo_system_service_exec(tell_state, "application", 1);
    }
    if (command == "busy") return be_busy();
    if (command == "panel") return tell_panel();
    if (command == "screen") return answer(std::to_string(zo_ui_screen_width()));
    if (command == "monitors") return tell_monitors();
    if (command == "extend") return (void)zo_window_manager_extend(manager);
    if (command == "retract") return (void)zo_window_manager_retract(manager);
    if (command == "query") return answer(query_dead(words));
    if (command == "active") return answer(query_active(words));
    if (command == "theme") return use_theme(words);
    if (command == "colour") return zo_system_service_exec(tell_colour, "application", 1);
    if (command == "translate") return translate(words);
    if (command == "quit") gtk_main_quit();
}

gboolean on_input(GIOChannel* channel, GIOCondition condition, gpointer) {
    char* line = nullptr;
    if (!(condition & G_IO_IN) ||
        g_io_channel_read_line(channel, &line, nullptr, nullptr, nullptr) != G_IO_STATUS_NORMAL) {
        gtk_main_quit();
        return G_SOURCE_REMOVE;
    }
    obey(line);
    g_free(line);
    return G_SOURCE_CONTINUE;
}

}  // namespace

int main(int argc, char** argv) {
    std::atexit([] { answer("exit handler"); });
    gtk_init(&argc, &argv);
    zo_ui_init();
    const std::string kind = argc > 1 ? argv[1] : "";
    const bool bare = kind == "bare";
    if (!bare) build();
    if (kind == "outlive-bus") {
        GDBusConnection* const bus = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
        g_dbus_connection_set_exit_on_close(bus,
                                            FALSE);  // kept: the process has one as long as somebody holds it
    }
    GIOChannel* input = g_io_channel_unix_new(0);
    g_io_add_watch(input, static_cast<GIOCondition>(G_IO_IN | G_IO_HUP), on_input, nullptr);
    g_io_channel_unref(input);
    zo_system_service_exec([] { answer("ready"); }, "application", 1);
    gtk_main();
    if (!bare) take_down();
    while (gtk_events_pending()) gtk_main_iteration();
    answer("ended");
    return 0;
}
