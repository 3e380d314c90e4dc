// SPDX-License-Identifier: MIT
// Closing, and what a person does to a popup.
#include <zo_ui/zo_notification/notification_p.hpp>

#include <zo_core/zo_service.hpp>
#include <zo_ui/zo_notification/notification_stack_p.hpp>

#include <algorithm>

namespace source = zo::notification_source;

// What it calls may call everything, so what it needs is taken out first, and nothing begins twice.
void _zo_notification::close_for_good() {
    if (is_destroyed() || is_closing()) return;
    // The label goes on with the link that was activated after its handler returns.
    if (inside_link_ > 0) {
        close_after_link_ = true;
        return;
    }
    const zo_notification_ptr self = handle();
    zo::notification_callables callables = begin_closing();
    cancel_timeout();
    _close();
    if (callables.on_close) {
        zo::close_all_gaps();
        callables.on_close(self);
    }
    callables.on_link = nullptr;
    callables.on_close = nullptr;
    while (!callables.actions.empty()) callables.actions.erase(callables.actions.begin());
    set_destroyed(true);
    let_go_of_manager();
    while (is_reffed()) zo_object_unref_real(self);
}

void _zo_notification::_close() {
    if (!is_opened() || is_destroyed()) return;
    _hide();
    cancel_timeout();
    leave_list();
    // Forgotten first: whoever looks during "destroy" finds no widget that is on its way out.
    GtkWidget* const popup = forget_popup();
    const zo::popup_stack stack = std::exchange(stack_, {});
    if (stack.popups) stack.popups->erase(id_);
    if (!zo_system_service_done()) {
        if (popup && !gtk_widget_in_destruction(popup)) gtk_widget_destroy(popup);
        if (stack.popups) zo::close_gaps_soon(stack);
    }
    let_go_of_manager();
    set_opened(false);
}

GtkWidget* _zo_notification::forget_popup() {
    GtkWidget* const popup = widgets_.window;
    if (popup) zo::note_place(popup, nullptr);
    widgets_ = {};
    return popup;
}

// A popup that somebody else destroyed.
void _zo_notification::on_popup_destroyed(GtkWidget* popup) {
    if (widgets_.window != popup) return;
    forget_popup();
    if (stack_.popups) stack_.popups->erase(id_);
    close_for_good();
}

void _zo_notification::on_action(GtkWidget* button) {
    const zo_notification_ptr self = handle();
    const std::string name = gtk_widget_get_name(button);
    std::function<void(std::string)> callback;
    bool found = false;
    {
        const zo::property_guard guard(*this, source::file, source::callables);
        const auto& actions = callables_.actions;
        const auto action =
            std::find_if(actions.begin(), actions.end(), [&name](const auto& a) { return a.first == name; });
        found = action != actions.end();
        if (found) callback = action->second.second;
    }
    if (found) callback(name);
    close_for_good();
}

bool _zo_notification::on_link(std::string& uri) {
    std::function<bool(zo_notification_ptr, std::string&)> callback;
    {
        const zo::property_guard guard(*this, source::file, source::callables);
        callback = callables_.on_link;
    }
    if (!callback) return false;
    const zo_notification_ptr self = handle();
    ++inside_link_;
    const bool handled = callback(self, uri);
    if (--inside_link_ == 0 && std::exchange(close_after_link_, false))
        post(&_zo_notification::close_for_good, source::destroy);
    return handled;
}
