// SPDX-License-Identifier: MIT
// The window's side of its link to a manager.
#include <zo_ui/zo_window/window_p.hpp>

#include <zo_core/zo_diagnostics_p.hpp>
#include <zo_core/zo_service.hpp>

void _zo_window::tell_manager(void (zo::window_host::*event)(zo_window_ptr)) {
    if (const zo_window_manager_ptr manager = manager_.load()) (zo::host_of(*manager).*event)(handle());
}

void _zo_window::set_window_manager(zo_window_manager_ptr manager) {
    if (is_destroyed()) return;
    const auto task = [self = handle(), manager] { self->join(manager); };
    zo_system_service_exec(task, zo::window_source::file, zo::window_source::set_window_manager);
}

void _zo_window::join(const zo_window_manager_ptr& manager) {
    const zo_window_manager_ptr left = manager_.load();
    if (is_destroyed() || left == manager) return;
    const unsigned link = ++links_;
    tell_manager(&zo::window_host::disconnect_window);
    // The manager that was left may have run a later link, even one to itself, or the window's end.
    if (is_destroyed() || links_ != link) return;
    manager_.store(manager);
    tell_manager(&zo::window_host::connect_window);
}

bool zo_window_set_window_manager(zo_window_ptr window, zo_window_manager_ptr manager) {
    if (zo::refuse_null(window, __func__)) return false;
    window->set_window_manager(std::move(manager));
    return true;
}

zo_window_manager_ptr zo_window_get_window_manager(zo_window_ptr window) {
    if (zo::refuse_null(window, __func__)) return {};
    return window->window_manager();
}
