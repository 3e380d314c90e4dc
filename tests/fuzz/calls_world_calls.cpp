// SPDX-License-Identifier: MIT
#include "fuzz/calls_tables.hpp"
#include "fuzz/calls_world.hpp"

#include <thread>

using fuzz::world;

bool world::make(const call& made) {
    if (!made.elsewhere) return make_here(made);
    bool done = false;
    std::thread([&] { done = make_here(made); }).join();
    return done;
}

bool world::make_here(const call& made) {
    if (made.what == verb::run) {
        while (g_main_context_pending(nullptr)) g_main_context_iteration(nullptr, FALSE);
        return true;
    }
    switch (subject_of(made.what)) {
        case subject::window:
            return make_window_call(made);
        case subject::manager:
            return make_manager_call(made);
        case subject::notification:
            return make_notification_call(made);
        default:
            return make_process_call(made);
    }
}

bool world::make_window_call(const call& made) {
    const zo_window_ptr window = windows_[made.who];
    switch (made.what) {
        case verb::open:
            return zo_window_open(window);
        case verb::show:
            return zo_window_show(window);
        case verb::hide:
            return zo_window_hide(window);
        case verb::activate:
            return zo_window_activate(window);
        case verb::restore:
            return zo_window_restore(window);
        case verb::save:
            return zo_window_save(window);
        case verb::move:
            return zo_window_move(window, made.with * 7, made.with * 5);
        case verb::close:
            return zo_window_close(window);
        case verb::destroy:
            return zo_window_destroy(window);
        case verb::destroy_for:
            return zo_window_destroy(window, "fuzz", made.with);
        case verb::push_event:
            return zo_window_push_event(window, zo_window_event_new(made.with));
        case verb::set_title:
            return zo_window_set_title(window, made.with ? std::to_string(made.with) : "");
        case verb::set_popup:
            return zo_window_set_popup_window(window, made.with % 2);
        case verb::join:
            return zo_window_set_window_manager(window, managers_[made.with % managers_count]);
        case verb::leave:
            return zo_window_set_window_manager(window, {});
        default:
            if (looks_further(made.what)) return press_some_window(made);
            return is_press(made.what) ? press_window(made) : make_other_window_call(made);
    }
}

bool world::make_manager_call(const call& made) {
    const zo_window_manager_ptr manager = managers_[made.who];
    switch (made.what) {
        case verb::manager_open:
            return zo_window_manager_open(manager);
        case verb::manager_show:
            return zo_window_manager_show(manager);
        case verb::manager_hide:
            return zo_window_manager_hide(manager);
        case verb::manager_close:
            return zo_window_manager_close(manager);
        case verb::manager_destroy:
            return zo_window_manager_destroy(manager);
        case verb::manager_destroy_for:
            return zo_window_manager_destroy(manager, "fuzz", made.with);
        case verb::manager_click_lock:
            return press_lock(made.who);
        case verb::manager_drop_and_new:
            forget_manager(made.who, made.with % 2);
            return true;
        case verb::manager_keep:
            return zo_window_manager_set_keep_extended(manager, made.with % 2);
        case verb::manager_set_callback:
        case verb::manager_clear_callback:
            return set_manager_callback(made.who, event_of(made, manager_events),
                                        made.what == verb::manager_set_callback);
        default:
            return make_widget_call(made);
    }
}

bool world::make_notification_call(const call& made) {
    const zo_notification_ptr notification = notifications_[made.who];
    switch (made.what) {
        case verb::notification_show:
            return zo_notification_open_show(notification);
        case verb::notification_destroy:
            return zo_notification_destroy(notification);
        case verb::notification_manager: {
            const int m = made.with % (managers_count + 1) - 1;
            return zo_notification_set_manager(notification, m < 0 ? zo_window_manager_ptr() : managers_[m]);
        }
        case verb::notification_set:
            return set_something(notification, made.with);
        case verb::notification_drop_and_new:
            zo_notification_destroy(notification);
            prepare_notification(made.who);
            return true;
        default:
            return press_notification(made);
    }
}
