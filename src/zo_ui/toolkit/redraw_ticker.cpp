// SPDX-License-Identifier: MIT
#include <zo_ui/zo_ui_tools.hpp>

#include <zo_ui/toolkit/process_state_p.hpp>

#include <algorithm>

using zo::toolkit;

namespace {

gboolean tick(gpointer) {
    for (GtkWidget* widget : toolkit().fps_widgets) gtk_widget_queue_draw(widget);
    return G_SOURCE_CONTINUE;
}

void on_destroy_forget(GtkWidget* widget, gpointer) { std::erase(toolkit().fps_widgets, widget); }

}  // namespace

void zo_ui_set_fps(int fps) {
    if (fps <= 0) return;
    // An interval of 0 would keep the loop from ever drawing.
    g_timeout_add(static_cast<guint>(std::max(1000 / fps, 1)), tick, nullptr);
}

void zo_ui_add_fps_widget(GtkWidget* widget) {
    auto& widgets = toolkit().fps_widgets;
    if (std::find(widgets.begin(), widgets.end(), widget) != widgets.end()) return;
    g_signal_connect(widget, "destroy", G_CALLBACK(on_destroy_forget), nullptr);
    widgets.push_back(widget);
}
