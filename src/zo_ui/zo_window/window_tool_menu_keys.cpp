// SPDX-License-Identifier: MIT
// The tool menu by keyboard. A popup never has the keyboard focus: the keys come to the window under it.
#include <zo_ui/zo_window/window_p.hpp>

#include <zo_ui/zo_window/window_hold_p.hpp>

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

// Has a key gone into the menu yet? Before, GTK keeps the first widget's focus ready, which nobody sees.
bool is_entered(GtkWidget* menu) { return gtk_window_has_toplevel_focus(GTK_WINDOW(menu)); }

// Makes GTK draw the focus in a window that the X server never gives it to. Handlers of the application hear
// of each step, and may take the menu away.
void enter(GtkWidget* menu) {
    gtk_window_set_focus(GTK_WINDOW(menu), nullptr);
    if (!gtk_widget_get_window(menu)) return;
    GdkEvent* event = gdk_event_new(GDK_FOCUS_CHANGE);
    event->focus_change.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(menu)));
    event->focus_change.in = TRUE;
    gtk_widget_send_focus_change(menu, event);
    gdk_event_free(event);
    gtk_window_set_focus_visible(GTK_WINDOW(menu), TRUE);
}

// The first key enters at the menu's one end or the other. From there the arrows go where they point and Tab
// goes round.
void move_focus(GtkWidget* menu, GtkDirectionType direction) {
    if (!is_entered(menu)) {
        enter(menu);
        const bool backward =
            direction == GTK_DIR_UP || direction == GTK_DIR_LEFT || direction == GTK_DIR_TAB_BACKWARD;
        direction = backward ? GTK_DIR_TAB_BACKWARD : GTK_DIR_TAB_FORWARD;
    }
    if (gtk_widget_get_realized(menu)) gtk_widget_child_focus(menu, direction);
}

// With Shift alone a key is the menu's, as without: the backward Tab has it.
bool has_modifier(const GdkEventKey& event) {
    return event.state & gtk_accelerator_get_default_mod_mask() & ~GDK_SHIFT_MASK;
}

}  // namespace

bool _zo_window::on_tool_menu_key(const GdkEventKey& event) {
    const zo::held_widget held = zo::hold(widgets_.tool_menu);
    GtkWidget* const menu = held.get();
    if (!menu || has_modifier(event)) return false;
    if (event.keyval == GDK_KEY_Escape) {
        close_tool_menu();
        return true;
    }
    if (const auto direction = direction_of(event.keyval)) {
        move_focus(menu, *direction);
        return true;
    }
    GtkWidget* const focused = is_entered(menu) ? gtk_window_get_focus(GTK_WINDOW(menu)) : nullptr;
    if (!focused ||
        std::find(std::begin(activating), std::end(activating), event.keyval) == std::end(activating))
        return false;
    gtk_widget_activate(focused);
    return true;
}
