// SPDX-License-Identifier: MIT
// The object: making it, its type and its handles.
#include <zo_ui/zo_window/window_p.hpp>

#include <zo_core/zo_describe_p.hpp>
#include <zo_core/zo_diagnostics_p.hpp>

namespace {

constexpr const char* tag = "[zo_window]";

}  // namespace

_zo_window::_zo_window() {
    zo_object_ref_increment(tag);
    init_properties();
    init();
}

_zo_window::~_zo_window() { zo_object_ref_decrement(tag); }

zo_object_ptr _zo_window::to_object() { return shared_from_this(); }

std::string _zo_window::get_type() { return tag; }

std::string _zo_window::describe() {
    zo::description description(*this);
    const zo::property_guard guard(*this, zo::window_source::file, zo::window_source::state_reader);
    description.text("id", "window-id");
    description.text("title", "window-title-text");
    description.state({{"destroyed", "window-destroyed"},
                       {"being destroyed", "object-destroyed"},
                       {"visible", "window-visible"},
                       {"opened", "window-opened"}},
                      "closed");
    return description.line();
}

zo_window_ptr _zo_window::handle() { return boost::static_pointer_cast<_zo_window>(shared_from_this()); }

zo_window_ptr zo_window_new(std::string id) {
    const zo_window_ptr window(new _zo_window);
    if (!id.empty()) zo_window_set_id(window, std::move(id));
    zo_object_ref(window);
    return window;
}

bool zo_is_window(zo_object_ptr object) { return dynamic_cast<_zo_window*>(object.get()) != nullptr; }

zo_object_ptr zo_window_to_object(zo_window_ptr window) {
    if (zo::refuse_null(window, __func__)) return {};
    return window->to_object();
}

zo_window_ptr zo_window_from_object(zo_object_ptr object) {
    if (zo::refuse_null(object, __func__)) return {};
    return boost::dynamic_pointer_cast<_zo_window>(object);
}
