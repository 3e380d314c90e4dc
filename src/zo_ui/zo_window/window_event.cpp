// SPDX-License-Identifier: MIT
#include <zo_ui/zo_window_event.hpp>

#include <zo_core/zo_diagnostics_p.hpp>

namespace {

constexpr const char* tag = "[zo_window_event]";

}  // namespace

_zo_window_event::_zo_window_event(int type) : code_(type) { zo_object_ref_increment(tag); }

_zo_window_event::~_zo_window_event() { zo_object_ref_decrement(tag); }

std::string _zo_window_event::get_type() { return tag; }

zo_window_event_ptr _zo_window_event::to_event() {
    return boost::static_pointer_cast<_zo_window_event>(shared_from_this());
}

zo_window_event_ptr zo_window_event_new(int type) { return zo_window_event_ptr(new _zo_window_event(type)); }

int zo_window_event_get_code(zo_window_event_ptr event) {
    return zo::refuse_null(event, __func__) ? 0 : event->get_code();
}

bool zo_is_window_event(zo_object_ptr object) {
    return dynamic_cast<_zo_window_event*>(object.get()) != nullptr;
}

zo_object_ptr zo_window_event_to_object(zo_window_event_ptr event) {
    if (zo::refuse_null(event, __func__)) return {};
    return event->to_object();
}

zo_window_event_ptr zo_window_event_from_object(zo_object_ptr object) {
    if (zo::refuse_null(object, __func__)) return {};
    return boost::dynamic_pointer_cast<_zo_window_event>(object);
}
