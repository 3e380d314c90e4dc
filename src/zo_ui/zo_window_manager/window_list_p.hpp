// SPDX-License-Identifier: MIT
#pragma once

#include <zo_ui/zo_handles.hpp>

#include <cstdint>
#include <map>
#include <unordered_map>
#include <vector>

namespace zo {

// Windows in the order they were added, each once. Nothing walks the list to find one.
class window_list {
  public:
    // False when the window is there already.
    bool add(const zo_window_ptr& window);
    bool remove(const zo_window_ptr& window);
    bool contains(const zo_window_ptr& window) const { return places_.count(window.get()) != 0; }
    bool empty() const { return windows_.empty(); }

    // A copy that holds the windows: callbacks may change the list while it is walked.
    std::vector<zo_window_ptr> snapshot() const;

  private:
    std::map<std::uint64_t, zo_window_ptr> windows_;
    std::unordered_map<const _zo_window*, std::uint64_t> places_;
    std::uint64_t last_ = 0;
};

}  // namespace zo
