// SPDX-License-Identifier: MIT
// Opening, showing, hiding, closing and destroying. Loops run over copies that hold what they walk, and the
// manager holds itself: what it calls may change everything.
// The flags are properties that the application can write: "manager-opened" promises no panel.
#include <zo_ui/zo_window_manager/manager_p.hpp>

#include <zo_core/zo_diagnostics.hpp>
#include <zo_core/zo_service.hpp>
#include <zo_ui/zo_window/window_p.hpp>
#include <zo_ui/zo_window_manager/manager_notification_p.hpp>

namespace source = zo::manager_source;

void _zo_window_manager::open_now() {
    if (is_opened() || is_destroyed() || is_visible()) return;
    if (!gdk_display_get_default()) {
        zo_assertion_faild(false, "display != nullptr", "manager-open", source::file, source::open_task);
        return;
    }
    const zo_window_manager_ptr self = handle();
    const callback_function fn = callback("manager-open", source::open_task);
    build_panel();
    open_task_buttons_of_all();
    if (fn) fn(self);
}

void _zo_window_manager::show_now() {
    if (!is_opened() || is_destroyed() || is_visible() || !widgets_.window) return;
    const zo_window_manager_ptr self = handle();
    const callback_function fn = callback("manager-show", source::show_task);
    set_visible(true);
    gtk_window_set_keep_above(GTK_WINDOW(widgets_.window), TRUE);
    for (const zo_window_ptr& window : shown_windows_.snapshot()) window->restore();
    for (const auto& [id, notification] : std::map(manager_notifications_))
        zo::show_notification(*notification);
    gtk_widget_show_all(widgets_.window);
    if (!is_visible() || !widgets_.window) return;
    gtk_window_get_position(GTK_WINDOW(widgets_.window), &widgets_.x, &widgets_.y);
    if (!get_keep_extended()) retract_now();
    if (fn) fn(self);
}

void _zo_window_manager::hide_now() {
    if (!is_opened() || is_destroyed() || !is_visible() || !widgets_.window) return;
    const zo_window_manager_ptr self = handle();
    const callback_function fn = callback("manager-hide", source::hide_task);
    set_visible(false);
    gtk_widget_hide(widgets_.window);
    for (const zo_window_ptr& window : shown_windows_.snapshot()) window->hide();
    for (const auto& [id, notification] : std::map(manager_notifications_))
        zo::hide_notification(*notification);
    if (fn) fn(self);
}

void _zo_window_manager::close_now() {
    if (!is_opened() || is_destroyed()) return;
    const zo_window_manager_ptr self = handle();
    const callback_function fn = callback("manager-close", source::close_task);
    // The close buttons and click handlers stay noted, unlike the task buttons (test
    // "CloseForgetsOnlyTheTaskButton").
    for (const zo_window_ptr& window : shown_windows_.snapshot()) {
        window->hide();
        GtkWidget* none = nullptr;
        zo::property_guard guard(*window, source::file, source::close_window_task);
        guard.write("manager-widget", none, {"nullptr", "(*w)->property_list"});
    }
    std::map<unsigned long, zo_notification_ptr> notifications;
    notifications.swap(manager_notifications_);
    for (const auto& [id, notification] : notifications)
        zo::destroy_notification(*notification, source::file, source::closes_notification);
    set_opened(false);
    set_visible(false);
    GtkWidget* const panel = widgets_.window;
    forget_panel();
    if (!zo_system_service_done() && panel && !gtk_widget_in_destruction(panel)) gtk_widget_destroy(panel);
    if (fn) fn(self);
}

void _zo_window_manager::destroy_now() {
    if (is_destroyed() || destroying_) return;
    destroying_ = true;
    const zo_window_manager_ptr self = handle();
    callback_function fn;
    std::array<callback_function, 5> cleared;  // outlives the locks
    {
        zo::property_guard guard(*this, source::file, source::destroy_task);
        guard.read_checked("manager-destroy", fn, {"&fn"});
        guard.write("manager-open", cleared[0], {"nullptr"});
        guard.write("manager-show", cleared[1], {"nullptr"});
        guard.write("manager-hide", cleared[2], {"nullptr"});
        guard.write("manager-destroy", cleared[3], {"nullptr"});
    }
    {
        zo::property_guard guard(*this, source::file, source::destroy_task_end);
        guard.write("manager-close", cleared[4], {"nullptr"});
    }
    for (const zo_window_ptr& window : registered_windows_.snapshot()) {
        window->set_window_manager({});
        window->destroy(source::file, source::destroys_window);
    }
    set_destroyed(true);
    // One that waits for the panel learns that it waits in vain.
    for (const auto& [id, notification] : std::map(manager_notifications_))
        zo::show_notification(*notification);
    if (fn) fn(self);
    let_go_when_done();
}

// The library's own reference goes when the manager is destroyed and its last window has left.
void _zo_window_manager::let_go_when_done() {
    if (!is_destroyed() || released_ || !registered_windows_.empty() || !is_reffed()) return;
    released_ = true;
    zo_object_unref(handle());
}

// A panel that somebody else destroyed ends in the closed state; of a destroyed manager only the widgets are
// forgotten.
void _zo_window_manager::on_panel_destroyed(GtkWidget* panel) {
    if (widgets_.window != panel) return;
    if (!is_destroyed() && is_opened()) return close_now();
    forget_panel();
}

void _zo_window_manager::forget_panel() {
    disconnect_panel();
    zo::panel_widgets kept;
    kept.lock_button = widgets_.lock_button;
    kept.keep_extended = widgets_.keep_extended;
    kept.x = widgets_.x;
    kept.y = widgets_.y;
    widgets_ = kept;
    newest_task_ = nullptr;
    grabbed_inside_ = false;
    forget_tasks();
    fitting_.cancel();
    scrolling_.cancel();
}
