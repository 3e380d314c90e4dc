// SPDX-License-Identifier: MIT
// The object: making it, its type and its handles.
#include <zo_ui/zo_window_manager/manager_p.hpp>

#include <zo_core/zo_describe_p.hpp>
#include <zo_core/zo_diagnostics_p.hpp>

namespace {

constexpr const char* tag = "[zo_window_manager]";

}  // namespace

// The stored handlers know the manager, not hold it: they are its own. The panel window holds it.
_zo_window_manager::_zo_window_manager() {
    init_properties();
    crossing_handler_ = [this](GtkWidget*, GdkEventCrossing* event) { return on_crossing(*event); };
    lock_clicked_ = [this](GtkWidget*) { on_lock_clicked(); };
    zo_object_ref_increment(tag);
}

_zo_window_manager::~_zo_window_manager() { zo_object_ref_decrement(tag); }

zo_object_ptr _zo_window_manager::to_object() { return shared_from_this(); }

std::string _zo_window_manager::get_type() { return tag; }

std::string _zo_window_manager::describe() {
    zo::description description(*this);
    const zo::property_guard guard(*this, zo::manager_source::file, zo::manager_source::state_reader);
    description.state({{"destroyed", "manager-destroyed"},
                       {"being destroyed", "object-destroyed"},
                       {"visible", "manager-visible"},
                       {"opened", "manager-opened"}},
                      "closed");
    description.state({{"kept extended", "manager-keep-extended"}}, "slides away");
    return description.line();
}

zo_window_manager_ptr _zo_window_manager::handle() {
    return boost::static_pointer_cast<_zo_window_manager>(shared_from_this());
}

zo_window_manager_ptr zo_window_manager_new(std::string) {
    const zo_window_manager_ptr manager(new _zo_window_manager);
    zo_object_ref(manager);
    return manager;
}

bool zo_is_window_manager(zo_object_ptr object) {
    return dynamic_cast<_zo_window_manager*>(object.get()) != nullptr;
}

zo_object_ptr zo_window_manager_to_object(zo_window_manager_ptr manager) {
    if (zo::refuse_null(manager, __func__)) return {};
    return manager->to_object();
}

zo_window_manager_ptr zo_window_manager_from_object(zo_object_ptr object) {
    if (zo::refuse_null(object, __func__)) return {};
    return boost::dynamic_pointer_cast<_zo_window_manager>(object);
}
