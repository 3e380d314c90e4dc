// SPDX-License-Identifier: MIT
// What the panel's signals do. Every handler holds the manager while it runs; the panel window holds it
// before.
#include <zo_ui/zo_window_manager/manager_p.hpp>

#include <zo_ui/zo_ui_connect.hpp>
#include <zo_ui/zo_ui_screen.hpp>

#include <algorithm>
#include <boost/weak_ptr.hpp>

namespace {

zo::panel_part part_of(const GtkAllocation& allocation) {
    return {allocation.y, allocation.width, allocation.height};
}

}  // namespace

struct zo::panel_handlers {
    static void on_left(GtkWidget*, GtkAllocation* allocation, _zo_window_manager* manager) {
        manager->on_left_allocated(*allocation);
    }

    static void on_center(GtkWidget*, GtkAllocation* allocation, _zo_window_manager* manager) {
        manager->widgets_.center = part_of(*allocation);
        manager->scroll_to_newest();
    }

    static void on_right(GtkWidget*, GtkAllocation* allocation, _zo_window_manager* manager) {
        manager->on_right_allocated(*allocation);
    }

    static void on_panel(GtkWidget*, GtkAllocation* allocation, _zo_window_manager* manager) {
        manager->on_panel_allocated(*allocation);
    }

    static gboolean on_crossing(GtkWidget* widget, GdkEventCrossing* event, _zo_window_manager* manager) {
        const zo_window_manager_ptr self = manager->handle();
        return manager->crossing_handler_(widget, event);
    }

    static void on_grab(GtkWidget*, gboolean ended, _zo_window_manager* manager) {
        const zo_window_manager_ptr self = manager->handle();
        if (ended)
            manager->on_grab_ended();
        else
            manager->on_grab_begun();
    }
};

void _zo_window_manager::connect_panel() {
    using zo::panel_handlers;
    const auto connect = [this](GtkWidget* widget, const char* signal, GCallback handler) {
        g_signal_connect(widget, signal, handler, this);
    };
    connect(widgets_.taskbox_left, "size-allocate", G_CALLBACK(panel_handlers::on_left));
    connect(widgets_.taskbox_center, "size-allocate", G_CALLBACK(panel_handlers::on_center));
    connect(widgets_.taskbox_right, "size-allocate", G_CALLBACK(panel_handlers::on_right));
    connect(widgets_.window, "size-allocate", G_CALLBACK(panel_handlers::on_panel));
    gtk_widget_add_events(widgets_.event_box, GDK_ENTER_NOTIFY_MASK | GDK_LEAVE_NOTIFY_MASK);
    connect(widgets_.event_box, "enter-notify-event", G_CALLBACK(panel_handlers::on_crossing));
    connect(widgets_.event_box, "leave-notify-event", G_CALLBACK(panel_handlers::on_crossing));
    connect(widgets_.event_box, "grab-notify", G_CALLBACK(panel_handlers::on_grab));
    // The handler goes with the button, which may outlive the panel's use (disconnect_panel()).
    const boost::weak_ptr<_zo_window_manager> weak = handle();
    zo_ui_connect_button_click_signal(widgets_.lock_button, [weak](GtkWidget* button) {
        const zo_window_manager_ptr self = weak.lock();
        if (self && self->widgets_.window && self->widgets_.lock_button == button)
            self->lock_clicked_(button);
    });
}

// When the service is done, a closed panel stays on screen; one that others destroy has children that go
// after it. Neither tells the manager any more (test "ManagerServiceEnd.ForgetsThePanel").
void _zo_window_manager::disconnect_panel() {
    if (!widgets_.window) return;
    for (GtkWidget* widget : {widgets_.taskbox_left, widgets_.taskbox_center, widgets_.taskbox_right,
                              widgets_.event_box, widgets_.window})
        g_signal_handlers_disconnect_by_data(widget, this);
}

// Keeps exactly one pixel row of a retracted panel on screen when its height changes.
void _zo_window_manager::on_panel_allocated(const GtkAllocation& allocation) {
    const int previous_y = widgets_.y;
    const int previous_height = widgets_.panel.height;
    widgets_.panel = part_of(allocation);
    if (widgets_.y == zo_ui_screen_y()) return;
    widgets_.x = zo_ui_screen_x();
    widgets_.y = zo_ui_screen_y() - allocation.height + 1;
    if (widgets_.y != previous_y || previous_height > allocation.height) place_panel();
    shape_input();
}

// GTK tells of a region that changes, and the right one need not change with the left one: it may stay where
// it is and as wide as it was. Before its first layout the scroller keeps its first width.
void _zo_window_manager::on_left_allocated(const GtkAllocation& allocation) {
    const bool is_changed = widgets_.left.width != allocation.width;
    widgets_.left = part_of(allocation);
    if (is_changed && widgets_.right.height > 0) fit_soon();
}

void _zo_window_manager::on_right_allocated(const GtkAllocation& allocation) {
    widgets_.right = part_of(allocation);
    fit_soon();
}

void _zo_window_manager::fit_soon() {
    if (gtk_widget_get_mapped(widgets_.window))
        fitting_.ask([this] { fit_scroller(); });
    else
        fit_scroller();
}

void _zo_window_manager::fit_scroller() {
    if (!widgets_.taskbox_scroll) return;
    const int width = zo_ui_workarea_width() - widgets_.right.width - widgets_.left.width;
    gtk_scrolled_window_set_min_content_width(GTK_SCROLLED_WINDOW(widgets_.taskbox_scroll),
                                              std::max(width, 0));
}
