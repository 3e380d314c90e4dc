// SPDX-License-Identifier: MIT
#include "fuzz/calls_model.hpp"
#include "fuzz/calls_tables.hpp"

#include <utility>

using fuzz::model;

bool model::make_window_call(const call& made) {
    const int w = present_windows_[made.who];
    const auto later = [&](void (model::*task)(int)) { post([=, this] { (this->*task)(w); }); };
    window& it = windows_[w];
    switch (made.what) {
        case verb::open:
            later(&model::open);
            break;
        case verb::show:
            later(&model::show);
            break;
        case verb::hide:
            later(&model::hide);
            break;
        case verb::activate:
            later(&model::activate);
            break;
        case verb::restore:
            later(&model::restore);
            break;
        case verb::close:
            later(&model::close);
            break;
        case verb::destroy:
            later(&model::destroy);
            break;
        case verb::destroy_for:
            post_end(w);
            break;
        case verb::move:
            post([] {});
            break;
        case verb::save:
            it.restore_visible = it.visible;
            break;
        case verb::set_popup:
            it.popup = made.with % 2;
            break;
        case verb::push_event:
            post([=, this] { tell_window(w, event::pushed); });
            break;
        case verb::set_title: {
            const int old = std::exchange(it.title, made.with);
            post([=, this, now = made.with] { change_title(w, old, now); });
            break;
        }
        case verb::join:
            post_join(w, present_managers_[made.with % managers_count]);
            break;
        case verb::leave:
            post_join(w, -1);
            break;
        default:
            if (looks_further(made.what)) return press_some_window(made);
            return is_press(made.what) ? press_window(made) : make_other_window_call(made);
    }
    return true;
}

bool model::make_other_window_call(const call& made) {
    const int w = present_windows_[made.who];
    switch (made.what) {
        case verb::set_callback:
            windows_[w].answers.insert(event_of(made, window_events));
            return true;
        case verb::clear_callback:
            windows_[w].answers.erase(event_of(made, window_events));
            return true;
        case verb::set_other_callback:
            if (const auto told = other_event_of(made.with)) {
                if (made.with % 2)
                    windows_[w].answers.insert(*told);
                else
                    windows_[w].answers.erase(*told);
            }
            return true;
        case verb::set_flag:
            if (const auto button = button_of_flag(made.with))
                windows_[w].wanted[static_cast<std::size_t>(*button)] = made.with % 2;
            return true;
        case verb::set_title_flags:
            windows_[w].wanted = title_flags_of(made.with);
            return true;
        case verb::set_built_in_title:
            windows_[w].built_in_title = made.with > 0;
            return true;
        case verb::add_content:
            return windows_[w].opened;
        case verb::drop_and_new:
            post([=, this] { destroy(w); });
            present_windows_[made.who] = new_window(made.who);
            return true;
        default:
            return true;  // what only the look of a window follows
    }
}

void model::open(int w) {
    window& it = windows_[w];
    if (it.opened || it.destroyed || it.destroying || it.tree) return;
    it.opened = true;
    it.titled = it.built_in_title && !it.popup;
    it.buttons = it.wanted;
    const int tree = it.tree = ++trees_;
    tell_window(w, event::open);
    if (still(w, tree) && it.manager >= 0) window_opened(it.manager, w);
}

void model::show(int w) {
    window& it = windows_[w];
    if (!it.opened || it.destroyed || it.visible) return;
    it.visible = true;
    const int tree = it.tree;
    tell_window(w, event::show);
    if (!still(w, tree) || !it.visible) return;
    it.mapped = it.menu_shown = true;
    if (it.manager >= 0) window_shown(it.manager, w);
}

void model::hide(int w) {
    window& it = windows_[w];
    if (!it.opened || it.destroyed || !it.visible) return;
    it.visible = it.mapped = it.menu_shown = false;
    tell_window(w, event::hide);
}

void model::activate(int w) {
    const window& it = windows_[w];
    if (it.opened && !it.destroyed && it.visible) tell_window(w, event::activate);
}

void model::restore(int w) {
    const window& it = windows_[w];
    if (!it.opened || it.destroyed || !it.restore_visible || it.visible) return;
    show(w);
    if (it.visible) tell_window(w, event::restore);
}

void model::close(int w) {
    window& it = windows_[w];
    if (!it.opened || it.destroyed) return;
    ++it.instance;
    it.opened = it.visible = it.titled = it.mapped = false;
    it.tree = it.menu = 0;
    tell_window(w, event::close);
    if (!it.opened && it.manager >= 0) window_closed(it.manager, w);
}

void model::destroy(int w) {
    window& it = windows_[w];
    if (it.destroyed || it.destroying) return;
    it.destroying = true;
    ++it.instance;
    // The callback of closing is the last one that a window loses.
    const std::set<event> had = std::exchange(it.answers, {});
    if (had.count(event::close)) it.answers = {event::close};
    close(w);
    it.answers.erase(event::close);
    it.destroyed = true;
    if (had.count(event::destroy)) answer(kind::window, it.who, event::destroy);
    if (it.manager >= 0) disconnect(it.manager, w);
    it.manager = -1;
    it.destroying = false;
}

void model::request_close(int w) {
    const int tree = windows_[w].tree;
    const bool vetoed = tell_window(w, event::close_request);
    if (!vetoed && still(w, tree)) close(w);
}

void model::change_title(int w, int old, int now) {
    if (old != now) tell_window(w, event::title_change);
}

void model::post_end(int w) {
    if (!std::exchange(windows_[w].end_asked, true)) post([=, this] { destroy(w); });
}

void model::post_join(int w, int m) {
    if (!windows_[w].destroyed) post([=, this] { join(w, m); });
}

void model::join(int w, int m) {
    window& it = windows_[w];
    if (it.destroyed || it.manager == m) return;
    const int link = ++it.links;
    if (it.manager >= 0) disconnect(it.manager, w);
    if (it.destroyed || it.links != link) return;
    it.manager = m;
    if (m >= 0) connect(m, w);
}
