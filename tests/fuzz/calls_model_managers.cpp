// SPDX-License-Identifier: MIT
#include "fuzz/calls_model.hpp"

#include <algorithm>
#include <utility>

using fuzz::model;

namespace {

bool has(const std::vector<int>& list, int w) { return std::find(list.begin(), list.end(), w) != list.end(); }
void drop(std::vector<int>& list, int w) { list.erase(std::remove(list.begin(), list.end(), w), list.end()); }

}  // namespace

bool model::make_manager_call(const call& made) {
    const int m = present_managers_[made.who];
    const auto later = [&](void (model::*task)(int)) { post([=, this] { (this->*task)(m); }); };
    switch (made.what) {
        case verb::manager_open:
            later(&model::manager_open);
            break;
        case verb::manager_show:
            later(&model::manager_show);
            break;
        case verb::manager_hide:
            later(&model::manager_hide);
            break;
        case verb::manager_close:
            later(&model::manager_close);
            break;
        case verb::manager_destroy:
            later(&model::manager_destroy);
            break;
        case verb::manager_destroy_for:
            if (!std::exchange(managers_[m].end_asked, true)) later(&model::manager_destroy);
            break;
        case verb::manager_keep:
            managers_[m].keep = made.with % 2;
            post([=, this, keep = managers_[m].keep] { apply_keep(m, keep); });
            break;
        case verb::manager_click_lock:
            return click_lock(m);
        case verb::manager_drop_and_new:
            if (made.with % 2) later(&model::manager_close);
            later(&model::manager_destroy);
            present_managers_[made.who] = new_manager(made.who);
            break;
        case verb::manager_set_callback:
            managers_[m].answers.insert(event_of(made, manager_events));
            break;
        case verb::manager_clear_callback:
            managers_[m].answers.erase(event_of(made, manager_events));
            break;
        default:
            return make_widget_call(made);
    }
    return true;
}

// Sliding moves nothing that the story tells.
bool model::make_widget_call(const call& made) {
    manager& it = managers_[present_managers_[made.who]];
    if (made.what != verb::manager_add_widget && made.what != verb::manager_remove_widget) return true;
    const bool wanted = made.what == verb::manager_add_widget;
    bool& there = it.widgets[static_cast<std::size_t>(made.with % widget_places)];
    if (!it.opened || there == wanted) return false;
    there = wanted;
    return true;
}

void model::apply_keep(int m, bool keep) {
    manager& it = managers_[m];
    it.kept = keep;
    if (it.opened) it.locked = keep;
}

bool model::click_lock(int m) {
    manager& it = managers_[m];
    if (!it.opened) return false;
    it.keep = it.locked = it.kept = !it.kept;
    return true;
}

void model::manager_open(int m) {
    manager& it = managers_[m];
    if (it.opened || it.destroyed || it.visible) return;
    it.opened = true;
    it.locked = it.keep;
    for (const int w : it.registered)
        if (windows_[w].opened && !has(it.shown, w)) it.shown.push_back(w);
    for (const int w : std::vector(it.shown)) give_task(w);
    tell_manager(m, event::open);
}

void model::manager_show(int m) {
    manager& it = managers_[m];
    if (!it.opened || it.destroyed || it.visible) return;
    it.visible = true;
    for (const int w : std::vector(it.shown)) post([=, this] { restore(w); });
    for (const int n : std::set(it.listed)) post([=, this] { notification_show(n); });
    tell_manager(m, event::show);
}

void model::manager_hide(int m) {
    manager& it = managers_[m];
    if (!it.opened || it.destroyed || !it.visible) return;
    it.visible = false;
    for (const int w : std::vector(it.shown)) post([=, this] { hide(w); });
    for (const int n : std::set(it.listed)) post([=, this] { notification_hide(n); });
    tell_manager(m, event::hide);
}

void model::manager_close(int m) {
    manager& it = managers_[m];
    if (!it.opened || it.destroyed) return;
    for (const int w : std::vector(it.shown)) {
        post([=, this] { hide(w); });
        windows_[w].task = false;
    }
    for (const int n : std::exchange(it.listed, {})) post([=, this] { notification_close(n); });
    it.opened = it.visible = false;
    it.widgets = {};
    tell_manager(m, event::close);
}

void model::manager_destroy(int m) {
    manager& it = managers_[m];
    if (it.destroyed || it.destroying) return;
    it.destroying = true;
    const std::set<event> had = std::exchange(it.answers, {});
    for (const int w : std::vector(it.registered)) {
        post_join(w, -1);
        post_end(w);
    }
    it.destroyed = true;
    for (const int n : std::set(it.listed)) post([=, this] { notification_show(n); });
    if (had.count(event::destroy)) answer(kind::manager, it.who, event::destroy);
}

void model::connect(int m, int w) {
    manager& it = managers_[m];
    if (it.destroyed || it.destroying || windows_[w].destroyed || has(it.registered, w)) return;
    it.registered.push_back(w);
    if (windows_[w].opened && it.opened) window_opened(m, w);
}

void model::disconnect(int m, int w) {
    manager& it = managers_[m];
    if (!has(it.registered, w)) return;
    drop(it.registered, w);
    drop(it.shown, w);
    windows_[w].task = false;
}

void model::window_opened(int m, int w) {
    manager& it = managers_[m];
    if (!has(it.registered, w)) return;
    drop(it.shown, w);
    it.shown.push_back(w);
    if (it.opened) give_task(w);
}

// A window of a panel that is closed goes out of sight, and comes back with the panel.
void model::window_shown(int m, int w) {
    if (!has(managers_[m].shown, w) || managers_[m].opened) return;
    windows_[w].restore_visible = windows_[w].visible;
    hide(w);
}

void model::window_closed(int m, int w) {
    if (!has(managers_[m].shown, w)) return;
    drop(managers_[m].shown, w);
    windows_[w].task = false;
}

// A button that is there already keeps its place.
void model::give_task(int w) {
    if (windows_[w].popup || windows_[w].task) return;
    windows_[w].task = true;
    windows_[w].button = ++buttons_;
}
