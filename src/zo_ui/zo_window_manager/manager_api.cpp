// SPDX-License-Identifier: MIT
// The exported operations: from any thread to the loop, or straight through.
#include <zo_ui/zo_window_manager/manager_p.hpp>

#include <zo_core/zo_diagnostics_p.hpp>
#include <zo_core/zo_object_p.hpp>
#include <zo_core/zo_service.hpp>

namespace source = zo::manager_source;

void _zo_window_manager::post(void (_zo_window_manager::*operation)(), int line) {
    zo_system_service_exec([self = handle(), operation] { (self.get()->*operation)(); }, source::file, line);
}

void _zo_window_manager::destroy(std::string reason, int line) {
    if (zo::begin_destroy(*this, source::file, source::destroy_guard, reason, line))
        post(&_zo_window_manager::destroy_now, source::destroy_with_reason);
}

namespace {

bool run(const zo_window_manager_ptr& manager, const char* function, void (_zo_window_manager::*operation)(),
         int line) {
    if (zo::refuse_null(manager, function)) return false;
    manager->post(operation, line);
    return true;
}

bool store(const zo_window_manager_ptr& manager, const char* function, const char* name,
           std::function<void(zo_window_manager_ptr)>& cb) {
    if (zo::refuse_null(manager, function)) return false;
    zo::property_guard guard(*manager, source::file, source::callback_setter);
    guard.write(name, cb, {"cb", "ptr->property_list"});
    return true;
}

}  // namespace

// exported name, task
#define ZO_MANAGER_OPERATION(name)                                                                \
    bool zo_window_manager_##name(zo_window_manager_ptr manager) {                                \
        return run(manager, __func__, &_zo_window_manager::name##_now, zo::manager_source::name); \
    }

ZO_MANAGER_OPERATION(open)
ZO_MANAGER_OPERATION(show)
ZO_MANAGER_OPERATION(hide)
ZO_MANAGER_OPERATION(close)
ZO_MANAGER_OPERATION(destroy)
ZO_MANAGER_OPERATION(extend)
ZO_MANAGER_OPERATION(retract)

bool zo_window_manager_destroy(zo_window_manager_ptr manager, std::string reason, int line) {
    if (zo::refuse_null(manager, __func__)) return false;
    manager->destroy(std::move(reason), line);
    return true;
}

// exported name, property
#define ZO_MANAGER_CALLBACK(name, property)                                              \
    bool zo_window_manager_##name(zo_window_manager_ptr manager,                         \
                                  std::function<void(zo_window_manager_ptr)> callback) { \
        return store(manager, __func__, property, callback);                             \
    }

ZO_MANAGER_CALLBACK(on_open, "manager-open")
ZO_MANAGER_CALLBACK(on_show, "manager-show")
ZO_MANAGER_CALLBACK(on_hide, "manager-hide")
ZO_MANAGER_CALLBACK(on_close, "manager-close")
ZO_MANAGER_CALLBACK(on_destroy, "manager-destroy")

// exported name, type of the widget
#define ZO_MANAGER_SLOT(name, type)                                              \
    bool zo_window_manager_##name(zo_window_manager_ptr manager, type* widget) { \
        return !zo::refuse_null(manager, __func__) && manager->name(widget);     \
    }

ZO_MANAGER_SLOT(add_widget_left, GtkWidget)
ZO_MANAGER_SLOT(remove_widget_left, GtkWidget)
ZO_MANAGER_SLOT(add_widget_right, GtkWidget)
ZO_MANAGER_SLOT(remove_widget_right, GtkWidget)
ZO_MANAGER_SLOT(add_toolbar, GtkBox)
ZO_MANAGER_SLOT(remove_toolbar, GtkBox)

bool zo_window_manager_get_local_notification_container(zo_window_manager_ptr manager,
                                                        std::map<unsigned long, GtkWidget*>** container) {
    if (zo::refuse_null(manager, __func__) || !container) return false;
    *container = &manager->local_notification_container();
    return true;
}

bool zo_window_manager_set_keep_extended(zo_window_manager_ptr manager, bool keep) {
    if (zo::refuse_null(manager, __func__)) return false;
    manager->set_keep_extended(keep);
    return true;
}
