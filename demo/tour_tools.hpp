// SPDX-License-Identifier: MIT
// A visitor's hands and eyes: a real pointer, widgets found as a person would, and pictures.
#pragma once

#include <gtk/gtk.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace demo::tour {

// A step that did not happen.
struct failed_step : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Turns the loop until `done` holds; throws failed_step with `what` when it does not.
void expect(const std::string& what, const std::function<bool()>& done);

// Runs a command to its end while the loop turns.
void run(const std::vector<std::string>& command);

// Widgets of the window with this id. Throws when there is none.
GtkWidget* window_named(const std::string& id);
GtkWidget* window_of_class(const std::string& style_class);
GtkWidget* widget_of_class(GtkWidget* root, const std::string& style_class);
GtkWidget* widget_named(GtkWidget* root, const std::string& name);
GtkWidget* button_labelled(GtkWidget* root, const std::string& label);
// The same, null or false when there is none.
GtkWidget* descendant_named(GtkWidget* root, const std::string& name);
bool is_open(const std::string& id);
bool has_window_of_class(const std::string& style_class);
bool is_on_screen(GtkWidget* widget);

// A toplevel's place on the screen, device pixels.
struct place {
    int x;
    int y;
    bool operator==(const place&) const = default;
};
place place_of(GtkWidget* toplevel);

// Scrolls the widget into sight first.
void click(GtkWidget* widget);
void drag(GtkWidget* widget, int dx, int dy);
void point_at(GtkWidget* widget);
void point_to(int x, int y);
// In the entry that has the focus, in place of its text.
void type(const std::string& text);

// The whole screen as a PNG.
void photograph(const std::string& file);

}  // namespace demo::tour
