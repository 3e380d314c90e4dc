// SPDX-License-Identifier: MIT
// For tests with windows on the screen: the toolkit is set up before the first test, and widgets are found
// from outside, by style class and name.
#pragma once

#include "support/loop.hpp"
#include "support/main.hpp"
#include "support/output.hpp"

#include <gtest/gtest.h>
#include <gtk/gtk.h>
#include <zo_ui/zo_ui.hpp>

#include <string>
#include <vector>

namespace test {

// gtk_init, zo_ui_init. Programs that test what comes before define ZO_TEST_WITHOUT_UI_INIT before including
// this.
bool prepare_gtk(int* argc, char*** argv);
bool prepare_ui(int* argc, char*** argv);
#ifdef ZO_TEST_WITHOUT_UI_INIT
inline const preparation toolkit_ready{prepare_gtk};
#else
inline const preparation toolkit_ready{prepare_ui};
#endif

// The window manager of the session the test runs in ("openbox", "none").
std::string session_wm();

bool has_class(GtkWidget* widget, const std::string& name);
std::vector<GtkWidget*> children(GtkWidget* container);

// Depth first, internal children too; null when there is none.
GtkWidget* find(GtkWidget* root, const std::function<bool(GtkWidget*)>& wanted);
GtkWidget* find_class(GtkWidget* root, const std::string& style_class);
GtkWidget* find_name(GtkWidget* root, const std::string& name);

// Toplevels and popups with a style class, in GTK's order.
std::vector<GtkWidget*> toplevels(const std::string& style_class);

// The toplevel of the library's window with this id (its widget name); null when it is not open.
GtkWidget* toplevel_named(const std::string& id);

// Is the widget drawn on screen: mapped, and its first frame done?
bool is_on_screen(GtkWidget* widget);

struct state {
    bool opened = false;
    bool visible = false;
    bool destroyed = false;
    bool operator==(const state&) const = default;
};
state state_of(const zo_window_ptr& window);
std::ostream& operator<<(std::ostream& out, const state& s);

// Destroys the window at the end of the scope and runs the tasks that belong to it.
class scoped_window {
  public:
    explicit scoped_window(const std::string& id = "w") : window_(zo_window_new(id)) {}
    ~scoped_window();
    scoped_window(const scoped_window&) = delete;
    scoped_window& operator=(const scoped_window&) = delete;
    operator zo_window_ptr() const { return window_; }
    const zo_window_ptr& get() const { return window_; }

    // Posts, runs the tasks, and gives the toplevel; show() also waits until it is on screen.
    GtkWidget* open();
    GtkWidget* show();

  private:
    zo_window_ptr window_;
};

}  // namespace test
