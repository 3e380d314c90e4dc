// SPDX-License-Identifier: MIT
// What the tree's signals do. Every handler holds the window while it runs; the toplevel holds it before.
#include <zo_ui/zo_window/window_p.hpp>

#include <zo_ui/zo_ui_screen.hpp>
#include <zo_ui/zo_window/window_active_p.hpp>

#include <algorithm>

namespace {

// The state of a focused window that is kept above and was just maximised.
constexpr auto maximized_state = static_cast<GdkWindowState>(
    GDK_WINDOW_STATE_MAXIMIZED | GDK_WINDOW_STATE_ABOVE | GDK_WINDOW_STATE_FOCUSED);
static_assert(GDK_WINDOW_STATE_MAXIMIZED == 4 && maximized_state == 164);

zo::window_part part_of(const GtkAllocation& allocation) {
    return {allocation.y, allocation.width, allocation.height};
}

}  // namespace

struct zo::window_handlers {
    static gboolean on_press(GtkWidget*, GdkEventButton* event, _zo_window* window) {
        const zo_window_ptr self = window->handle();
        if (event->type == GDK_BUTTON_PRESS && event->button == 1) window->close_tool_menu();
        return FALSE;
    }

    static gboolean on_focus_in(GtkWidget* toplevel, GdkEventFocus*, _zo_window*) {
        mark_active(toplevel);
        return FALSE;
    }

    // The class stays until another managed window takes the focus.
    static gboolean on_focus_out(GtkWidget*, GdkEventFocus*, _zo_window*) { return FALSE; }

    // When only the focus inside the window goes from the toplevel itself to another widget, GTK must not
    // hear that the window has lost it (test "KeepsTheKeyboardWhenTheFocusMovesInside").
    static gboolean on_any_event(GtkWidget*, GdkEvent* event, _zo_window* window) {
        return window->moving_focus_ && event->type == GDK_FOCUS_CHANGE && !event->focus_change.in;
    }

    static void on_focus_moves(GtkWindow*, GtkWidget*, _zo_window* window) { window->moving_focus_ = true; }
    static void on_focus_moved(GtkWindow*, GtkWidget*, _zo_window* window) { window->moving_focus_ = false; }

    static gboolean on_state(GtkWidget*, GdkEventWindowState* event, _zo_window* window) {
        const zo_window_ptr self = window->handle();
        window->on_window_state(*event);
        return FALSE;
    }

    static gboolean on_map(GtkWidget*, GdkEvent*, _zo_window* window) {
        window->on_mapped();
        return FALSE;
    }

    static gboolean on_configure(GtkWidget*, GdkEventConfigure* event, _zo_window* window) {
        window->on_configured(*event);
        return FALSE;
    }

    static gboolean on_delete(GtkWidget*, GdkEvent*, _zo_window* window) {
        const zo_window_ptr self = window->handle();
        window->request_close();
        return TRUE;  // GTK never destroys the window by itself
    }

    static gboolean on_key(GtkWidget*, GdkEventKey* event, _zo_window* window) {
        const zo_window_ptr self = window->handle();
        return window->on_tool_menu_key(*event);
    }

    static void on_title_size(GtkWidget*, GtkAllocation* allocation, _zo_window* window) {
        window->title_part_ = part_of(*allocation);
    }

    static void on_ads_size(GtkWidget*, GtkAllocation* allocation, _zo_window* window) {
        window->ads_part_ = part_of(*allocation);
    }

    static void on_content_size(GtkWidget*, GtkAllocation* allocation, _zo_window* window) {
        window->on_content_allocated(*allocation);
    }
};

void _zo_window::connect_tree(const zo::window_settings& settings) {
    using zo::window_handlers;
    gtk_widget_add_events(widgets_.window,
                          GDK_BUTTON_PRESS_MASK | GDK_BUTTON_RELEASE_MASK | GDK_FOCUS_CHANGE_MASK);
    gtk_widget_add_events(widgets_.content_event_box, GDK_BUTTON_PRESS_MASK | GDK_BUTTON_RELEASE_MASK);
    for (GtkWidget* box : {widgets_.content_event_box, widgets_.title_event_box})
        if (box) g_signal_connect(box, "button-press-event", G_CALLBACK(window_handlers::on_press), this);
    connect_toplevel();
    if (settings.drag_enabled && widgets_.title_event_box) connect_drag();
    if (!settings.use_scroll) return;
    const auto on_size = [this](GtkWidget* widget, void (*handler)(GtkWidget*, GtkAllocation*, _zo_window*)) {
        if (widget) g_signal_connect(widget, "size-allocate", G_CALLBACK(handler), this);
    };
    on_size(widgets_.title_box, window_handlers::on_title_size);
    on_size(widgets_.ads_container, window_handlers::on_ads_size);
    on_size(widgets_.content_box, window_handlers::on_content_size);
}

