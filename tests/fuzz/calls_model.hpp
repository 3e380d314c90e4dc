// SPDX-License-Identifier: MIT
// What the library promises about windows, panels and notifications, without a toolkit: flags, the queue of
// tasks, and who is told what in which order.
#pragma once

#include "fuzz/calls.hpp"

#include <deque>
#include <functional>
#include <set>

namespace fuzz {

class model {
  public:
    explicit model(reactions programs) : programs_(std::move(programs)) {}

    // False when there is nothing to press.
    bool make(const call& made);
    const story& told() const { return told_; }
    picture look() const;

  private:
    struct window {
        bool opened = false, visible = false, destroyed = false, destroying = false, end_asked = false;
        bool popup = false, titled = false, restore_visible = false, silent = false, task = false;
        int tree = 0, instance = 0, manager = -1, links = 0, title = 0;
    };
    struct manager {
        bool opened = false, visible = false, destroyed = false, destroying = false, end_asked = false;
        bool silent = false;
        std::vector<int> registered, shown;
        std::set<int> listed, stacked;
    };
    struct notification {
        bool opened = false, visible = false, destroyed = false, closing = false;
        int manager = -1, listed_in = -1, stacked_in = -2;
    };

    void post(std::function<void()> task) { queue_.push_back(std::move(task)); }
    void run();
    bool tell(kind of, int who, event what);  // the answer of the callback; false without one

    bool make_window_call(const call& made);
    bool press_window(const call& made);
    void open(int w), show(int w), hide(int w), activate(int w), restore(int w), close(int w), destroy(int w);
    void request_close(int w), change_title(int w, int old, int now);
    void post_end(int w), post_join(int w, int m), join(int w, int m);
    bool still(int w, int tree) const { return tree != 0 && windows_[w].tree == tree && windows_[w].opened; }

    bool make_manager_call(const call& made);
    void manager_open(int m), manager_show(int m), manager_hide(int m), manager_close(int m),
        manager_destroy(int m);
    void connect(int m, int w), disconnect(int m, int w), window_opened(int m, int w),
        window_shown(int m, int w);
    void window_closed(int m, int w), give_task(int w);

    bool make_notification_call(const call& made);
    void notification_open(int n), notification_show(int n), notification_hide(int n),
        notification_close(int n);
    void list_in(int n, int m), stack_in(int n, int m);

    reactions programs_;
    story told_;
    std::deque<std::function<void()>> queue_;
    int trees_ = 0;
    std::array<window, windows_count> windows_;
    std::array<manager, managers_count> managers_;
    std::array<notification, notifications_count> notifications_;
};

}  // namespace fuzz
