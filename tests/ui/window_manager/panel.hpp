// SPDX-License-Identifier: MIT
// A panel for one test, and its parts found from outside.
#pragma once

#include "support/desktop.hpp"
#include "support/ui.hpp"

#include <ostream>
#include <string>
#include <vector>

namespace test {

state state_of(const zo_window_manager_ptr& manager);

// Closes and destroys the panel at the end of the scope.
class scoped_panel {
  public:
    scoped_panel() : manager_(zo_window_manager_new("")) {}
    ~scoped_panel();
    scoped_panel(const scoped_panel&) = delete;
    scoped_panel& operator=(const scoped_panel&) = delete;
    operator zo_window_manager_ptr() const { return manager_; }
    const zo_window_manager_ptr& get() const { return manager_; }

    // Each posts and runs the tasks.
    void run(bool (*operation)(zo_window_manager_ptr)) const;
    void open() const { run(zo_window_manager_open); }
    void close() const { run(zo_window_manager_close); }
    void keep_extended(bool keep) const;
    void join(const zo_window_ptr& window) const;

    // Opens it when it is closed, and waits until it is on screen and laid out.
    GtkWidget* show() const;

  private:
    zo_window_manager_ptr manager_;
};

// The one panel that is open; null when there is none.
GtkWidget* panel();

// A part of the open panel by its style class.
GtkWidget* part(const std::string& style_class);

// The names of the task buttons and "x" for the close buttons, from left to right, "_" for an empty padding.
std::string row();

// Null when there is none.
GtkWidget* task_button(const std::string& window_id);
GtkWidget* close_button(const std::string& window_id);  // the one right of the task button

// A window that is opened, joined and, if wished, on screen.
class joined_window {
  public:
    joined_window(const scoped_panel& panel, const std::string& id);
    operator zo_window_ptr() const { return window_; }
    const zo_window_ptr& get() const { return window_.get(); }
    GtkWidget* open() { return window_.open(); }
    GtkWidget* show() { return window_.show(); }
    void run(bool (*operation)(zo_window_ptr));

  private:
    scoped_window window_;
};

struct place {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const place&) const = default;
};
std::ostream& operator<<(std::ostream& out, const place& p);

// Where the server has the panel, in logical pixels.
place place_of(GtkWidget* panel);

// Waits until the panel is at the top of the screen, or has one row left there, and stays.
bool is_extended();
bool is_retracted();

}  // namespace test
