// SPDX-License-Identifier: MIT
#include <zo_ui/zo_window_manager/window_list_p.hpp>

bool zo::window_list::add(const zo_window_ptr& window) {
    if (!places_.emplace(window.get(), last_ + 1).second) return false;
    windows_.emplace_hint(windows_.end(), ++last_, window);
    return true;
}

bool zo::window_list::remove(const zo_window_ptr& window) {
    const auto place = places_.find(window.get());
    if (place == places_.end()) return false;
    windows_.erase(place->second);
    places_.erase(place);
    return true;
}

std::vector<zo_window_ptr> zo::window_list::snapshot() const {
    std::vector<zo_window_ptr> copy;
    copy.reserve(windows_.size());
    for (const auto& [place, window] : windows_) copy.push_back(window);
    return copy;
}
