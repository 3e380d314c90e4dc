// SPDX-License-Identifier: MIT
// What a person, or the desktop, does to the widgets.
#include "fuzz/calls_widgets.hpp"
#include "fuzz/calls_world.hpp"

using fuzz::world;

namespace {

bool press(GtkWidget* button) {
    if (button) gtk_button_clicked(GTK_BUTTON(button));
    return button;
}

bool end(GtkWidget* widget) {
    if (widget) gtk_widget_destroy(widget);
    return widget;
}

bool follow_link(GtkWidget* popup) {
    GtkWidget* const content = popup ? fuzz::find_class(popup, "content-text") : nullptr;
    gboolean handled = FALSE;
    if (content) g_signal_emit_by_name(content, "activate-link", "https://a", &handled);
    return handled;
}

bool leave(GtkWidget* widget) {
    gboolean handled = FALSE;
    GdkEvent* event = gdk_event_new(GDK_LEAVE_NOTIFY);
    event->crossing.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(widget)));
    event->crossing.mode = GDK_CROSSING_NORMAL;
    event->crossing.detail = GDK_NOTIFY_NONLINEAR;
    g_signal_emit_by_name(widget, "leave-notify-event", event, &handled);
    gdk_event_free(event);
    return handled;
}

bool press_menu(GtkWidget* menu, fuzz::verb what) {
    if (!menu) return false;
    if (what == fuzz::verb::leave_menu) return leave(menu);
    if (what == fuzz::verb::destroy_menu) return end(menu);
    return press(fuzz::find_class(menu, "tool-menu-button"));
}

// What GDK makes of a WM_DELETE_WINDOW.
bool ask_to_close(GtkWidget* toplevel) {
    if (!toplevel) return false;
    gtk_widget_realize(toplevel);
    GdkEvent* event = gdk_event_new(GDK_DELETE);
    event->any.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(toplevel)));
    gtk_main_do_event(event);
    gdk_event_free(event);
    return true;
}

}  // namespace

bool world::press_some_window(const call& made) {
    return first_window(made, [this](const call& one) { return press_window(one); });
}

bool world::press_window(const call& made) {
    GtkWidget* const window = toplevel(made.who);
    for (const auto& [verb, button] : title_presses)
        if (verb == made.what)
            return window && press(find_class(window, title_classes[static_cast<std::size_t>(button)]));
    switch (made.what) {
        case verb::click_menu_entry:
        case verb::leave_menu:
        case verb::destroy_menu:
            return press_menu(tool_menu(made.who), made.what);
        case verb::ask_to_close:
            return ask_to_close(window);
        case verb::destroy_toplevel:
            return end(window);
        default:
            break;
    }
    const task_buttons found = find_task(window_names_[made.who]);
    return press(made.what == verb::click_task ? found.task : found.close);
}

bool world::press_notification(const call& made) {
    GtkWidget* const found = popup(made.who);
    if (made.what == verb::notification_destroy_popup) return end(found);
    if (made.what == verb::notification_click_link) return follow_link(found);
    if (!found) return false;
    return press(made.what == verb::notification_click_action ? find_button(found, "act")
                                                              : find_class(found, "title-close"));
}

// A widget of the program's own tells which panel is its manager's.
GtkWidget* world::lock_button(int m) const {
    GtkWidget* const probe = GTK_WIDGET(g_object_ref_sink(gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0)));
    GtkWidget* found = nullptr;
    if (zo_window_manager_add_widget_left(managers_[m], probe)) {
        GtkWidget* const panel = gtk_widget_get_toplevel(probe);
        found = find_class(panel, "lock-locked");
        if (!found) found = find_class(panel, "lock-unlocked");
        zo_window_manager_remove_widget_left(managers_[m], probe);
    }
    gtk_widget_destroy(probe);
    g_object_unref(probe);
    return found;
}

bool world::press_lock(int m) { return press(lock_button(m)); }

bool world::press_indicator(int which) {
    const std::vector<GtkWidget*> items = menu_items();
    if (items.empty()) return false;
    gtk_menu_item_activate(GTK_MENU_ITEM(items[static_cast<std::size_t>(which) % items.size()]));
    return true;
}
