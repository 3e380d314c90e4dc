// SPDX-License-Identifier: MIT
// Window trees of any shape, made by chance from a seed.
#pragma once

#include <X11/Xlib.h>

#include <random>
#include <vector>

namespace test {

class random_tree {
  public:
    // Returns when the server has made it, below its root. `states_in_10` of ten windows carry the window
    // manager's state, as different properties; some windows are mapped, some can only receive input, and the
    // stacking order is not that of their making.
    random_tree(Display* owner, std::mt19937& chance, int windows, int states_in_10);
    ~random_tree();
    random_tree(const random_tree&) = delete;
    random_tree& operator=(const random_tree&) = delete;

    // Parents before children; the first is the top.
    const std::vector<Window>& windows() const { return windows_; }
    // Viewable ones, which can have the focus.
    const std::vector<Window>& viewable() const { return viewable_; }

    Window any() { return windows_[below(windows_.size())]; }
    // Whether the second window is the first one or below it, as made.
    bool holds(Window ancestor, Window window) const;
    bool has_state(Window window) const;
    // Returns when the window is gone, with all that is below.
    void destroy(Window window);

  private:
    std::size_t below(std::size_t bound) { return chance_() % bound; }
    bool one_in(std::size_t count) { return below(count) == 0; }
    std::size_t index_of(Window window) const;
    void add(std::size_t shape);
    void set_state(Window window);

    Display* owner_;
    std::mt19937& chance_;
    std::vector<Window> windows_, viewable_, with_state_;
    std::vector<std::size_t> parents_;
    std::vector<bool> for_input_only_, is_viewable_;
    bool top_lives_ = true;
};

}  // namespace test
