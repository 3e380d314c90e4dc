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
    bool set_callback(int w, event what, bool there);
    bool set_manager_callback(int m, event what, bool there);
    void prepare_window(int w);
    void prepare_manager(int m);
    void prepare_notification(int n);
    bool make_here(const call& made);
    bool make_window_call(const call& made);
    bool make_other_window_call(const call& made);
    bool press_some_window(const call& made);
    bool press_window(const call& made);
    bool make_manager_call(const call& made);
    bool make_widget_call(const call& made);
    bool make_notification_call(const call& made);
    bool press_notification(const call& made);
    bool press_lock(int m);
    bool press_indicator(int which);
    void fill_menu(int w, GtkGrid* grid);
    void forget_manager(int m, bool close);
    bool make_process_call(const call& made);
    void let_widget_go(int m, int place);
    void look_at_windows(picture& seen) const;
    std::vector<std::vector<int>> look_at_rows() const;
    GtkWidget* toplevel(int w) const;
    GtkWidget* tool_menu(int w) const;
    GtkWidget* lock_button(int m) const;
    GtkWidget* popup(int n) const;

    reactions programs_;
    story told_;
    int names_ = 0;  // given so far: each window and notification has its own
    std::array<std::string, windows_count> window_names_;
    std::array<std::string, notifications_count> notification_names_;
    std::array<zo_window_ptr, windows_count> windows_;
    std::array<zo_window_manager_ptr, managers_count> managers_;
    std::array<zo_notification_ptr, notifications_count> notifications_;
    std::array<std::array<GtkWidget*, widget_places>, managers_count>
        widgets_{};  // held; null before the first
    zo_appindicator_ptr indicator_;
    unsigned long timeout_ = 0;
};

}  // namespace fuzz
