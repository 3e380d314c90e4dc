// SPDX-License-Identifier: MIT
// The object: making it, its type and its handles.
#include <zo_ui/zo_notification/notification_p.hpp>

#include <zo_core/zo_describe_p.hpp>
#include <zo_core/zo_diagnostics_p.hpp>
#include <zo_core/zo_unique_id.hpp>

namespace source = zo::notification_source;

namespace {

constexpr const char* tag = "[zo_notification]";

}  // namespace

_zo_notification::_zo_notification() : id_(zo_get_unique_id()) {
    {
        zo::property_guard guard(*this, source::file, source::constructor);
        for (const char* flag : {"window-visible", "window-opened", "window-destroyed"})
            guard.init<bool>(flag, false, "false");
    }
    zo_object_ref_increment(tag);
}

_zo_notification::~_zo_notification() { zo_object_ref_decrement(tag); }

zo_object_ptr _zo_notification::to_object() { return shared_from_this(); }

std::string _zo_notification::get_type() { return tag; }

std::string _zo_notification::describe() {
    zo::description description(*this);
    const zo::property_guard guard(*this, source::file, source::settings);
    description.part("id", std::to_string(id_));
    description.part("title", zo::quoted(text_.title));
    description.state({{"destroyed", "window-destroyed"},
                       {"being destroyed", "object-destroyed"},
                       {"visible", "window-visible"},
                       {"opened", "window-opened"}},
                      "closed");
    return description.line();
}

zo_notification_ptr _zo_notification::handle() {
    return boost::static_pointer_cast<_zo_notification>(shared_from_this());
}

zo_notification_ptr zo_notification_new() {
    const zo_notification_ptr notification(new _zo_notification);
    zo_object_ref(notification);
    return notification;
}

bool zo_is_notification(zo_object_ptr object) {
    return dynamic_cast<_zo_notification*>(object.get()) != nullptr;
}

zo_object_ptr zo_notification_to_object(zo_notification_ptr notification) {
    if (zo::refuse_null(notification, __func__)) return {};
    return notification->to_object();
}

zo_notification_ptr zo_notification_from_object(zo_object_ptr object) {
    if (zo::refuse_null(object, __func__)) return {};
    return boost::dynamic_pointer_cast<_zo_notification>(object);
}
