// SPDX-License-Identifier: MIT
#include <zo_ui/zo_window/window_active_p.hpp>

#include <zo_ui/toolkit/style_p.hpp>

namespace {

GtkWidget* active = nullptr;  // becomes null when the widget goes

void remember(GtkWidget* window) {
    if (active == window) return;
    if (active) g_object_remove_weak_pointer(G_OBJECT(active), reinterpret_cast<gpointer*>(&active));
    active = window;
    g_object_add_weak_pointer(G_OBJECT(active), reinterpret_cast<gpointer*>(&active));
}

}  // namespace

void zo::mark_active(GtkWidget* window) {
    if (!has_class(window, "managed")) return;
    add_class(window, "active");
    if (active && active != window) remove_class(active, "active");
    remember(window);
}

bool zo::is_marked_active(GtkWidget* window) { return window && window == active; }
