// SPDX-License-Identifier: MIT
#include "active_title.hpp"

#include <zo_ui/platform/linux.hpp>
#include <zo_ui/zo_ui.hpp>

#include <gdk/gdkx.h>

namespace {

constexpr int widest = 22;  // characters

std::string active_title() {
    unsigned long window = 0;
    std::string title;
    std::string res_name;
    std::string res_class;
    int pid = 0;
    getActiveWindowInfo(window, title, res_name, res_class, pid);
    return title;
}

void refresh(GtkLabel* label) {
    const std::string title = active_title();
    // X11 names are in whatever encoding their program chose.
    char* text = g_utf8_make_valid(title.c_str(), -1);
    if (g_strcmp0(gtk_label_get_text(label), text) != 0) gtk_label_set_text(label, text);
    g_free(text);
}

// Window managers announce on the root window when another window becomes the active one.
GdkFilterReturn on_root_event(GdkXEvent* event, GdkEvent*, gpointer label) {
    const auto* x = static_cast<XEvent*>(event);
    if (x->type == PropertyNotify && x->xproperty.atom == gdk_x11_get_xatom_by_name("_NET_ACTIVE_WINDOW"))
        zo_system_service_exec(
            [kept = GTK_LABEL(g_object_ref(label))] {
                refresh(kept);
                g_object_unref(kept);
            },
            "demo", __LINE__);
    return GDK_FILTER_CONTINUE;
}

}  // namespace

GtkWidget* demo::active_title_new() {
    GtkWidget* label = gtk_label_new("");
    gtk_widget_set_name(label, "active-title");
    gtk_label_set_ellipsize(GTK_LABEL(label), PANGO_ELLIPSIZE_END);
    gtk_label_set_width_chars(GTK_LABEL(label), widest);
    gtk_label_set_max_width_chars(GTK_LABEL(label), widest);
    gtk_label_set_xalign(GTK_LABEL(label), 1);
    gtk_widget_set_margin_start(label, 8);
    gtk_widget_set_margin_end(label, 8);
    GdkWindow* root = gdk_get_default_root_window();
    gdk_window_set_events(root,
                          static_cast<GdkEventMask>(gdk_window_get_events(root) | GDK_PROPERTY_CHANGE_MASK));
    gdk_window_add_filter(root, on_root_event, label);
    zo_ui_connect_widget_destroy(label,
                                 [root, label] { gdk_window_remove_filter(root, on_root_event, label); });
    refresh(GTK_LABEL(label));
    return label;
}
