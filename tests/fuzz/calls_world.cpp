// SPDX-License-Identifier: MIT
#include "fuzz/calls_world.hpp"

#include "fuzz/calls_widgets.hpp"

using fuzz::world;

namespace {

std::string name_of(const char* what, int index) { return std::string(what) + std::to_string(index); }

}  // namespace

bool world::answers(const occasion& when) const {
    const auto found = programs_.find(when);
    return found != programs_.end() && found->second.present;
}

bool world::tell(kind of, int who, event what) {
    told_.push_back({of, who, what});
    reaction& program = programs_[{of, who, what}];
    if (program.left > 0) {
        --program.left;
        for (const call& made : std::vector(program.calls)) make(made);
    }
    return program.veto;
}

world::world(reactions programs) : programs_(std::move(programs)) {
    for (int w = 0; w < windows_count; ++w) prepare_window(w);
    for (int m = 0; m < managers_count; ++m) prepare_manager(m);
    for (int n = 0; n < notifications_count; ++n) prepare_notification(n);
}

void world::prepare_window(int w) {
    static const std::vector<std::pair<event, bool (*)(zo_window_ptr, std::function<void(zo_window_ptr)>)>>
        setters{{event::open, zo_window_set_window_open_callback},
                {event::show, zo_window_set_window_show_callback},
                {event::hide, zo_window_set_window_hide_callback},
                {event::close, zo_window_set_window_close_callback},
                {event::activate, zo_window_set_window_activate_callback},
                {event::restore, zo_window_set_window_restore_callback},
                {event::destroy, zo_window_set_window_destroy_callback}};
    windows_[w] = zo_window_new(name_of("fuzz-window-", w));
    zo_window_set_class(windows_[w], name_of("fuzz-window-", w));
    for (const auto& [what, set] : setters)
        if (answers({kind::window, w, what}))
            set(windows_[w], [this, w, what = what](const zo_window_ptr&) { tell(kind::window, w, what); });
    if (answers({kind::window, w, event::close_request}))
        zo_window_set_window_close_request_callback(windows_[w], [this, w](const zo_window_ptr&) {
            return tell(kind::window, w, event::close_request);
        });
    if (answers({kind::window, w, event::title_change}))
        zo_window_set_window_title_text_change_callback(windows_[w],
                                                        [this, w](const zo_window_ptr&, const std::string&) {
                                                            tell(kind::window, w, event::title_change);
                                                        });
    if (answers({kind::window, w, event::pushed}))
        zo_window_set_window_event_callback(windows_[w],
                                            [this, w](const zo_window_ptr&, const zo_window_event_ptr&) {
                                                tell(kind::window, w, event::pushed);
                                            });
}

void world::prepare_manager(int m) {
    static const std::vector<
        std::pair<event, bool (*)(zo_window_manager_ptr, std::function<void(zo_window_manager_ptr)>)>>
        setters{{event::open, zo_window_manager_on_open},
                {event::show, zo_window_manager_on_show},
                {event::hide, zo_window_manager_on_hide},
                {event::close, zo_window_manager_on_close},
                {event::destroy, zo_window_manager_on_destroy}};
    managers_[m] = zo_window_manager_new("");
    for (const auto& [what, set] : setters)
        if (answers({kind::manager, m, what}))
            set(managers_[m],
                [this, m, what = what](const zo_window_manager_ptr&) { tell(kind::manager, m, what); });
}

void world::prepare_notification(int n) {
    notifications_[n] = zo_notification_new();
    zo_notification_set_title(notifications_[n], name_of("fuzz-notification-", n));
    zo_notification_set_content(notifications_[n], "<b>content</b>");
    const auto told = [this, n](event what) {
        if (answers({kind::notification, n, what})) tell(kind::notification, n, what);
    };
    zo_notification_add_action(notifications_[n], "act", "Act",
                               [told](const std::string&) { told(event::action); });
    zo_notification_on_close(notifications_[n], [told](const zo_notification_ptr&) { told(event::close); });
}

world::~world() {
    programs_.clear();
    for (const zo_window_ptr& window : windows_) zo_window_destroy(window);
    for (const zo_window_manager_ptr& manager : managers_) {
        zo_window_manager_close(manager);
        zo_window_manager_destroy(manager);
    }
    for (const zo_notification_ptr& notification : notifications_) zo_notification_destroy(notification);
    make({verb::run});
    // The panel of a manager that was destroyed before it was closed stays on screen, and keeps it.
    for (GtkWidget* panel : toplevels("zo-manager")) gtk_widget_destroy(panel);
    make({verb::run});
}

GtkWidget* world::toplevel(int w) const {
    const std::vector<GtkWidget*> found = toplevels(name_of("fuzz-window-", w));
    return found.empty() ? nullptr : found.front();
}

GtkWidget* world::popup(int n) const {
    for (GtkWidget* popup : toplevels("zo-notification"))
        if (name_of("fuzz-notification-", n) == gtk_window_get_title(GTK_WINDOW(popup))) return popup;
    return nullptr;
}

fuzz::picture world::look() const {
    picture seen{};
    for (int w = 0; w < windows_count; ++w) {
        picture::window& it = seen.windows[w];
        zo_window_is_opened(windows_[w], &it.opened);
        zo_window_is_visible(windows_[w], &it.visible);
        zo_window_is_destroyed(windows_[w], &it.destroyed);
        GtkWidget* window = toplevel(w);
        it.toplevel = window;
        it.mapped = window && gtk_widget_get_visible(window);
        it.task = find_task(name_of("fuzz-window-", w)).task;
        it.instance = zo_window_instance_id(windows_[w]);
        const zo_window_manager_ptr manager = zo_window_get_window_manager(windows_[w]);
        it.manager = -1;
        for (int m = 0; m < managers_count; ++m)
            if (manager && manager == managers_[m]) it.manager = m;
    }
    for (int m = 0; m < managers_count; ++m) {
        picture::manager& it = seen.managers[m];
        zo_window_manager_is_opened(managers_[m], &it.opened);
        zo_window_manager_is_visible(managers_[m], &it.visible);
        zo_window_manager_is_destroyed(managers_[m], &it.destroyed);
        std::map<unsigned long, GtkWidget*>* stack = nullptr;
        zo_window_manager_get_local_notification_container(managers_[m], &stack);
        for (int n = 0; n < notifications_count; ++n)
            if (stack->count(zo_notification_get_id(notifications_[n]))) it.stack.push_back(n);
    }
    for (int n = 0; n < notifications_count; ++n) {
        const zo_object_ptr object = zo_notification_to_object(notifications_[n]);
        picture::notification& it = seen.notifications[n];
        zo_property_get_extract<bool>(object->property_list, "window-opened", &it.opened);
        zo_property_get_extract<bool>(object->property_list, "window-visible", &it.visible);
        zo_property_get_extract<bool>(object->property_list, "window-destroyed", &it.destroyed);
        GtkWidget* const found = popup(n);
        if ((found != nullptr) != it.opened || (found && gtk_widget_get_visible(found)) != it.visible)
            it.opened = !it.opened;  // the flags lie: a picture that no model draws
    }
    return seen;
}
