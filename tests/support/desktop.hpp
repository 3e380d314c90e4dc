// SPDX-License-Identifier: MIT
// The desktop as other programs see it and act on it. Commands run while the loop turns, since a command that
// acts on the test's own windows would wait for them otherwise.
#pragma once

#include <gtk/gtk.h>

#include <string>
#include <vector>

namespace test {

// Runs a command to its end and gives its standard output; a failure of the command fails the test.
std::string run_command(const std::vector<std::string>& command);

// A real pointer (XTEST), in root coordinates.
void move_pointer(int x, int y);
void press_button(int button = 1);
void release_button(int button = 1);
void click_at(int x, int y);

// The middle of a widget that is on screen, in root coordinates (device pixels).
struct point {
    int x;
    int y;
};
point middle_of(GtkWidget* widget);
void click(GtkWidget* widget);

// A real key to whatever has the keyboard focus, by its X name ("Escape", "Down", "a").
void type_key(const std::string& key);

// Waits until a toplevel on screen has been laid out and drawn anew: what was asked for before is in place.
void draw_again(GtkWidget* toplevel);

// The id of a widget's X window, for commands.
std::string x_window(GtkWidget* toplevel);

// Waits until the X server and the window manager have handled everything that was sent before, and this
// program what came back. A window manager answers in order: asked for the frame of a window that is never
// shown, it has done the rest before. Without a window manager only the server is waited for.
void settle_desktop();

// What xprop says of one property of a toplevel's X window.
std::string x_property(GtkWidget* toplevel, const std::string& name);

// Waits until the property contains `text`, or does not.
bool x_property_becomes(GtkWidget* toplevel, const std::string& name, const std::string& text,
                        bool there = true);

}  // namespace test
