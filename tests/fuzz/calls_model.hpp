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
    explicit model(reactions programs);

    // False when there is nothing to press.
    bool make(const call& made);
    const story& told() const { return told_; }
    picture look() const;

  private:
    struct window {
        bool opened = false, visible = false, destroyed = false, destroying = false, end_asked = false;
        bool popup = false, titled = false, restore_visible = false, task = false, mapped = false;
        bool built_in_title = true, menu_shown = false;
        title_flags wanted = default_title_flags(), buttons{};
        int who = 0, tree = 0, instance = 0, manager = -1, links = 0, title = 0, button = 0, menu = 0;
        std::set<event> answers;
    };
    struct manager {
        bool opened = false, visible = false, destroyed = false, destroying = false, end_asked = false;
        bool keep = false, kept = false,
             locked = false;  // what is read, what was applied, what the lock shows
        int who = 0;
        std::set<event> answers;
        std::array<bool, widget_places> widgets{};
        std::vector<int> registered, shown;
        std::set<int> listed, stacked;
    };
    struct notification {
        bool opened = false, visible = false, destroyed = false, closing = false, end_after_link = false;
        int links = 0, who = 0, manager = -1, listed_in = -1, stacked_in = -2;
    };

    struct indicator {
        bool destroyed = false, shown = false;
        std::set<int> actions, items;
    };

    static title_flags default_title_flags();
    void post(std::function<void()> task) { queue_.push_back(std::move(task)); }
    void run();
    bool has_callback(const occasion& when) const;
    bool answer(kind of, int who, event what);  // of the callback, which is there
    bool tell_window(int w, event what);        // likewise; false without one
    void tell_manager(int m, event what), tell_notification(int n, event what);
    int new_window(int who), new_manager(int who), new_notification(int who);
    std::set<event> first_answers(kind of, int who) const;

    bool make_window_call(const call& made);
    bool make_other_window_call(const call& made);
    bool press_some_window(const call&made), press_window(const call&made),
        press_title(int w, title_button button);
    bool press_menu(int w, verb what);
    void open_menu(int w);
    void open(int w), show(int w), hide(int w), activate(int w), restore(int w), close(int w), destroy(int w);
    void request_close(int w), change_title(int w, int old, int now);
    void post_end(int w), post_join(int w, int m), join(int w, int m);
    bool still(int w, int tree) const { return tree != 0 && windows_[w].tree == tree && windows_[w].opened; }

    bool make_manager_call(const call&made), make_widget_call(const call&made), click_lock(int m);
    void apply_keep(int m, bool keep);
    void manager_open(int m), manager_show(int m), manager_hide(int m), manager_close(int m),
        manager_destroy(int m);
    void connect(int m, int w), disconnect(int m, int w), window_opened(int m, int w),
        window_shown(int m, int w);
    void window_closed(int m, int w), give_task(int w);
    std::vector<int> row_of(int m) const;

    bool make_notification_call(const call& made);
    void notification_open(int n), notification_show(int n), notification_hide(int n),
        notification_close(int n);
    bool make_indicator_call(const call& made);
    std::vector<int> items() const;
    void follow_link(int n), list_in(int n, int m), stack_in(int n, int m);

    reactions programs_;
    story told_;
    std::deque<std::function<void()>> queue_;
    int trees_ = 0, buttons_ = 0, menus_ = 0;
    // Those that a program dropped go on until nothing is left to do.
    std::deque<window> windows_;
    std::deque<manager> managers_;
    std::deque<notification> notifications_;
    std::deque<indicator> indicators_;
    int present_indicator_ = -1;
    std::array<int, windows_count> present_windows_{};
    std::array<int, managers_count> present_managers_{};
    std::array<int, notifications_count> present_notifications_{};
};

}  // namespace fuzz
