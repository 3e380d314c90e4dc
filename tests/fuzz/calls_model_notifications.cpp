// SPDX-License-Identifier: MIT
#include "fuzz/calls_model.hpp"

#include <utility>

using fuzz::model;

bool model::make_notification_call(const call& made) {
    const int n = present_notifications_[made.who];
    notification& it = notifications_[n];
    switch (made.what) {
        case verb::notification_show:
            post([=, this] { notification_open(n); });
            post([=, this] { notification_show(n); });
            return true;
        case verb::notification_destroy:
            post([=, this] { notification_close(n); });
            return true;
        case verb::notification_manager:
            if (!it.closing) {
                const int m = made.with % (managers_count + 1) - 1;
                it.manager = m < 0 ? -1 : present_managers_[m];
            }
            return true;
        case verb::notification_click_action:
            if (!it.opened) return false;
            tell_notification(n, event::action);
            notification_close(n);
            return true;
        case verb::notification_click_link:
            if (!it.opened) return false;
            follow_link(n);
            return true;
        case verb::notification_set:
            return true;
        case verb::notification_drop_and_new:
            post([=, this] { notification_close(n); });
            present_notifications_[made.who] = new_notification(made.who);
            return true;
        default:  // its close button, or its popup destroyed by somebody else
            if (!it.opened) return false;
            notification_close(n);
            return true;
    }
}

void model::tell_notification(int n, event what) {
    const int who = notifications_[n].who;
    if (programs_[{kind::notification, who, what}].present) answer(kind::notification, who, what);
}

void model::notification_open(int n) {
    notification& it = notifications_[n];
    if (it.opened || it.destroyed || it.closing) return;
    it.opened = true;
    if (it.manager >= 0) list_in(n, it.manager);
}

void model::notification_show(int n) {
    notification& it = notifications_[n];
    if (!it.opened || it.destroyed || it.visible || it.closing) return;
    list_in(n, it.manager);
    if (it.manager >= 0 && !managers_[it.manager].visible) {
        if (managers_[it.manager].destroyed) notification_close(n);
        return;
    }
    stack_in(n, it.manager);
    it.visible = true;
}

void model::notification_hide(int n) {
    notification& it = notifications_[n];
    if (it.opened && !it.destroyed) it.visible = false;
}

void model::notification_close(int n) {
    notification& it = notifications_[n];
    if (it.destroyed || it.closing) return;
    if (it.links > 0) {
        it.end_after_link = true;
        return;
    }
    it.closing = true;
    it.opened = it.visible = false;
    list_in(n, -1);
    stack_in(n, -2);
    it.manager = -1;
    tell_notification(n, event::close);
    it.destroyed = true;
}

// A notification that is to close stays until its callback of links has returned.
void model::follow_link(int n) {
    notification& it = notifications_[n];
    ++it.links;
    tell_notification(n, event::link);
    if (--it.links == 0 && std::exchange(it.end_after_link, false))
        post([=, this] { notification_close(n); });
}

void model::list_in(int n, int m) {
    const int left = std::exchange(notifications_[n].listed_in, m);
    if (left >= 0 && left != m) managers_[left].listed.erase(n);
    if (m >= 0 && left != m) managers_[m].listed.insert(n);
}

// -1 is the stack of the process, -2 none.
void model::stack_in(int n, int m) {
    const int left = std::exchange(notifications_[n].stacked_in, m);
    if (left >= 0) managers_[left].stacked.erase(n);
    if (m >= 0) managers_[m].stacked.insert(n);
}
