// SPDX-License-Identifier: MIT
#include "fuzz/calls_model.hpp"

#include <utility>

using fuzz::model;

// What else the process is asked for moves nothing that the story tells.
bool model::make_indicator_call(const call& made) {
    if (made.what == verb::null_handle || made.what == verb::timeout) return true;
    if (made.what == verb::indicator_choose) {
        const std::vector<int> listed = items();
        if (listed.empty()) return false;
        const int action = listed[static_cast<std::size_t>(made.with) % listed.size()];
        if (has_callback({kind::indicator, action, event::chosen}))
            answer(kind::indicator, action, event::chosen);
        return true;
    }
    if (made.what == verb::indicator_destroy) {
        const int i = std::exchange(present_indicator_, -1);
        if (i >= 0) post([=, this] { indicators_[i].destroyed = true; });
        return true;
    }
    if (present_indicator_ < 0) {
        present_indicator_ = static_cast<int>(indicators_.size());
        indicators_.emplace_back();
    }
    const int i = present_indicator_;
    if (made.what == verb::indicator_action) {
        post([=, this, action = made.with] { indicators_[i].actions.insert(action); });
        return true;
    }
    // The menu has the actions of the first showing.
    post([=, this] {
        indicator& it = indicators_[i];
        if (!it.destroyed && !std::exchange(it.shown, true)) it.items = it.actions;
    });
    return true;
}

// Of the one menu there is: an indicator is destroyed before the next is made.
std::vector<int> model::items() const {
    for (const indicator& it : indicators_)
        if (it.shown && !it.destroyed) return {it.items.begin(), it.items.end()};
    return {};
}
