// SPDX-License-Identifier: MIT
// The tool menu by keyboard. A popup never has the keyboard focus: the keys come to the window under it.
#include <zo_ui/zo_window/window_p.hpp>

#include <algorithm>
#include <optional>

namespace {

struct direction_key {
    guint key;
    GtkDirectionType direction;
};

constexpr direction_key directions[] = {
    {GDK_KEY_Up, GTK_DIR_UP},           {GDK_KEY_KP_Up, GTK_DIR_UP},
    {GDK_KEY_Down, GTK_DIR_DOWN},       {GDK_KEY_KP_Down, GTK_DIR_DOWN},
    {GDK_KEY_Left, GTK_DIR_LEFT},       {GDK_KEY_KP_Left, GTK_DIR_LEFT},
    {GDK_KEY_Right, GTK_DIR_RIGHT},     {GDK_KEY_KP_Right, GTK_DIR_RIGHT},
    {GDK_KEY_Tab, GTK_DIR_TAB_FORWARD}, {GDK_KEY_ISO_Left_Tab, GTK_DIR_TAB_BACKWARD},
};

constexpr guint activating[] = {GDK_KEY_Return, GDK_KEY_KP_Enter, GDK_KEY_ISO_Enter, GDK_KEY_space};

std::optional<GtkDirectionType> direction_of(guint key) {
    const auto row = std::find_if(std::begin(directions), std::end(directions),
                                  [key](const direction_key& entry) { return entry.key == key; });
    if (row == std::end(directions)) return std::nullopt;
    return row->direction;
}

// Makes GTK draw the focus in a window that the X server never gives it to.
void show_focus(GtkWidget* menu) {
    if (gtk_window_has_toplevel_focus(GTK_WINDOW(menu))) return;
    GdkEvent* event = gdk_event_new(GDK_FOCUS_CHANGE);
    event->focus_change.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(menu)));
    event->focus_change.in = TRUE;
    gtk_widget_send_focus_change(menu, event);
    gdk_event_free(event);
    gtk_window_set_focus_visible(GTK_WINDOW(menu), TRUE);
}

}  // namespace

bool _zo_window::on_tool_menu_key(const GdkEventKey& event) {
    GtkWidget* const menu = widgets_.tool_menu;
    if (!menu) return false;
    if (event.keyval == GDK_KEY_Escape) {
        close_tool_menu();
        return true;
    }
    if (const auto direction = direction_of(event.keyval)) {
        show_focus(menu);
        // At the end of the row of widgets it goes on at the other end.
        if (!gtk_widget_child_focus(menu, *direction)) gtk_widget_child_focus(menu, *direction);
        return true;
    }
    GtkWidget* const focused = gtk_window_get_focus(GTK_WINDOW(menu));
    if (!focused ||
        std::find(std::begin(activating), std::end(activating), event.keyval) == std::end(activating))
        return false;
    gtk_widget_activate(focused);
    return true;
}
