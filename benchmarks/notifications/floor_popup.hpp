// SPDX-License-Identifier: MIT
// A notification's popup as somebody would write it by hand.
#pragma once

#include <gtk/gtk.h>
#include <algorithm>
#include <string>

namespace floor_popup {

constexpr int top = 75;
constexpr int gap = 2;  // between two

struct popup {
    GtkWidget* window;
    int height;
    int y;
};

inline void add_class(GtkWidget* widget, const char* name) {
    gtk_style_context_add_class(gtk_widget_get_style_context(widget), name);
}

inline void pack(GtkWidget* box, GtkWidget* child, bool fill = false, guint padding = 0) {
    gtk_box_pack_start(GTK_BOX(box), child, fill, fill, padding);
}

inline GtkWidget* window_new(const char* title) {
    GtkWidget* window = gtk_window_new(GTK_WINDOW_POPUP);
    gtk_window_set_type_hint(GTK_WINDOW(window), GDK_WINDOW_TYPE_HINT_NOTIFICATION);
    gtk_window_set_default_size(GTK_WINDOW(window), 500, -1);
    gtk_window_set_skip_taskbar_hint(GTK_WINDOW(window), TRUE);
    gtk_window_set_skip_pager_hint(GTK_WINDOW(window), TRUE);
    gtk_window_set_title(GTK_WINDOW(window), title);
    gtk_window_set_decorated(GTK_WINDOW(window), FALSE);
    gtk_window_set_resizable(GTK_WINDOW(window), FALSE);
    gtk_window_set_keep_above(GTK_WINDOW(window), TRUE);
    add_class(window, "zo-notification");
    if (GdkVisual* visual = gdk_screen_get_rgba_visual(gtk_widget_get_screen(window)))
        gtk_widget_set_visual(window, visual);
    return window;
}

inline void on_close(GtkWidget*, gpointer) {}

inline GtkWidget* title_new(const char* title) {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    add_class(box, "window-title");
    gtk_widget_set_size_request(box, 300, 16);
    GtkWidget* label = gtk_label_new(title);
    gtk_label_set_ellipsize(GTK_LABEL(label), PANGO_ELLIPSIZE_END);
    gtk_label_set_max_width_chars(GTK_LABEL(label), 48);
    add_class(label, "title-text");
    gtk_box_set_center_widget(GTK_BOX(box), label);
    GtkWidget* close = gtk_button_new();
    add_class(close, "size-16");
    add_class(close, "title-close");
    gtk_widget_set_size_request(close, 16, 16);
    gtk_widget_set_tooltip_text(close, "Close notification");
    atk_object_set_name(gtk_widget_get_accessible(close), "Close notification");
    g_signal_connect(close, "clicked", G_CALLBACK(on_close), nullptr);
    pack(box, close);
    return box;
}

inline GtkWidget* content_new(const char* text) {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 4);
    add_class(box, "content");
    add_class(box, "no-actions");
    GtkWidget* row = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    gtk_widget_set_halign(row, GTK_ALIGN_START);
    gtk_widget_set_valign(row, GTK_ALIGN_CENTER);
    pack(box, row, false, 20);
    GtkWidget* label = gtk_label_new(nullptr);
    gtk_label_set_markup(GTK_LABEL(label), text);
    gtk_label_set_selectable(GTK_LABEL(label), TRUE);
    gtk_label_set_max_width_chars(GTK_LABEL(label), 30);
    gtk_widget_set_size_request(label, 500, -1);
    gtk_label_set_line_wrap(GTK_LABEL(label), TRUE);
    gtk_label_set_line_wrap_mode(GTK_LABEL(label), PANGO_WRAP_WORD);
    gtk_label_set_xalign(GTK_LABEL(label), 0);
    add_class(label, "content-text");
    GtkWidget* padding = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    gtk_widget_set_valign(padding, GTK_ALIGN_CENTER);
    gtk_widget_set_halign(padding, GTK_ALIGN_START);
    pack(padding, label);
    pack(row, padding);
    return box;
}

inline void move(popup& shown, int y) {
    if (shown.y == y) return;
    shown.y = y;
    gtk_window_move(GTK_WINDOW(shown.window), 50, std::min(y, 32767));
}

inline popup show(const std::string& title, const std::string& text, int y) {
    popup shown{window_new(title.c_str()), 0, 0};
    GtkWidget* wrapper = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
    gtk_widget_set_name(wrapper, "window-wrapper");
    pack(wrapper, title_new(title.c_str()));
    pack(wrapper, content_new(text.c_str()), true);
    gtk_container_add(GTK_CONTAINER(shown.window), wrapper);
    AtkObject* accessible = gtk_widget_get_accessible(shown.window);
    atk_object_set_role(accessible, ATK_ROLE_NOTIFICATION);
    atk_object_set_name(accessible, title.c_str());
    atk_object_set_description(accessible, text.c_str());
    move(shown, y);
    gtk_widget_show_all(shown.window);
    gtk_window_get_size(GTK_WINDOW(shown.window), nullptr, &shown.height);
    return shown;
}

}  // namespace floor_popup
