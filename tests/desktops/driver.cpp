// SPDX-License-Identifier: MIT
// A program with windows, a panel, notifications and a tray icon, for scripts that look at it from outside.
// Reads commands from its standard input, one a line, and answers each with one line that begins with "= ",
// when all it posted has run.
#include <gtk/gtk.h>
#include <zo_ui/zo_ui.hpp>

#include <gdk/gdkx.h>
#include <functional>
#include <iostream>
#include <map>
#include <sstream>

namespace {

using words = std::vector<std::string>;

std::map<std::string, zo_window_ptr> windows;
std::map<std::string, zo_notification_ptr> notifications;
std::string told;  // what callbacks told since it was last asked for
bool veto = false;
zo_window_manager_ptr panel;
zo_appindicator_ptr tray;

GtkWidget* toplevel(const std::function<bool(GtkWidget*)>& wanted) {
    GtkWidget* found = nullptr;
    GList* all = gtk_window_list_toplevels();
    for (GList* item = all; item; item = item->next)
        if (wanted(GTK_WIDGET(item->data))) found = GTK_WIDGET(item->data);
    g_list_free(all);
    return found;
}

bool has_class(GtkWidget* widget, const std::string& name) {
    return gtk_style_context_has_class(gtk_widget_get_style_context(widget), name.c_str());
}

// A toplevel by its window's id, or its style class with a dot before.
GtkWidget* named(const std::string& name) {
    return toplevel([&](GtkWidget* widget) {
        return name[0] == '.' ? has_class(widget, name.substr(1)) : name == gtk_widget_get_name(widget);
    });
}

GtkWidget* part(GtkWidget* root, const std::string& style_class) {
    if (!root || has_class(root, style_class)) return root;
    if (!GTK_IS_CONTAINER(root)) return nullptr;
    GtkWidget* found = nullptr;
    GList* children = gtk_container_get_children(GTK_CONTAINER(root));
    for (GList* item = children; item && !found; item = item->next)
        found = part(GTK_WIDGET(item->data), style_class);
    g_list_free(children);
    return found;
}

// Where the middle of a widget is on the screen, "-" when it is not there.
std::string place(GtkWidget* widget) {
    GdkWindow* native = widget ? gtk_widget_get_window(widget) : nullptr;
    if (!native || !gtk_widget_get_mapped(widget)) return "-";
    int x = 0;
    int y = 0;
    int left = 0;
    int top = 0;
    GtkWidget* root = gtk_widget_get_toplevel(widget);
    gtk_widget_translate_coordinates(widget, root, 0, 0, &x, &y);
    gdk_window_get_origin(gtk_widget_get_window(root), &left, &top);
    std::ostringstream text;
    text << left + x << " " << top + y << " " << gtk_widget_get_allocated_width(widget) << " "
         << gtk_widget_get_allocated_height(widget);
    return text.str();
}

void tell(const std::string& what) { told += (told.empty() ? "" : " ") + what; }

void make_window(const std::string& id) {
    const zo_window_ptr window = windows[id] = zo_window_new(id);
    zo_window_set_title(window, "Title of " + id);
    for (auto enable :
         {zo_window_set_enable_title_back, zo_window_set_enable_title_exit, zo_window_set_enable_title_menu,
          zo_window_set_enable_title_hint, zo_window_set_enable_title_save_to_photo,
          zo_window_set_enable_title_close, zo_window_set_enable_title_minimize})
        enable(window, true);
    zo_window_set_window_open_callback(window, [](zo_window_ptr w) {
        GtkWidget* button = zo_ui_button_new_with_label("Press me");
        gtk_widget_set_size_request(button, 400, 200);
        zo_ui_connect_button_click_signal(button, [](GtkWidget*) { tell("pressed"); });
        zo_window_add_content_child(w, button, true, false, 12, false);
    });
    zo_window_set_window_close_request_callback(window, [](zo_window_ptr) {
        tell("asked");
        return veto;
    });
    zo_window_set_window_close_callback(window, [](zo_window_ptr) { tell("closed"); });
    zo_window_set_menu_create_handler(window, [](zo_window_ptr, GtkGrid* grid) {
        gtk_grid_attach(grid, gtk_button_new_with_label("Entry"), 0, 0, 1, 1);
    });
    if (panel) zo_window_set_window_manager(window, panel);
    zo_window_open(window);
}

void notify(const std::string& name) {
    const zo_notification_ptr notification = notifications[name] = zo_notification_new();
    zo_notification_set_title(notification, "Notice " + name);
    zo_notification_set_content(notification, "Content of " + name);
    if (panel) zo_notification_set_manager(notification, panel);
    zo_notification_open_show(notification);
}

void make_panel(bool keep_extended) {
    panel = zo_window_manager_new("");
    zo_window_manager_set_keep_extended(panel, keep_extended);
    zo_window_manager_open(panel);
    zo_window_manager_show(panel);
}

void make_tray() {
    tray = zo_appindicator_new("zo-desktops", "Desktops", "dialog-information");
    zo_appindicator_add_action(tray, "one", "First entry",
                               [](zo_appindicator_ptr, std::string&) { tell("chosen"); });
    zo_appindicator_show(tray);
}

std::string state(const std::string& id) {
    if (!windows.contains(id)) return "unknown";
    bool opened = false;
    bool visible = false;
    zo_window_is_opened(windows[id], &opened);
    zo_window_is_visible(windows[id], &visible);
    return std::string(opened ? "opened" : "closed") + (visible ? " visible" : " hidden");
}

std::string xid(const std::string& name) {
    GtkWidget* widget = named(name);
    GdkWindow* native = widget ? gtk_widget_get_window(widget) : nullptr;
    return native ? std::to_string(gdk_x11_window_get_xid(native)) : "-";
}

const std::map<std::string, std::function<std::string(const words&)>> commands{
    {"new", [](const words& w) { return make_window(w[1]), "ok"; }},
    {"show", [](const words& w) { return zo_window_show(windows[w[1]]), "ok"; }},
    {"hide", [](const words& w) { return zo_window_hide(windows[w[1]]), "ok"; }},
    {"pair",
     [](const words& w) { return zo_window_hide(windows[w[1]]), zo_window_show(windows[w[1]]), "ok"; }},
    {"activate", [](const words& w) { return zo_window_activate(windows[w[1]]), "ok"; }},
    {"open", [](const words& w) { return zo_window_open(windows[w[1]]), "ok"; }},
    {"close", [](const words& w) { return zo_window_close(windows[w[1]]), "ok"; }},
    {"move", [](const words& w) { return zo_window_move(windows[w[1]], stoi(w[2]), stoi(w[3])), "ok"; }},
    {"veto", [](const words& w) { return veto = w[1] == "yes", "ok"; }},
    {"state", [](const words& w) { return state(w[1]); }},
    {"xid", [](const words& w) { return xid(w[1]); }},
    {"part", [](const words& w) { return place(part(named(w[1]), w[2])); }},
    {"told", [](const words&) { return std::exchange(told, {}) + "."; }},
    {"panel", [](const words& w) { return make_panel(w[1] == "extended"), "ok"; }},
    {"notify", [](const words& w) { return notify(w[1]), "ok"; }},
    {"tray", [](const words&) { return make_tray(), "ok"; }}};

void answer(const words& line) {
    const auto command = commands.find(line[0]);
    const std::string text = command == commands.end() ? "unknown command" : command->second(line);
    zo_system_service_exec([text] { std::cout << "= " << text << std::endl; }, "driver", 0);
}

gboolean on_input(GIOChannel* input, GIOCondition, gpointer) {
    char* text = nullptr;
    if (g_io_channel_read_line(input, &text, nullptr, nullptr, nullptr) != G_IO_STATUS_NORMAL) {
        gtk_main_quit();
        return G_SOURCE_REMOVE;
    }
    std::istringstream line(text);
    g_free(text);
    words all;
    for (std::string word; line >> word;) all.push_back(word);
    if (!all.empty()) answer(all);
    return G_SOURCE_CONTINUE;
}

}  // namespace

int main(int argc, char** argv) {
    gtk_init(&argc, &argv);
    zo_ui_init();
    GIOChannel* input = g_io_channel_unix_new(0);
    g_io_add_watch(input, static_cast<GIOCondition>(G_IO_IN | G_IO_HUP), on_input, nullptr);
    gtk_main();
    g_io_channel_unref(input);
    zo_system_service_end();
    std::cout.flush();
    std::_Exit(0);
}
