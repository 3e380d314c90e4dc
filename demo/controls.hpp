// SPDX-License-Identifier: MIT
// What the gallery's pages are made of. Callbacks go through the library's connectors, so that they appear in
// its listener statistics.
#pragma once

#include <gtk/gtk.h>

#include <functional>
#include <string>
#include <vector>

namespace demo {

void add_class(GtkWidget* widget, const char* style_class);

// Puts a child at the end of a box, at its natural height.
void append(GtkWidget* box, GtkWidget* child);

// A line of Pango markup, aligned to the start.
GtkWidget* text_label(const std::string& markup);

// The name of a group of controls.
GtkWidget* heading_new(const char* text);

// A paragraph of explanation.
GtkWidget* note_new(const char* text);

struct button_text {
    const char* name;  // of the widget
    const char* label;
    std::function<void()> pressed;
};

// Buttons of one width, in rows.
GtkWidget* buttons_new(const std::vector<button_text>& buttons, int columns = 3);

// A label at the start of a row, and a control at its end, which takes the label as its accessible name.
GtkWidget* row_new(const char* label, GtkWidget* control);

// A row with a switch. `flipped` is called when a person flips it.
GtkWidget* toggle_new(const char* name, const char* label, bool on, std::function<void(bool)> flipped);

GtkWidget* entry_new(const char* name, const std::string& text, std::function<void(std::string)> edited);

GtkWidget* number_new(const char* name, int from, int to, int value, std::function<void(int)> changed);

// Two or more buttons of which one is down.
GtkWidget* choice_new(const std::vector<button_text>& choices, std::size_t chosen);

struct fact {
    const char* label;
    std::function<std::string()> value;
};

// A table of facts that is read again twice a second as long as it lives, and by refresh_soon().
GtkWidget* facts_new(std::vector<fact> facts);

// Posts a refresh of everything that keep_fresh() keeps; one task for many calls.
void refresh_soon();

// Calls `refresh` now and then every `milliseconds` as long as the widget lives.
void keep_fresh(GtkWidget* widget, unsigned long milliseconds, std::function<void()> refresh);

}  // namespace demo