void _zo_window::connect_toplevel() {
    using zo::window_handlers;
    const auto connect = [this](const char* signal, GCallback handler) {
        g_signal_connect(widgets_.window, signal, handler, this);
    };
    if (!popup_) {
        connect("focus-in-event", G_CALLBACK(window_handlers::on_focus_in));
        connect("focus-out-event", G_CALLBACK(window_handlers::on_focus_out));
        connect("event", G_CALLBACK(window_handlers::on_any_event));
        connect("set-focus", G_CALLBACK(window_handlers::on_focus_moves));
        g_signal_connect_after(widgets_.window, "set-focus", G_CALLBACK(window_handlers::on_focus_moved),
                               this);
    }
    connect("window-state-event", G_CALLBACK(window_handlers::on_state));
    connect("configure-event", G_CALLBACK(window_handlers::on_configure));
    connect("map-event", G_CALLBACK(window_handlers::on_map));
    connect("delete-event", G_CALLBACK(window_handlers::on_delete));
    connect("key-press-event", G_CALLBACK(window_handlers::on_key));
}

// Closes the window when somebody else destroyed its toplevel. When the window itself does, it is not opened
// any more and nothing happens here.
void _zo_window::on_toplevel_destroyed(GtkWidget* window) {
    if (widgets_.window == window) _close();
}

void _zo_window::on_content_allocated(const GtkAllocation& allocation) {
    content_part_ = part_of(allocation);
    if (gtk_widget_get_mapped(widgets_.window))
        fitting_.ask([this] { fit_scroller(); });
    else
        fit_scroller();
}

// The scroller asks for what the content takes, as far as the work area goes.
void _zo_window::fit_scroller() {
    if (!widgets_.scroll) return;
    int width = content_part_.width;
    int height = content_part_.height;
    if (zo_ui_workarea_width() > 0) width = std::min(width, zo_ui_workarea_width());
    if (zo_ui_workarea_height() > 0)
        height = std::min(height, zo_ui_workarea_height() - ads_part_.height - title_part_.height);
    auto* scroll = GTK_SCROLLED_WINDOW(widgets_.scroll);
    gtk_scrolled_window_set_min_content_width(scroll, std::max(width, 0));
    gtk_scrolled_window_set_min_content_height(scroll, std::max(height, 0));
}

// The library's windows refuse to stay maximised. Exactly this change to exactly this state is taken back;
// others are the application's or the desktop's wish (test "OnlyTheExactMaximisedStateIsTakenBack").
void _zo_window::on_window_state(const GdkEventWindowState& event) {
    if (event.changed_mask == GDK_WINDOW_STATE_MAXIMIZED && event.new_window_state == maximized_state) {
        unmaximizing_ = true;
        gtk_window_unmaximize(GTK_WINDOW(widgets_.window));
        gtk_window_set_position(GTK_WINDOW(widgets_.window), GTK_WIN_POS_CENTER);
        return;
    }
    const bool unmaximized = (event.changed_mask & GDK_WINDOW_STATE_MAXIMIZED) &&
                             !(event.new_window_state & GDK_WINDOW_STATE_MAXIMIZED);
    if (!unmaximized || !std::exchange(unmaximizing_, false)) return;
    // set_position moves no window that is on screen already.
    centring_ = true;
    int width = 0;
    int height = 0;
    gtk_window_get_size(GTK_WINDOW(widgets_.window), &width, &height);
    centre(width, height);
}

void _zo_window::centre(int width, int height) {
    if (zo_ui_workarea_width() <= 0 || zo_ui_workarea_height() <= 0) return;
    gtk_window_move(GTK_WINDOW(widgets_.window), zo_ui_workarea_x() + (zo_ui_workarea_width() - width) / 2,
                    zo_ui_workarea_y() + (zo_ui_workarea_height() - height) / 2);
    centred_width_ = width;
    centred_height_ = height;
}

// The un-maximised size may come after the state: then the window is centred once more. What comes later is
// the user's (test "ALaterSizeLeavesTheWindowInItsPlace").
void _zo_window::on_configured(const GdkEventConfigure& event) {
    asked_place_.reset();
    if (!std::exchange(centring_, false)) return;
    if (event.width != centred_width_ || event.height != centred_height_) centre(event.width, event.height);
}

// A desktop that sees a window go and come back at once takes the hints away that GTK set in between. When
// the window is back, it is asked for them again.
void _zo_window::on_mapped() {
    placed_ = true;
    if (!was_hidden_ || !widgets_.window) return;
    was_hidden_ = !withdrawal_.is_settled();
    auto* window = GTK_WINDOW(widgets_.window);
    GdkWindow* native = gtk_widget_get_window(widgets_.window);
    if (kept_above_) gdk_window_set_keep_above(native, TRUE);
    if (gtk_window_get_skip_taskbar_hint(window)) gdk_window_set_skip_taskbar_hint(native, TRUE);
    if (gtk_window_get_skip_pager_hint(window)) gdk_window_set_skip_pager_hint(native, TRUE);
}
