// SPDX-License-Identifier: MIT
#include "fuzz/calls_world.hpp"

#include "fuzz/calls_widgets.hpp"

#include <algorithm>

using fuzz::world;

bool world::answers(const occasion& when) const {
    const auto found = programs_.find(when);
    return found != programs_.end() && found->second.present;
}

bool world::tell(kind of, int who, event what) {
    const std::size_t at = told_.size();
    told_.push_back({of, who, what, {}});
    reaction& program = programs_[{of, who, what}];
    if (program.left > 0) {
        --program.left;
        for (const call& made : std::vector(program.calls)) {
            const bool done = make(made);
            told_[at].answers += done ? "1" : "0";
        }
    }
    return program.veto;
}

world::world(reactions programs) : programs_(std::move(programs)) {
    for (int w = 0; w < windows_count; ++w) prepare_window(w);
    for (int m = 0; m < managers_count; ++m) prepare_manager(m);
    for (int n = 0; n < notifications_count; ++n) prepare_notification(n);
}

void world::prepare_window(int w) {
    window_names_[w] = "fuzz-window-" + std::to_string(names_++);
    windows_[w] = zo_window_new(window_names_[w]);
    zo_window_set_class(windows_[w], window_names_[w]);
    for (const event what : window_events)
        if (answers({kind::window, w, what})) set_callback(w, what, true);
    for (const event what : title_events)
        if (answers({kind::window, w, what})) set_callback(w, what, true);
}

void world::prepare_manager(int m) {
    managers_[m] = zo_window_manager_new("");
    for (const event what : manager_events)
        if (answers({kind::manager, m, what})) set_manager_callback(m, what, true);
}

void world::prepare_notification(int n) {
    notification_names_[n] = "fuzz-notification-" + std::to_string(names_++);
    notifications_[n] = zo_notification_new();
    zo_notification_set_title(notifications_[n], notification_names_[n]);
    zo_notification_set_content(notifications_[n], "<b>content</b>");
    const auto told = [this, n](event what) {
        if (answers({kind::notification, n, what})) tell(kind::notification, n, what);
    };
    zo_notification_add_action(notifications_[n], "act", "Act",
                               [told](const std::string&) { told(event::action); });
    zo_notification_on_close(notifications_[n], [told](const zo_notification_ptr&) { told(event::close); });
    zo_notification_on_activate_link_callback(notifications_[n],
                                              [told](const zo_notification_ptr&, std::string&) {
                                                  told(event::link);
                                                  return true;  // GTK would open it
                                              });
}

world::~world() {
    programs_.clear();
    for (const zo_window_ptr& window : windows_) zo_window_destroy(window);
    for (const zo_window_manager_ptr& manager : managers_) {
        zo_window_manager_close(manager);
        zo_window_manager_destroy(manager);
    }
    for (const zo_notification_ptr& notification : notifications_) zo_notification_destroy(notification);
    make({verb::indicator_destroy});
    zo_system_service_timeout_clear(timeout_);
    make({verb::run});
    // The panel of a manager that was destroyed before it was closed stays on screen, and keeps it.
    for (GtkWidget* panel : toplevels("zo-manager")) gtk_widget_destroy(panel);
    make({verb::run});
    for (int m = 0; m < managers_count; ++m)
        for (int place = 0; place < widget_places; ++place) let_widget_go(m, place);
}

GtkWidget* world::toplevel(int w) const { return find_toplevel(window_names_[w], false); }

GtkWidget* world::tool_menu(int w) const { return find_toplevel(window_names_[w], true); }

GtkWidget* world::popup(int n) const {
    for (GtkWidget* popup : toplevels("zo-notification"))
        if (notification_names_[n] == gtk_window_get_title(GTK_WINDOW(popup))) return popup;
    return nullptr;
}

void world::look_at_windows(picture& seen) const {
    for (int w = 0; w < windows_count; ++w) {
        picture::window& it = seen.windows[w];
        zo_window_is_opened(windows_[w], &it.opened);
        zo_window_is_visible(windows_[w], &it.visible);
        zo_window_is_destroyed(windows_[w], &it.destroyed);
        GtkWidget* window = toplevel(w);
        it.toplevel = window;
        it.mapped = window && gtk_widget_get_visible(window);
        it.task = find_task(window_names_[w]).task;
        it.instance = zo_window_instance_id(windows_[w]);
        std::string title;
        zo_window_get_title(windows_[w], title);
        it.title = std::atoi(title.c_str());
        GtkWidget* const label = window ? find_class(window, "title-text") : nullptr;
        if (label) it.label = gtk_label_get_text(GTK_LABEL(label));
        for (std::size_t button = 0; button < it.buttons.size(); ++button)
            it.buttons[button] = window && find_class(window, title_classes[button]);
        GtkWidget* const menu = tool_menu(w);
        it.menu = !menu ? 0 : gtk_widget_get_visible(menu) ? 2 : 1;
        const zo_window_manager_ptr manager = zo_window_get_window_manager(windows_[w]);
        it.manager = manager ? -2 : -1;
        for (int m = 0; m < managers_count; ++m)
            if (manager && manager == managers_[m]) it.manager = m;
    }
}

std::vector<std::vector<int>> world::look_at_rows() const {
    std::vector<std::vector<int>> rows;
    for (const std::vector<std::string>& names : task_rows()) {
        std::vector<int> row;
        for (const std::string& name : names) {
            const auto place = std::find(window_names_.begin(), window_names_.end(), name);
            if (place != window_names_.end()) row.push_back(static_cast<int>(place - window_names_.begin()));
        }
        if (!row.empty()) rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

fuzz::picture world::look() const {
    picture seen{};
    look_at_windows(seen);
    seen.rows = look_at_rows();
    for (int m = 0; m < managers_count; ++m) {
        picture::manager& it = seen.managers[m];
        zo_window_manager_is_opened(managers_[m], &it.opened);
        zo_window_manager_is_visible(managers_[m], &it.visible);
        zo_window_manager_is_destroyed(managers_[m], &it.destroyed);
        it.keep = zo_window_manager_get_keep_extended(managers_[m]);
        GtkWidget* const lock = lock_button(m);
        it.locked = lock ? has_class(lock, "lock-locked") : -1;
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
    for (GtkWidget* item : menu_items()) seen.items.push_back(std::atoi(gtk_widget_get_name(item)));
    return seen;
}
