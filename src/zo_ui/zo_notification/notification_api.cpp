// SPDX-License-Identifier: MIT
// The exported operations and setters, and what a manager asks of its notifications.
#include <zo_ui/zo_notification/notification_p.hpp>

#include <zo_core/zo_diagnostics_p.hpp>
#include <zo_core/zo_service.hpp>
#include <zo_core/zo_service_p.hpp>
#include <zo_ui/zo_window_manager/manager_notification_p.hpp>

namespace source = zo::notification_source;

void _zo_notification::post(void (_zo_notification::*operation)(), int line) {
    zo_system_service_exec([self = handle(), operation] { (self.get()->*operation)(); }, source::file, line);
}

// Closing twice is silent, so there is no guard here. Of many that go in a row, only the last moves the
// others.
void _zo_notification::destroy(std::string, int) {
    zo::post_gathering([self = handle()] { self->close_for_good(); }, source::file, source::destroy);
}

void zo::show_notification(_zo_notification& notification) {
    notification.post(&_zo_notification::_show, source::show);
}

void zo::hide_notification(_zo_notification& notification) {
    notification.post(&_zo_notification::_hide, source::hide);
}

void zo::destroy_notification(_zo_notification& notification, const char* reason, int line) {
    notification.destroy(reason, line);
}

namespace {

template <typename Value>
bool store(const zo_notification_ptr& notification, const char* function,
           void (_zo_notification::*setter)(Value), std::remove_reference_t<Value>& value) {
    if (zo::refuse_null(notification, function)) return false;
    (notification.get()->*setter)(value);
    return true;
}

}  // namespace

// exported name, member, type
#define ZO_NOTIFICATION_SETTER(name, member, ...)                                      \
    bool zo_notification_##name(zo_notification_ptr notification, __VA_ARGS__ value) { \
        return store(notification, __func__, &_zo_notification::member, value);        \
    }

ZO_NOTIFICATION_SETTER(set_title, set_title, std::string)
ZO_NOTIFICATION_SETTER(set_content, set_content, std::string)
ZO_NOTIFICATION_SETTER(set_timeout, set_timeout, int)
ZO_NOTIFICATION_SETTER(set_is_markup, set_is_markup, bool)
ZO_NOTIFICATION_SETTER(set_manager, set_manager, zo_window_manager_ptr)
ZO_NOTIFICATION_SETTER(on_close, set_on_close, std::function<void(zo_notification_ptr)>)
ZO_NOTIFICATION_SETTER(on_activate_link_callback, set_on_link,
                       std::function<bool(zo_notification_ptr, std::string&)>)

bool zo_notification_add_action(zo_notification_ptr notification, std::string name, std::string label,
                                std::function<void(std::string)> callback) {
    if (zo::refuse_null(notification, __func__)) return false;
    notification->add_action(name, label, callback);
    return true;
}

unsigned long zo_notification_get_id(zo_notification_ptr notification) {
    return zo::refuse_null(notification, __func__) ? 0 : notification->get_id();
}

bool zo_notification_open_show(zo_notification_ptr notification) {
    if (zo::refuse_null(notification, __func__)) return false;
    notification->post(&_zo_notification::_open, source::open);
    notification->post(&_zo_notification::_show, source::show);
    return true;
}

bool zo_notification_destroy(zo_notification_ptr notification) {
    if (zo::refuse_null(notification, __func__)) return false;
    notification->destroy(source::file, source::exported_destroy);
    return true;
}
