// SPDX-License-Identifier: MIT
#include "fuzz/calls_model.hpp"

using fuzz::model;

bool model::make(const call& made) {
    if (made.what == verb::run) {
        run();
        return true;
    }
    if (made.what < verb::manager_open) return make_window_call(made);
    if (made.what < verb::notification_show) return make_manager_call(made);
    return make_notification_call(made);
}

void model::run() {
    while (!queue_.empty()) {
        const auto task = std::move(queue_.front());
        queue_.pop_front();
        task();
    }
}

bool model::tell(kind of, int who, event what) {
    const auto found = programs_.find({of, who, what});
    if (found == programs_.end() || !found->second.present) return false;
    told_.push_back({of, who, what});
    reaction& program = found->second;
    if (program.left > 0) {
        --program.left;
        for (const call& made : std::vector(program.calls)) make(made);
    }
    return program.veto;
}

fuzz::picture model::look() const {
    picture seen{};
    for (int w = 0; w < windows_count; ++w) {
        const window& it = windows_[w];
        seen.windows[w] = {it.opened,  it.visible, it.destroyed, it.tree != 0,
                           it.visible, it.task,    it.instance,  it.manager};
    }
    for (int m = 0; m < managers_count; ++m) {
        const manager& it = managers_[m];
        seen.managers[m] = {it.opened, it.visible, it.destroyed, {it.stacked.begin(), it.stacked.end()}};
    }
    for (int n = 0; n < notifications_count; ++n) {
        const notification& it = notifications_[n];
        seen.notifications[n] = {it.opened, it.visible, it.destroyed};
    }
    return seen;
}
