// SPDX-License-Identifier: MIT
// A window's tree as somebody would write it by hand.
#pragma once

#include <gtk/gtk.h>
#include <string>

namespace floor_window {

struct parts {
    GtkWidget* title;
    GtkWidget* scroll;
    int title_height;
};

inline GdkRectangle workarea;
inline GtkWidget* active = nullptr;

inline void add_class(GtkWidget* widget, const char* name) {
    gtk_style_context_add_class(gtk_widget_get_style_context(widget), name);
}

inline void pack(GtkWidget* box, GtkWidget* child, bool fill = false) {
    gtk_box_pack_start(GTK_BOX(box), child, fill, fill, 0);
}

inline gboolean go_on(GtkWidget*, GdkEvent*, gpointer) { return FALSE; }
inline void on_focus_moves(GtkWindow*, GtkWidget*, gpointer) {}
inline void on_clicked(GtkWidget*, gpointer) {}
inline void on_title_size(GtkWidget*, GtkAllocation* place, parts* window) {
    window->title_height = place->height;
}

inline gboolean fit(gpointer data) {
    const auto& window = *static_cast<parts*>(data);
    GtkWidget* content = gtk_bin_get_child(GTK_BIN(gtk_bin_get_child(GTK_BIN(window.scroll))));
    content = gtk_bin_get_child(GTK_BIN(content));
    auto* const scroll = GTK_SCROLLED_WINDOW(window.scroll);
    gtk_scrolled_window_set_min_content_width(scroll,
                                              MIN(gtk_widget_get_allocated_width(content), workarea.width));
    gtk_scrolled_window_set_min_content_height(
        scroll, MIN(gtk_widget_get_allocated_height(content), workarea.height - window.title_height));
    return G_SOURCE_REMOVE;
}

inline void on_content_size(GtkWidget* content, GtkAllocation*, parts* window) {
    if (gtk_widget_get_mapped(content))
        gdk_threads_add_idle_full(G_PRIORITY_HIGH_IDLE, fit, window, nullptr);
    else
        fit(window);
}

// The window with the focus has another look.
inline gboolean on_focus(GtkWidget* window, GdkEvent*, gpointer) {
    if (active == window) return FALSE;
    add_class(window, "active");
    if (active) gtk_style_context_remove_class(gtk_widget_get_style_context(active), "active");
    active = window;
    return FALSE;
}

inline void on_screen(GtkWidget* window, GdkScreen*, gpointer) {
    if (GdkVisual* visual = gdk_screen_get_rgba_visual(gtk_widget_get_screen(window)))
        gtk_widget_set_visual(window, visual);
}

inline GtkWidget* window_new(const char* title, const char* name) {
    GtkWidget* window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_window_set_type_hint(GTK_WINDOW(window), GDK_WINDOW_TYPE_HINT_DIALOG);
    GdkGeometry geometry{};
    geometry.max_width = workarea.width;
    geometry.max_height = workarea.height - 120;
    gtk_window_set_geometry_hints(GTK_WINDOW(window), nullptr, &geometry, GDK_HINT_MAX_SIZE);
    gtk_window_set_skip_taskbar_hint(GTK_WINDOW(window), TRUE);
    gtk_window_set_skip_pager_hint(GTK_WINDOW(window), TRUE);
    for (const char* style_class : {"zo-window", "managed", "global-window"}) add_class(window, style_class);
    gtk_widget_set_name(window, name);
    gtk_window_set_title(GTK_WINDOW(window), title);
    gtk_window_set_decorated(GTK_WINDOW(window), FALSE);
    gtk_window_set_resizable(GTK_WINDOW(window), FALSE);
    gtk_window_set_keep_above(GTK_WINDOW(window), TRUE);
    on_screen(window, nullptr, nullptr);
    gtk_widget_add_events(window, GDK_BUTTON_PRESS_MASK | GDK_BUTTON_RELEASE_MASK | GDK_FOCUS_CHANGE_MASK);
    for (const char* signal : {"focus-out-event", "window-state-event", "configure-event", "map-event",
                               "delete-event", "key-press-event"})
        g_signal_connect(window, signal, G_CALLBACK(go_on), nullptr);
    g_signal_connect(window, "set-focus", G_CALLBACK(on_focus_moves), nullptr);
    g_signal_connect(window, "screen-changed", G_CALLBACK(on_screen), nullptr);
    g_signal_connect(window, "focus-in-event", G_CALLBACK(on_focus), nullptr);
    return window;
}

inline GtkWidget* title_button(const char* style_class, const char* tooltip) {
    GtkWidget* button = gtk_button_new();
    add_class(button, "size-16");
    add_class(button, style_class);
    gtk_widget_set_size_request(button, 16, 16);
    gtk_widget_set_tooltip_text(button, tooltip);
    atk_object_set_name(gtk_widget_get_accessible(button), tooltip);
    g_signal_connect(button, "clicked", G_CALLBACK(on_clicked), nullptr);
    return button;
}

inline GtkWidget* title_new(const char* title, parts* window) {
    window->title = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    add_class(window->title, "window-title");
    gtk_widget_set_size_request(window->title, 300, 15);
    GtkWidget* label = gtk_label_new(title);
    add_class(label, "title-text");
    gtk_box_set_center_widget(GTK_BOX(window->title), label);
    gtk_box_pack_end(GTK_BOX(window->title), title_button("title-close", "Close window"), FALSE, FALSE, 0);
    gtk_box_pack_end(GTK_BOX(window->title), title_button("title-minimize", "Minimize window"), FALSE, FALSE,
                     0);
    GtkWidget* handle = gtk_event_box_new();
    add_class(handle, "title-event-box");
    gtk_widget_add_events(handle, GDK_POINTER_MOTION_MASK | GDK_BUTTON_PRESS_MASK | GDK_BUTTON_RELEASE_MASK);
    gtk_container_add(GTK_CONTAINER(handle), window->title);
    for (const char* signal : {"button-press-event", "button-release-event", "motion-notify-event"})
        g_signal_connect(handle, signal, G_CALLBACK(go_on), nullptr);
    g_signal_connect(window->title, "size-allocate", G_CALLBACK(on_title_size), window);
    return handle;
}

inline GtkWidget* content_new(const char* name, parts* window) {
    GtkWidget* content = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
    add_class(content, "window-content");
    gtk_widget_set_name(content, name);
    pack(content, gtk_label_new("Something to read"));
    g_signal_connect(content, "size-allocate", G_CALLBACK(on_content_size), window);
    GtkWidget* handle = gtk_event_box_new();
    gtk_widget_add_events(handle, GDK_BUTTON_PRESS_MASK | GDK_BUTTON_RELEASE_MASK);
    g_signal_connect(handle, "button-press-event", G_CALLBACK(go_on), nullptr);
    gtk_container_add(GTK_CONTAINER(handle), content);
    window->scroll = gtk_scrolled_window_new(nullptr, nullptr);
    add_class(window->scroll, "window-scroll");
    gtk_scrolled_window_set_placement(GTK_SCROLLED_WINDOW(window->scroll), GTK_CORNER_BOTTOM_RIGHT);
    gtk_container_add(GTK_CONTAINER(window->scroll), handle);
    return window->scroll;
}

inline GtkWidget* open_window(int number) {
    const std::string name = "window" + std::to_string(number);
    const std::string title = "Window " + std::to_string(number);
    GtkWidget* window = window_new(title.c_str(), name.c_str());
    auto* const own = new parts{};
    g_object_set_data_full(G_OBJECT(window), "parts", own,
                           [](gpointer data) { delete static_cast<parts*>(data); });
    GtkWidget* fixed = gtk_fixed_new();
    gtk_widget_set_name(fixed, "window-fixed");
    GtkWidget* wrapper = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
    gtk_widget_set_name(wrapper, "window-wrapper");
    gtk_fixed_put(GTK_FIXED(fixed), wrapper, 0, 0);
    pack(wrapper, title_new(title.c_str(), own));
    pack(wrapper, content_new(("messagebox" + name).c_str(), own), true);
    gtk_container_add(GTK_CONTAINER(window), fixed);
    gtk_window_set_position(GTK_WINDOW(window), GTK_WIN_POS_CENTER);
    gtk_widget_show_all(window);
    return window;
}

}  // namespace floor_window
