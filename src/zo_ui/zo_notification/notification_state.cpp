// SPDX-License-Identifier: MIT
// The state flags: the only place that writes them.
#include <zo_ui/zo_notification/notification_p.hpp>

namespace source = zo::notification_source;

namespace {

bool read_state(_zo_notification& notification, const char* name) {
    bool value = false;
    zo::property_guard guard(notification, source::file, source::state_reader);
    guard.read(name, value, {"&value"});
    return value;
}

void write_state(_zo_notification& notification, const char* name, bool b, int line) {
    zo::property_guard guard(notification, source::file, line);
    guard.write(name, b, {"b"});
}

}  // namespace

bool _zo_notification::is_opened() { return read_state(*this, "window-opened"); }
bool _zo_notification::is_visible() { return read_state(*this, "window-visible"); }
bool _zo_notification::is_destroyed() { return read_state(*this, "window-destroyed"); }

void _zo_notification::set_opened(bool value) {
    write_state(*this, "window-opened", value, source::state_writer);
}

void _zo_notification::set_visible(bool value, int line) {
    write_state(*this, "window-visible", value, line);
}

void _zo_notification::set_destroyed(bool value) {
    write_state(*this, "window-destroyed", value, source::state_writer);
}
