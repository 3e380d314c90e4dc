// SPDX-License-Identifier: MIT
// What the application sets, and copies of it for the loop. Every member here is guarded by the property
// lock; what a setter replaces is destroyed by its caller, after the lock, since it may run code of the
// application.
#include <zo_ui/zo_notification/notification_p.hpp>

#include <algorithm>

namespace source = zo::notification_source;

unsigned long _zo_notification::get_id() {
    const zo::property_guard guard(*this, source::file, source::settings);
    return id_;
}

void _zo_notification::set_title(std::string& title) {
    const zo::property_guard guard(*this, source::file, source::settings);
    text_.title.swap(title);
}

void _zo_notification::set_content(std::string& content) {
    const zo::property_guard guard(*this, source::file, source::settings);
    text_.content.swap(content);
}

void _zo_notification::set_is_markup(bool is_markup) {
    const zo::property_guard guard(*this, source::file, source::settings);
    text_.is_markup = is_markup;
}

void _zo_notification::set_timeout(int milliseconds) {
    const zo::property_guard guard(*this, source::file, source::settings);
    timeout_ = milliseconds;
}

// What follows is stored only until the notification closes: nobody would let go of it afterwards.

void _zo_notification::set_manager(zo_window_manager_ptr& manager) {
    const zo::property_guard guard(*this, source::file, source::settings);
    if (!closing_) manager_.swap(manager);
}

void _zo_notification::add_action(std::string& name, std::string& label,
                                  std::function<void(std::string)>& callback) {
    const zo::property_guard guard(*this, source::file, source::callables);
    std::vector<zo::notification_action>& actions = callables_.actions;
    const auto same = [&name](const zo::notification_action& action) { return action.first == name; };
    if (closing_ || std::any_of(actions.begin(), actions.end(), same)) return;
    actions.emplace_back(std::move(name), std::pair(std::move(label), std::move(callback)));
}

void _zo_notification::set_on_close(std::function<void(zo_notification_ptr)>& callback) {
    const zo::property_guard guard(*this, source::file, source::callables);
    if (!closing_) callables_.on_close.swap(callback);
}

void _zo_notification::set_on_link(std::function<bool(zo_notification_ptr, std::string&)>& callback) {
    const zo::property_guard guard(*this, source::file, source::callables);
    if (!closing_) callables_.on_link.swap(callback);
}

void _zo_notification::let_go_of_manager() {
    zo_window_manager_ptr left;  // outlives the lock
    const zo::property_guard guard(*this, source::file, source::settings);
    left.swap(manager_);
}

bool _zo_notification::is_closing() {
    const zo::property_guard guard(*this, source::file, source::settings);
    return closing_;
}

zo::notification_text _zo_notification::text() {
    const zo::property_guard guard(*this, source::file, source::settings);
    return text_;
}

zo_window_manager_ptr _zo_notification::manager() {
    const zo::property_guard guard(*this, source::file, source::settings);
    return manager_;
}

zo::notification_callables _zo_notification::begin_closing() {
    const zo::property_guard guard(*this, source::file, source::callables);
    closing_ = true;
    return std::exchange(callables_, {});
}
