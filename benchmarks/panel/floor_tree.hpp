// SPDX-License-Identifier: MIT
// The panel's tree as somebody would write it by hand.
#pragma once

#include <panel/titles.hpp>

#include <gtk/gtk.h>
#include <vector>

namespace floor_panel {

constexpr int screen_width = 1920;
constexpr int height = 34;

inline void add_class(GtkWidget* widget, const char* name) {
    gtk_style_context_add_class(gtk_widget_get_style_context(widget), name);
}

inline void describe(GtkWidget* widget, const char* text) {
    gtk_widget_set_tooltip_text(widget, text);
    atk_object_set_name(gtk_widget_get_accessible(widget), text);
}

inline void on_clicked(GtkWidget*, gpointer) {}

inline GtkWidget* padded(GtkWidget* child) {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    gtk_widget_set_valign(box, GTK_ALIGN_CENTER);
    gtk_widget_set_halign(box, GTK_ALIGN_START);
    if (child) gtk_box_pack_start(GTK_BOX(box), child, FALSE, FALSE, 0);
    return box;
}

inline GtkWidget* region(const char* style_class) {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    add_class(box, style_class);
    return box;
}

inline GtkWidget* square_button(const char* size_class, const char* style_class, int size, const char* text) {
    GtkWidget* button = gtk_button_new();
    add_class(button, size_class);
    add_class(button, style_class);
    gtk_widget_set_size_request(button, size, size);
    describe(button, text);
    g_signal_connect(button, "clicked", G_CALLBACK(on_clicked), nullptr);
    return button;
}

// The title is the button's label for whoever asks the button, so it is set there; GTK makes a new label of
// it.
inline void set_title(GtkWidget* button, const std::string& title) {
    gtk_button_set_label(GTK_BUTTON(button), title.c_str());
    GtkLabel* const label = GTK_LABEL(gtk_bin_get_child(GTK_BIN(button)));
    gtk_label_set_ellipsize(label, PANGO_ELLIPSIZE_END);
    gtk_label_set_max_width_chars(label, 24);
    describe(button, title.c_str());
}

inline GtkWidget* task_button(int number) {
    GtkWidget* button = gtk_button_new();
    set_title(button, bench::title(number));
    gtk_widget_set_name(button, ("window" + std::to_string(number)).c_str());
    g_signal_connect(button, "clicked", G_CALLBACK(on_clicked), nullptr);
    gtk_widget_set_margin_start(button, 2);
    return button;
}

inline std::vector<GtkWidget*> children(GtkWidget* container) {
    std::vector<GtkWidget*> all;
    const auto note = [](GtkWidget* child, gpointer list) {
        static_cast<std::vector<GtkWidget*>*>(list)->push_back(child);
    };
    gtk_container_foreach(GTK_CONTAINER(container), note, &all);
    return all;
}

// The two paddings, that of the task button last.
inline std::vector<GtkWidget*> add_window(GtkWidget* row, int number) {
    GtkWidget* close = square_button("size-16", "title-close", 16, "Close window");
    GtkWidget* paddings[] = {padded(close), padded(task_button(number))};
    for (GtkWidget* padding : paddings) gtk_box_pack_end(GTK_BOX(row), padding, FALSE, FALSE, 0);
    return {paddings[0], paddings[1]};
}

// Of windows that are not shown. When all are there: a style is computed for it.
inline void dim(GtkWidget* padding) {
    for (GtkWidget* button : children(padding)) gtk_widget_set_opacity(button, 0.6);
}

// Of the row of tasks with what surrounds it.
inline GtkWidget* taskbox(GtkWidget* row) {
    GtkWidget* box = region("manager-taskbox");
    GtkWidget* left = region("manager-taskbox-left");
    gtk_box_pack_start(GTK_BOX(box), left, FALSE, FALSE, 0);
    GtkWidget* lock = square_button("size-32", "lock-locked", 32, "Locked");
    gtk_box_pack_end(GTK_BOX(left), padded(lock), FALSE, FALSE, 0);
    GtkWidget* scroll = gtk_scrolled_window_new(nullptr, nullptr);
    add_class(scroll, "manager-taskbox-scroll");
    gtk_scrolled_window_set_placement(GTK_SCROLLED_WINDOW(scroll), GTK_CORNER_BOTTOM_RIGHT);
    gtk_scrolled_window_set_policy(GTK_SCROLLED_WINDOW(scroll), GTK_POLICY_AUTOMATIC, GTK_POLICY_NEVER);
    gtk_container_add(GTK_CONTAINER(scroll), row);
    gtk_box_pack_start(GTK_BOX(box), scroll, TRUE, TRUE, 0);
    gtk_box_pack_start(GTK_BOX(box), region("manager-taskbox-right"), FALSE, FALSE, 0);
    return box;
}

inline GtkWidget* row_new() {
    GtkWidget* row = padded(nullptr);
    add_class(row, "manager-taskbox-center");
    return row;
}

inline GtkWidget* panel_new(GtkWidget* row) {
    GtkWidget* panel = gtk_window_new(GTK_WINDOW_POPUP);
    auto* window = GTK_WINDOW(panel);
    gtk_window_set_skip_taskbar_hint(window, TRUE);
    gtk_window_set_skip_pager_hint(window, TRUE);
    gtk_window_set_decorated(window, FALSE);
    gtk_window_set_resizable(window, FALSE);
    gtk_window_set_keep_above(window, TRUE);
    add_class(panel, "zo-manager");
    add_class(panel, "tab-manager");
    GtkWidget* fixed = gtk_fixed_new();
    gtk_widget_set_name(fixed, "manager-fixed");
    GtkWidget* event_box = gtk_event_box_new();
    gtk_widget_add_events(event_box, GDK_ENTER_NOTIFY_MASK | GDK_LEAVE_NOTIFY_MASK);
    GtkWidget* wrapper = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
    gtk_widget_set_name(wrapper, "manager-wrapper");
    gtk_widget_set_size_request(wrapper, screen_width, height);
    gtk_widget_set_margin_bottom(wrapper, 1);
    gtk_container_add(GTK_CONTAINER(event_box), wrapper);
    gtk_fixed_put(GTK_FIXED(fixed), event_box, 0, 0);
    gtk_widget_set_size_request(panel, screen_width, height);
    gtk_box_pack_start(GTK_BOX(wrapper), taskbox(row), TRUE, TRUE, 0);
    gtk_container_add(GTK_CONTAINER(panel), fixed);
    if (GdkVisual* visual = gdk_screen_get_rgba_visual(gtk_widget_get_screen(panel)))
        gtk_widget_set_visual(panel, visual);
    gtk_window_move(window, 0, 0);
    return panel;
}

}  // namespace floor_panel
