// SPDX-License-Identifier: MIT
// Opening, placing, showing and hiding.
#include <zo_ui/zo_notification/notification_p.hpp>

#include <zo_core/zo_diagnostics.hpp>
#include <zo_core/zo_service.hpp>
#include <zo_ui/zo_notification/notification_stack_p.hpp>
#include <zo_ui/zo_ui_screen.hpp>
#include <zo_ui/zo_window_manager/manager_p.hpp>

namespace source = zo::notification_source;

namespace {

// Of a popup that is not stacked, from the right end of the screen.
constexpr int free_x = 500;
constexpr int free_y = 50;

}  // namespace

void _zo_notification::_open() {
    if (is_opened() || is_destroyed() || is_closing()) return;
    if (!gdk_display_get_default()) {
        zo_assertion_faild(false, "display != nullptr", "notification-open", source::file, source::open);
        return;
    }
    cancel_timeout();
    build_popup(text());
    set_opened(true);
    if (const zo_window_manager_ptr manager = this->manager()) join_list_of(manager);
}

void _zo_notification::_show() {
    if (!is_opened() || is_destroyed() || is_visible() || is_closing() || !widgets_.window) return;
    if (const zo_window_manager_ptr manager = this->manager()) {
        join_list_of(manager);
        bool visible = false;
        if (!zo_window_manager_is_visible(manager, &visible) || !visible) {
            // It would wait for ever, and the two would hold each other.
            if (manager->is_destroyed()) close_for_good();
            return;
        }
    } else {
        leave_list();
    }
    place();
    cancel_timeout();
    shown_at_ = std::time(nullptr);
    gtk_widget_show_all(widgets_.window);
    if (!widgets_.window) return;
    zo::put_popup(widgets_.window, place_);
    gtk_window_get_size(GTK_WINDOW(widgets_.window), nullptr, &place_.height);
    set_visible(true);
    announce();
    arm_timeout();
}

void _zo_notification::place() {
    zo_window_manager_ptr manager = this->manager();
    zo::popup_container* popups = &zo::global_notification_container();
    if (manager && !zo_window_manager_get_local_notification_container(manager, &popups)) popups = nullptr;
    if (!popups) {
        leave_stack();
        return zo::move_popup(widgets_.window, place_, zo_ui_screen_width() - free_x, free_y);
    }
    enter_stack({std::move(manager), popups});
}

void _zo_notification::enter_stack(zo::popup_stack stack) {
    if (stack_.popups != stack.popups) leave_stack();
    zo::close_gaps(stack.popups);
    zo::move_popup(widgets_.window, place_, zo::x_of(stack), zo::y_below(stack, id_));
    stack.popups->try_emplace(id_, widgets_.window);
    stack_ = std::move(stack);
}

// The popup itself is no longer of the stack when the others move up.
void _zo_notification::leave_stack() {
    if (!stack_.popups) return;
    const zo::popup_stack left = std::exchange(stack_, {});
    left.popups->erase(id_);
    if (!zo_system_service_done()) zo::close_gaps_soon(left);
}

void _zo_notification::join_list_of(const zo_window_manager_ptr& manager) {
    if (listed_in_ == manager) return;
    leave_list();
    listed_in_ = manager;
    manager->manager_notifications().try_emplace(id_, handle());
}

void _zo_notification::leave_list() {
    if (!listed_in_) return;
    const zo_window_manager_ptr left = std::exchange(listed_in_, {});
    left->manager_notifications().erase(id_);
}

// Shown popups never get the keyboard's focus, so a screen reader is told of them.
void _zo_notification::announce() {
    AtkObject* popup = gtk_widget_get_accessible(widgets_.window);
    if (!g_signal_lookup("announcement", G_OBJECT_TYPE(popup))) return;
    std::string words = gtk_label_get_text(GTK_LABEL(widgets_.title_label));
    words += words.empty() ? "" : "\n";
    words += gtk_label_get_text(GTK_LABEL(widgets_.content_label));
    g_signal_emit_by_name(popup, "announcement", words.c_str());
}

void _zo_notification::arm_timeout() {
    int milliseconds = 0;
    {
        const zo::property_guard guard(*this, source::file, source::settings);
        milliseconds = timeout_;
    }
    if (milliseconds <= 0) return;
    const auto run_out = [self = handle()] {
        self->timeout_id_ = 0;
        if (self->is_opened()) self->close_for_good();
    };
    timeout_id_ = zo_system_service_timeout(run_out, static_cast<unsigned long>(milliseconds), source::file,
                                            source::timeout);
}

void _zo_notification::cancel_timeout() {
    if (const unsigned long id = std::exchange(timeout_id_, 0)) zo_system_service_timeout_clear(id);
}

void _zo_notification::_hide() {
    if (!is_opened() || is_destroyed() || !is_visible()) return;
    cancel_timeout();
    shown_for_ = static_cast<int>(std::time(nullptr) - shown_at_);
    if (widgets_.window) {
        gtk_window_get_size(GTK_WINDOW(widgets_.window), nullptr, &place_.height);
        gtk_widget_hide(widgets_.window);
    }
    set_visible(false, source::hide_task);
}
