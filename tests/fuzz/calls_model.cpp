// SPDX-License-Identifier: MIT
#include "fuzz/calls_model.hpp"

#include <algorithm>

using fuzz::model;

model::model(reactions programs) : programs_(std::move(programs)) {
    for (int w = 0; w < windows_count; ++w) present_windows_[w] = new_window(w);
    for (int m = 0; m < managers_count; ++m) present_managers_[m] = new_manager(m);
    for (int n = 0; n < notifications_count; ++n) present_notifications_[n] = new_notification(n);
}

int model::new_window(int who) {
    windows_.push_back({.who = who, .answers = first_answers(kind::window, who)});
    return static_cast<int>(windows_.size()) - 1;
}

int model::new_manager(int who) {
    managers_.push_back({.who = who, .answers = first_answers(kind::manager, who)});
    return static_cast<int>(managers_.size()) - 1;
}

int model::new_notification(int who) {
    notifications_.push_back({.who = who});
    return static_cast<int>(notifications_.size()) - 1;
}

std::set<fuzz::event> model::first_answers(kind of, int who) const {
    std::set<event> answers;
    for (int what = 0; what < static_cast<int>(event::count); ++what)
        if (has_callback({of, who, static_cast<event>(what)})) answers.insert(static_cast<event>(what));
    return answers;
}

bool model::has_callback(const occasion& when) const {
    const auto found = programs_.find(when);
    return found != programs_.end() && found->second.present;
}

bool model::make(const call& made) {
    if (made.what == verb::run) {
        run();
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
            return make_indicator_call(made);
    }
}

void model::run() {
    while (!queue_.empty()) {
        const auto task = std::move(queue_.front());
        queue_.pop_front();
        task();
    }
}

bool model::answer(kind of, int who, event what) {
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

bool model::tell_window(int w, event what) {
    return windows_[w].answers.count(what) && answer(kind::window, windows_[w].who, what);
}

void model::tell_manager(int m, event what) {
    if (managers_[m].answers.count(what)) answer(kind::manager, managers_[m].who, what);
}

// The windows with a button in the panel, the newest button first.
std::vector<int> model::row_of(int m) const {
    std::vector<int> row;
    for (int who = 0; who < windows_count; ++who) {
        const window& it = windows_[present_windows_[who]];
        if (it.task && it.manager == m) row.push_back(who);
    }
    std::sort(row.begin(), row.end(), [this](int a, int b) {
        return windows_[present_windows_[a]].button > windows_[present_windows_[b]].button;
    });
    return row;
}

fuzz::picture model::look() const {
    picture seen{};
    for (int w = 0; w < windows_count; ++w) {
        const window& it = windows_[present_windows_[w]];
        const std::string title = it.title ? std::to_string(it.title) : "";
        const auto place = std::find(present_managers_.begin(), present_managers_.end(), it.manager);
        const int unlisted = it.manager < 0 ? -1 : -2;
        const bool listed = place != present_managers_.end();
        seen.windows[w] = {.opened = it.opened,
                           .visible = it.visible,
                           .destroyed = it.destroyed,
                           .toplevel = it.tree != 0,
                           .mapped = it.mapped,
                           .task = it.task,
                           .instance = it.instance,
                           .title = it.title,
                           .manager = listed ? static_cast<int>(place - present_managers_.begin()) : unlisted,
                           .menu = !it.menu        ? 0
                                   : it.menu_shown ? 2
                                                   : 1,
                           .label = it.titled ? title : "",
                           .buttons = it.titled ? it.buttons : title_flags{}};
    }
    for (int m = 0; m < managers_count; ++m) {
        const manager& it = managers_[present_managers_[m]];
        seen.managers[m] = {it.opened, it.visible, it.destroyed, it.keep, it.opened ? it.locked : -1, {}};
        for (int n = 0; n < notifications_count; ++n)
            if (it.stacked.count(present_notifications_[n])) seen.managers[m].stack.push_back(n);
    }
    // The panel of a manager that is forgotten stays on screen until it is closed.
    for (std::size_t m = 0; m < managers_.size(); ++m)
        if (const std::vector<int> row = row_of(static_cast<int>(m)); !row.empty()) seen.rows.push_back(row);
    std::sort(seen.rows.begin(), seen.rows.end());
    for (int n = 0; n < notifications_count; ++n) {
        const notification& it = notifications_[present_notifications_[n]];
        seen.notifications[n] = {it.opened, it.visible, it.destroyed};
    }
    seen.items = items();
    return seen;
}
