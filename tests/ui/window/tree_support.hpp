// SPDX-License-Identifier: MIT
// What several tests of a window's widgets need.
#pragma once

#include "support/ui.hpp"

namespace test {

struct packing {
    bool expand;
    bool fill;
    guint padding;
    GtkPackType type;
    bool operator==(const packing&) const = default;
};
std::ostream& operator<<(std::ostream& out, const packing& p);

packing packing_of(GtkWidget* child);

// Is a handler connected to this signal of this one widget?
bool has_handler(GtkWidget* widget, const char* signal);

// How many handlers with this user data are connected to it, and how many the window itself connected.
guint handlers_of(gpointer data, GtkWidget* widget, const char* signal);
guint own_handlers(const zo_window_ptr& window, GtkWidget* widget, const char* signal);

// All seven buttons of the title bar.
void enable_title_buttons(const zo_window_ptr& window, bool enabled = true);

// A plain button that takes this much room, and is shown.
GtkWidget* block(int width, int height);

// Takes the default theme from the source tree.
void use_theme();

// What a tooltip or an accessible program reads.
std::string accessible_name(GtkWidget* widget);
std::string tooltip_of(GtkWidget* widget);

}  // namespace test
