// SPDX-License-Identifier: MIT
// The property table and the state flags: the only place that writes them.
#include <zo_ui/zo_window_manager/manager_p.hpp>

#include <zo_core/zo_diagnostics_p.hpp>

namespace source = zo::manager_source;

namespace {

bool read_state(_zo_window_manager& manager, const char* name) {
    bool value = false;
    zo::property_guard guard(manager, source::file, source::state_reader);
    guard.read_checked(name, value, {"&value"});
    return value;
}

void write_state(_zo_window_manager& manager, const char* name, bool b) {
    zo::property_guard guard(manager, source::file, source::state_writer);
    guard.write(name, b, {"b"});
}

bool answer(const zo_window_manager_ptr& manager, bool* value, const char* function,
            bool (_zo_window_manager::*state)()) {
    if (zo::refuse_null(manager, function) || !value) return false;
    *value = (manager.get()->*state)();
    return true;
}

}  // namespace

void _zo_window_manager::init_properties() {
    zo::property_guard guard(*this, source::file, source::constructor);
    for (const char* flag :
         {"manager-visible", "manager-opened", "manager-destroyed", "manager-keep-extended"})
        guard.init<bool>(flag, false, "false");
    for (const char* name :
         {"manager-open", "manager-show", "manager-hide", "manager-close", "manager-destroy"})
        guard.init<callback_function>(name, nullptr, "nullptr");
}

_zo_window_manager::callback_function _zo_window_manager::callback(const char* name, int line) {
    callback_function fn;
    zo::property_guard guard(*this, source::file, line);
    guard.read_checked(name, fn, {"&fn"});
    return fn;
}

bool _zo_window_manager::is_opened() { return read_state(*this, "manager-opened"); }
bool _zo_window_manager::is_visible() { return read_state(*this, "manager-visible"); }
bool _zo_window_manager::is_destroyed() { return read_state(*this, "manager-destroyed"); }
bool _zo_window_manager::get_keep_extended() { return read_state(*this, "manager-keep-extended"); }

void _zo_window_manager::set_opened(bool value) { write_state(*this, "manager-opened", value); }
void _zo_window_manager::set_visible(bool value) { write_state(*this, "manager-visible", value); }
void _zo_window_manager::set_destroyed(bool value) { write_state(*this, "manager-destroyed", value); }

bool zo_window_manager_is_opened(zo_window_manager_ptr manager, bool* value) {
    return answer(manager, value, __func__, &_zo_window_manager::is_opened);
}

bool zo_window_manager_is_visible(zo_window_manager_ptr manager, bool* value) {
    return answer(manager, value, __func__, &_zo_window_manager::is_visible);
}

bool zo_window_manager_is_destroyed(zo_window_manager_ptr manager, bool* value) {
    return answer(manager, value, __func__, &_zo_window_manager::is_destroyed);
}

bool zo_window_manager_get_keep_extended(zo_window_manager_ptr manager) {
    return !zo::refuse_null(manager, __func__) && manager->get_keep_extended();
}
