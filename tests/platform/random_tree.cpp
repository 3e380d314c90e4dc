// SPDX-License-Identifier: MIT
#include "platform/random_tree.hpp"

#include <X11/Xatom.h>

#include <algorithm>

test::random_tree::random_tree(Display* owner, std::mt19937& chance, int windows, int states_in_10)
    : owner_(owner), chance_(chance) {
    const std::size_t shape = below(4);
    for (int i = 0; i < windows; ++i) add(shape);
    for (const Window window : windows_)
        if (below(10) < static_cast<std::size_t>(states_in_10)) set_state(window);
    for (const Window window : windows_)
        if (window != windows_.front() && one_in(3)) {
            if (one_in(2))
                XRaiseWindow(owner_, window);
            else
                XLowerWindow(owner_, window);
        }
    XSync(owner_, False);
}

test::random_tree::~random_tree() {
    if (top_lives_) destroy(windows_.front());
}

// Broad, deep, between them, and one frame of many parts.
void test::random_tree::add(std::size_t shape) {
    const std::size_t count = windows_.size();
    const bool is_top = count == 0;
    const std::size_t nearest[] = {0, count - 1, count / 2, 0};
    const bool is_part = shape == 3 && !one_in(5);
    const std::size_t parent = is_top || is_part ? 0 : nearest[shape] + below(count - nearest[shape]);
    const bool for_input_only = !is_top && (for_input_only_[parent] || one_in(12));
    XSetWindowAttributes attributes{};
    attributes.override_redirect = True;
    const Window window = XCreateWindow(owner_, is_top ? DefaultRootWindow(owner_) : windows_[parent], 0, 0,
                                        20, 20, 0, CopyFromParent, for_input_only ? InputOnly : InputOutput,
                                        CopyFromParent, CWOverrideRedirect, &attributes);
    const bool is_mapped = !one_in(3);
    if (is_mapped) XMapWindow(owner_, window);
    windows_.push_back(window);
    parents_.push_back(parent);
    for_input_only_.push_back(for_input_only);
    is_viewable_.push_back(is_mapped && (is_top || is_viewable_[parent]));
    if (is_viewable_.back()) viewable_.push_back(window);
}

// Of which type it is, and whether it holds anything, does not matter.
void test::random_tree::set_state(Window window) {
    const Atom state = XInternAtom(owner_, "WM_STATE", False);
    const long values[] = {1, 0};
    XChangeProperty(owner_, window, state, one_in(3) ? XA_CARDINAL : state, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(values), static_cast<int>(below(3)));
    with_state_.push_back(window);
}

std::size_t test::random_tree::index_of(Window window) const {
    return static_cast<std::size_t>(std::find(windows_.begin(), windows_.end(), window) - windows_.begin());
}

bool test::random_tree::holds(Window ancestor, Window window) const {
    const std::size_t wanted = index_of(ancestor);
    std::size_t index = index_of(window);
    if (index == windows_.size()) return false;
    while (index != wanted && index != 0) index = parents_[index];
    return index == wanted;
}

bool test::random_tree::has_state(Window window) const {
    return std::find(with_state_.begin(), with_state_.end(), window) != with_state_.end();
}

void test::random_tree::destroy(Window window) {
    top_lives_ &= window != windows_.front();
    XDestroyWindow(owner_, window);
    XSync(owner_, False);
}
