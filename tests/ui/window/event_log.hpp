// SPDX-License-Identifier: MIT
// What a window tells of its life, in order, and the state it was in when it told.
#pragma once

#include "support/ui.hpp"

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace test {

// Made before the window that it watches, so that it outlives the callbacks.
class event_log {
  public:
    struct entry {
        std::string what;
        state seen;
    };

    // Sets the seven callbacks of the life cycle.
    void watch(const zo_window_ptr& window) {
        const auto noting = [this](const char* what) {
            return [this, what](zo_window_ptr w) { note(what, w); };
        };
        zo_window_set_window_open_callback(window, noting("open"));
        zo_window_set_window_show_callback(window, noting("show"));
        zo_window_set_window_hide_callback(window, noting("hide"));
        zo_window_set_window_close_callback(window, noting("close"));
        zo_window_set_window_activate_callback(window, noting("activate"));
        zo_window_set_window_restore_callback(window, noting("restore"));
        zo_window_set_window_destroy_callback(window, noting("destroy"));
    }

    // Runs once, inside the next callback of this name.
    void inside(const std::string& what, std::function<void(const zo_window_ptr&)> action) {
        actions_[what] = std::move(action);
    }

    void note(const std::string& what, const zo_window_ptr& window) {
        entries_.push_back({what, state_of(window)});
        const auto place = actions_.find(what);
        if (place == actions_.end()) return;
        const auto action = std::move(place->second);
        actions_.erase(place);
        action(window);
    }

    // Gives what was noted and forgets it.
    std::vector<entry> take() { return std::exchange(entries_, {}); }

    // The names alone, with a blank between.
    std::string take_names() {
        std::string names;
        for (const entry& e : take()) names += (names.empty() ? "" : " ") + e.what;
        return names;
    }

  private:
    std::vector<entry> entries_;
    std::map<std::string, std::function<void(const zo_window_ptr&)>> actions_;
};

}  // namespace test
