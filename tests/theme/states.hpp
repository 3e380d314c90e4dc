// SPDX-License-Identifier: MIT
// The states in which a widget may be seen, and its picture in each.
#pragma once

#include "theme/ink.hpp"

#include <string>
#include <vector>

namespace theme {

struct situation {
    GtkWidget* toplevel;
    GtkWidget* widget;
    GtkStateFlags flags;  // added to the widget's own
    bool disabled;
    bool backdrop;       // the toplevel's
    std::string states;  // for people
};

// Each of what a person reads or presses, in each state that it can have: at rest, under the pointer,
// pressed, chosen, disabled, and all of that while another application is in front.
std::vector<situation> situations(const std::vector<GtkWidget*>& toplevels);

// Lays a toplevel out at once, as GTK does before its next frame, for which nobody waits here.
void lay_out(GtkWidget* toplevel);

// Widget data: how many letters of its text a person has chosen.
inline constexpr const char* chosen_length = "zo-chosen-length";

std::vector<picture> drawn(const std::vector<situation>& situations);

}  // namespace theme
