// SPDX-License-Identifier: MIT
// Windows join and leave, and tell what happens to them. A window that is not registered is ignored.
#include <zo_ui/zo_window_manager/manager_p.hpp>

#include <zo_ui/zo_window/window_p.hpp>

namespace {

constexpr double shown_opacity = 1.0;
constexpr double hidden_opacity = 0.6;

}  // namespace

zo::window_host& zo::host_of(_zo_window_manager& manager) { return manager; }

void _zo_window_manager::connect_window(zo_window_ptr window) {
    if (is_destroyed() || destroying_ || window->is_destroyed() || !registered_windows_.add(window)) return;
    zo::join_task(window);
    if (window->is_reffed()) zo_object_unref_real(window);
    // One that is open already gets what it would have got; where there is no panel, that is nothing.
    if (!window->is_opened() || !is_opened()) return;
    on_window_open(window);
    if (!window->is_visible()) on_window_hidden(window);
}

void _zo_window_manager::disconnect_window(zo_window_ptr window) {
    if (!registered_windows_.remove(window)) return;
    const zo_window_manager_ptr self = handle();
    shown_windows_.remove(window);
    const zo::task task = zo::read_task(window);
    // Forgotten before they go: the application's "destroy" handlers may let the window join again (test
    // "JoiningAgainWhileLeaving").
    zo::write_task_button(window, nullptr);
    zo::write_task_close(window, nullptr);
    zo::write_task_click(window, nullptr);
    // The button itself goes, its padding stays in the row (test "LeavingLeavesThePaddingInTheRow").
    const auto take_out = [&](GtkWidget* button, zo::task_role role) {
        if (!is_opened() || !is_task(button, role, window)) return;
        let_go_of(button);
        gtk_container_remove(GTK_CONTAINER(gtk_widget_get_parent(button)), button);
    };
    take_out(task.button, zo::task_role::button);
    take_out(task.close, zo::task_role::close);
    delete task.click;
    let_go_when_done();
}

void _zo_window_manager::on_window_open(zo_window_ptr window) {
    if (!registered_windows_.contains(window)) return;
    shown_windows_.remove(window);
    shown_windows_.add(window);
    if (is_opened() && widgets_.window) open_task_buttons(window);
}

// A window of a panel that is closed does not stay on screen.
void _zo_window_manager::on_window_shown(zo_window_ptr window) {
    if (!shown_windows_.contains(window)) return;
    if (is_opened()) return set_task_opacity(window, shown_opacity);
    window->save();
    window->_hide();
}

void _zo_window_manager::on_window_hidden(zo_window_ptr window) {
    if (shown_windows_.contains(window) && is_opened()) set_task_opacity(window, hidden_opacity);
}

void _zo_window_manager::on_window_close(zo_window_ptr window) {
    if (!shown_windows_.remove(window)) return;
    const zo::task task = zo::read_task_buttons(window);
    zo::write_task_button(window, nullptr);
    zo::write_task_close(window, nullptr);
    const auto drop = [&](GtkWidget* button, zo::task_role role) {
        if (!is_opened() || !is_task(button, role, window)) return;
        let_go_of(button);
        gtk_container_remove(GTK_CONTAINER(widgets_.taskbox_center), gtk_widget_get_parent(button));
    };
    drop(task.button, zo::task_role::button);
    drop(task.close, zo::task_role::close);
}

void _zo_window_manager::on_window_destroy(zo_window_ptr window) { disconnect_window(window); }
