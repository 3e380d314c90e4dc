// SPDX-License-Identifier: MIT
// The lives of single objects, from their beginning to their end.
#pragma once

#include <zo_ui/zo_ui.hpp>

namespace endurance {

// Runs what is due on the loop.
void turn();

// Odd and even numbers differ a little.
void live_a_life(long i);
void notify(long i, const zo_window_manager_ptr& manager);
void indicate(long i);  // with a menu, shown where no tray is

// Half of them are cleared; waits for the others.
void arm_timeouts(int count);

// A panel for one phase after the other. It keeps the places of windows that left it until it is closed, so
// it is opened anew now and then.
class panel {
  public:
    panel() : manager_(zo_window_manager_new("")) { open(); }
    ~panel() {
        zo_window_manager_close(manager_);
        zo_window_manager_destroy(manager_);
        turn();
    }
    panel(const panel&) = delete;
    panel& operator=(const panel&) = delete;
    const zo_window_manager_ptr& manager() const { return manager_; }

    void open_anew() {
        zo_window_manager_close(manager_);
        open();
    }

  private:
    void open() {
        zo_window_manager_open(manager_);
        zo_window_manager_show(manager_);
        turn();
    }
    zo_window_manager_ptr manager_;
};

}  // namespace endurance
