// SPDX-License-Identifier: MIT
// Moving the window by its title bar.
#include <zo_ui/zo_window/window_drag_p.hpp>

#include <zo_ui/zo_window/window_p.hpp>

zo::drag_state& zo::drag() {
    static drag_state state;
    return state;
}

// All of them let the event go on.
struct zo::drag_handlers {
    static gboolean on_press(GtkWidget*, GdkEventButton* event, _zo_window* window) {
        if (event->type != GDK_BUTTON_PRESS || event->button != 1) return FALSE;
        if (GtkWidget* source = window->drag_source_())
            gtk_window_begin_move_drag(GTK_WINDOW(source), 1, static_cast<int>(event->x_root),
                                       static_cast<int>(event->y_root), event->time);
        return FALSE;
    }

    static gboolean on_release(GtkWidget*, GdkEventButton* event, _zo_window*) {
        if (event->type != GDK_BUTTON_RELEASE || event->button != 1 || !drag().target) return FALSE;
        GtkWidget* target = std::exchange(drag().target, nullptr);
        gtk_widget_set_opacity(target, 1.0);
        gtk_window_present(GTK_WINDOW(target));
        return FALSE;
    }

    static gboolean on_motion(GtkWidget*, GdkEventMotion* event, _zo_window*) {
        if (GTK_IS_WINDOW(drag().target))
            gdk_window_move(gtk_widget_get_window(drag().target),
                            static_cast<int>(event->x_root + drag().horizontal_offset),
                            static_cast<int>(event->y_root + drag().vertical_offset));
        return FALSE;
    }
};

void _zo_window::connect_drag() {
    const auto connect = [this](const char* signal, GCallback handler) {
        g_signal_connect(widgets_.title_event_box, signal, handler, this);
    };
    connect("motion-notify-event", G_CALLBACK(zo::drag_handlers::on_motion));
    connect("button-release-event", G_CALLBACK(zo::drag_handlers::on_release));
    connect("button-press-event", G_CALLBACK(zo::drag_handlers::on_press));
}
