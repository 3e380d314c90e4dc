// SPDX-License-Identifier: MIT
// The object: making it, its type, its handles, and the way from any thread to the loop.
#include <zo_ui/zo_appindicator/appindicator_p.hpp>

#include <zo_core/zo_describe_p.hpp>
#include <zo_core/zo_diagnostics_p.hpp>
#include <zo_core/zo_object_p.hpp>
#include <zo_core/zo_service.hpp>

namespace {

namespace source = zo::appindicator_source;

constexpr const char* tag = "[zo_appindicator]";

}  // namespace

_zo_appindicator::_zo_appindicator(std::string name, std::string title, std::string icon) {
    zo_object_ref_increment(tag);
    zo::property_guard guard(*this, source::file, source::constructor);
    guard.init<indicator_data_ptr>("indicator", indicator_data_ptr(new indicator_data),
                                   "indicator_data_ptr(new indicator_data)");
    guard.init<std::string>("icon", std::move(icon), "icon");
    guard.init<std::string>("title", std::move(title), "title");
    guard.init<std::string>("name", std::move(name), "name");
    guard.init<std::string>("label", "", "\"\"");
}

_zo_appindicator::~_zo_appindicator() { zo_object_ref_decrement(tag); }

zo_object_ptr _zo_appindicator::to_object() { return shared_from_this(); }

std::string _zo_appindicator::get_type() { return tag; }

std::string _zo_appindicator::describe() {
    zo::description description(*this);
    const zo::property_guard guard(*this, source::file, source::show_task);
    description.text("id", "name");
    description.text("title", "title");
    description.text("icon", "icon");
    description.state({{"destroyed", "object-destroyed"}}, "in use");
    return description.line();
}

zo_appindicator_ptr _zo_appindicator::handle() {
    return boost::static_pointer_cast<_zo_appindicator>(shared_from_this());
}

void _zo_appindicator::destroy(std::string reason, int line) {
    if (zo::begin_destroy(*this, source::file, source::destroy_guard, reason, line))
        zo_system_service_exec([self = handle()] { self->destroy_now(); }, source::file,
                               source::destroy_with_reason);
}

void _zo_appindicator::add_action(std::string name, std::string label, callback_function callback) {
    auto task = [self = handle(), name = std::move(name), label = std::move(label),
                 callback = std::move(callback)]() mutable { self->add_action_now(name, label, callback); };
    zo_system_service_exec(std::move(task), source::file, source::add_action);
}

void _zo_appindicator::show() {
    zo_system_service_exec([self = handle()] { self->show_now(); }, source::file, source::show);
}

zo_appindicator_ptr zo_appindicator_new(std::string name, std::string title, std::string icon) {
    const zo_appindicator_ptr indicator(
        new _zo_appindicator(std::move(name), std::move(title), std::move(icon)));
    zo_object_ref(indicator);
    return indicator;
}

bool zo_appindicator_add_action(zo_appindicator_ptr indicator, std::string name, std::string label,
                                std::function<void(zo_appindicator_ptr, std::string&)> callback) {
    if (zo::refuse_null(indicator, __func__)) return false;
    indicator->add_action(std::move(name), std::move(label), std::move(callback));
    return true;
}

bool zo_appindicator_show(zo_appindicator_ptr indicator) {
    if (zo::refuse_null(indicator, __func__)) return false;
    indicator->show();
    return true;
}

bool zo_is_appindicator(zo_object_ptr object) {
    return dynamic_cast<_zo_appindicator*>(object.get()) != nullptr;
}

zo_object_ptr zo_appindicator_to_object(zo_appindicator_ptr indicator) {
    if (zo::refuse_null(indicator, __func__)) return {};
    return indicator->to_object();
}

zo_appindicator_ptr zo_appindicator_from_object(zo_object_ptr object) {
    if (zo::refuse_null(object, __func__)) return {};
    return boost::dynamic_pointer_cast<_zo_appindicator>(object);
}
