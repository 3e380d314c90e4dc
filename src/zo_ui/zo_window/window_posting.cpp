// SPDX-License-Identifier: MIT
// From any thread to the loop: every post holds the window.
#include <zo_ui/zo_window/window_p.hpp>

#include <zo_core/zo_diagnostics_p.hpp>
#include <zo_core/zo_object_p.hpp>
#include <zo_core/zo_service.hpp>

namespace source = zo::window_source;

void _zo_window::post(void (_zo_window::*operation)(), int line) {
    zo_system_service_exec([self = handle(), operation] { (self.get()->*operation)(); }, source::file, line);
}

void _zo_window::open() { post(&_zo_window::_open, source::open); }
void _zo_window::show() { post(&_zo_window::_show, source::show); }
void _zo_window::hide() { post(&_zo_window::_hide, source::hide); }
void _zo_window::activate() { post(&_zo_window::_activate, source::activate); }
void _zo_window::restore() { post(&_zo_window::_restore, source::restore); }
void _zo_window::close() { post(&_zo_window::_close, source::close); }
void _zo_window::destroy() { post(&_zo_window::_destroy, source::destroy); }

void _zo_window::destroy(std::string reason, int line) {
    if (zo::begin_destroy(*this, source::file, source::destroy_guard, reason, line))
        post(&_zo_window::_destroy, source::destroy_with_reason);
}

void _zo_window::move(int x, int y) {
    zo_system_service_exec([self = handle(), x, y] { self->move_now(x, y); }, source::file, source::move);
}

void _zo_window::on_event(zo_window_event_ptr event) {
    const auto task = [self = handle(), event] {
        const auto fn =
            self->callback<void(zo_window_ptr, zo_window_event_ptr)>("window-on-event", source::event_task);
        if (fn) fn(self, event);
    };
    zo_system_service_exec(task, source::file, source::on_event);
}

namespace {

bool run(const zo_window_ptr& window, const char* function, void (_zo_window::*member)()) {
    if (zo::refuse_null(window, function)) return false;
    (window.get()->*member)();
    return true;
}

}  // namespace

bool zo_window_open(zo_window_ptr window) { return run(window, __func__, &_zo_window::open); }
bool zo_window_show(zo_window_ptr window) { return run(window, __func__, &_zo_window::show); }
bool zo_window_hide(zo_window_ptr window) { return run(window, __func__, &_zo_window::hide); }
bool zo_window_activate(zo_window_ptr window) { return run(window, __func__, &_zo_window::activate); }
bool zo_window_restore(zo_window_ptr window) { return run(window, __func__, &_zo_window::restore); }
bool zo_window_close(zo_window_ptr window) { return run(window, __func__, &_zo_window::close); }
bool zo_window_destroy(zo_window_ptr window) { return run(window, __func__, &_zo_window::destroy); }

bool zo_window_destroy(zo_window_ptr window, std::string reason, int line) {
    if (zo::refuse_null(window, __func__)) return false;
    window->destroy(std::move(reason), line);
    return true;
}

bool zo_window_move(zo_window_ptr window, int x, int y) {
    if (zo::refuse_null(window, __func__)) return false;
    window->move(x, y);
    return true;
}

bool zo_window_push_event(zo_window_ptr window, zo_window_event_ptr event) {
    if (zo::refuse_null(window, __func__) || zo::refuse_null(event, __func__)) return false;
    window->on_event(std::move(event));
    return true;
}
