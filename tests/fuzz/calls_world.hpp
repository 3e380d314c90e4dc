// SPDX-License-Identifier: MIT
// The library itself, called and looked at from outside.
#pragma once

#include "fuzz/calls.hpp"

#include <zo_ui/zo_ui.hpp>

namespace fuzz {

class world {
  public:
    explicit world(reactions programs);
    ~world();  // ends every object, and what they left on the loop
    world(const world&) = delete;
    world& operator=(const world&) = delete;

    // False when there is nothing to press.
    bool make(const call& made);
    const story& told() const { return told_; }
    picture look() const;

  private:
    bool tell(kind of, int who, event what);
    bool answers(const occasion& when) const;
    void prepare_window(int w);
    void prepare_manager(int m);
    void prepare_notification(int n);
    bool make_window_call(const call& made);
    bool press_window(const call& made);
    bool make_manager_call(const call& made);
    bool make_notification_call(const call& made);
    GtkWidget* toplevel(int w) const;
    GtkWidget* popup(int n) const;

    reactions programs_;
    story told_;
    std::array<zo_window_ptr, windows_count> windows_;
    std::array<zo_window_manager_ptr, managers_count> managers_;
    std::array<zo_notification_ptr, notifications_count> notifications_;
};

}  // namespace fuzz
