// SPDX-License-Identifier: MIT
// The state flags: the only place that writes them.
#include <zo_ui/zo_window/window_p.hpp>

#include <zo_core/zo_diagnostics_p.hpp>

namespace {

bool read_state(_zo_window& window, const char* name) {
    bool value = false;
    zo::property_guard guard(window, zo::window_source::file, zo::window_source::state_reader);
    guard.read(name, value, {"&value"});
    return value;
}

void write_state(_zo_window& window, const char* name, bool b) {
    zo::property_guard guard(window, zo::window_source::file, zo::window_source::state_writer);
    guard.write(name, b, {"b"});
}

// The out pointer comes first: without one there is nothing to do, and nothing to warn of.
bool answer(const zo_window_ptr& window, bool* value, const char* function, bool (_zo_window::*state)()) {
    if (!value || zo::refuse_null(window, function)) return false;
    *value = (window.get()->*state)();
    return true;
}

}  // namespace

bool _zo_window::is_opened() { return read_state(*this, "window-opened"); }
bool _zo_window::is_visible() { return read_state(*this, "window-visible"); }
bool _zo_window::is_destroyed() { return read_state(*this, "window-destroyed"); }

void _zo_window::set_opened(bool value) { write_state(*this, "window-opened", value); }
void _zo_window::set_visible(bool value) { write_state(*this, "window-visible", value); }
void _zo_window::set_destroyed(bool value) { write_state(*this, "window-destroyed", value); }

void _zo_window::raise_instance_id(zo::property_guard& guard) {
    int instance_id = 0;
    guard.read("instanceId", instance_id, {"&instanceId"});
    int next = instance_id + 1;
    guard.write("instanceId", next, {"instanceId+1"});
}

void _zo_window::save() {
    bool visible = is_visible();
    bool opened = is_opened();
    bool destroyed = is_destroyed();
    zo::property_guard guard(*this, zo::window_source::file, zo::window_source::save_now);
    guard.write("window-restore-visible", visible, {"visible"});
    guard.write("window-restore-opened", opened, {"opened"});
    guard.write("window-restore-destroyed", destroyed, {"destroyed"});
}

bool zo_window_is_opened(zo_window_ptr window, bool* value) {
    return answer(window, value, __func__, &_zo_window::is_opened);
}

bool zo_window_is_visible(zo_window_ptr window, bool* value) {
    return answer(window, value, __func__, &_zo_window::is_visible);
}

bool zo_window_is_destroyed(zo_window_ptr window, bool* value) {
    return answer(window, value, __func__, &_zo_window::is_destroyed);
}

int zo_window_instance_id(zo_window_ptr window) {
    if (zo::refuse_null(window, __func__)) return 0;
    int value = 0;
    zo::property_guard guard(*window, zo::window_source::file, zo::window_source::instance_id);
    guard.read("instanceId", value, {"&value", "ptr->property_list"});
    return value;
}

bool zo_window_save(zo_window_ptr window) {
    if (zo::refuse_null(window, __func__)) return false;
    window->save();
    return true;
}
