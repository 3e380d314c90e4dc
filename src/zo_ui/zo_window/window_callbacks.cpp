// SPDX-License-Identifier: MIT
// The exported setters of callbacks.
#include <zo_ui/zo_window/window_p.hpp>

#include <zo_core/zo_diagnostics_p.hpp>

namespace {

template <typename Signature>
bool store(const zo_window_ptr& window, const char* function, const char* name,
           std::function<Signature>& cb) {
    if (zo::refuse_null(window, function)) return false;
    zo::property_guard guard(*window, zo::window_source::file, zo::window_source::callback_setter);
    guard.write(name, cb, {"cb", "ptr->property_list"});
    return true;
}

}  // namespace

// name of the exported setter, signature, property
#define ZO_WINDOW_CALLBACK(setter, property, ...)                                            \
    bool zo_window_set_##setter(zo_window_ptr window, std::function<__VA_ARGS__> callback) { \
        return store(window, __func__, property, callback);                                  \
    }

ZO_WINDOW_CALLBACK(window_open_callback, "window-open", void(zo_window_ptr))
ZO_WINDOW_CALLBACK(window_show_callback, "window-show", void(zo_window_ptr))
ZO_WINDOW_CALLBACK(window_hide_callback, "window-hide", void(zo_window_ptr))
ZO_WINDOW_CALLBACK(window_close_callback, "window-close", void(zo_window_ptr))
ZO_WINDOW_CALLBACK(window_activate_callback, "window-activate", void(zo_window_ptr))
ZO_WINDOW_CALLBACK(window_restore_callback, "window-restore", void(zo_window_ptr))
ZO_WINDOW_CALLBACK(window_destroy_callback, "window-destroy", void(zo_window_ptr))
ZO_WINDOW_CALLBACK(window_close_request_callback, "window-close-request", bool(zo_window_ptr))
ZO_WINDOW_CALLBACK(window_go_back_callback, "go-back", void(zo_window_ptr))
ZO_WINDOW_CALLBACK(window_hint_request_callback, "hint-request", void(zo_window_ptr))
ZO_WINDOW_CALLBACK(window_exit_app_request_callback, "app-exit-request", void(zo_window_ptr))
ZO_WINDOW_CALLBACK(save_to_photo_handler, "handle-photo", void(zo_window_ptr, GdkPixbuf*))
ZO_WINDOW_CALLBACK(menu_create_handler, "menu-create", void(zo_window_ptr, GtkGrid*))
ZO_WINDOW_CALLBACK(window_title_text_change_callback, "window-title-change", void(zo_window_ptr, std::string))
ZO_WINDOW_CALLBACK(window_class_change_callback, "window-class-change", void(zo_window_ptr, std::string))
ZO_WINDOW_CALLBACK(window_id_change_callback, "window-id-change", void(zo_window_ptr, std::string))
ZO_WINDOW_CALLBACK(window_event_callback, "window-on-event", void(zo_window_ptr, zo_window_event_ptr))
