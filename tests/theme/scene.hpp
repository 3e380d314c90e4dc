// SPDX-License-Identifier: MIT
// Everything that a theme dresses, on screen at once: windows of each kind and state, a tool menu, the panel
// and notifications.
#pragma once

#include <gtk/gtk.h>
#include <zo_ui/zo_ui.hpp>

#include <vector>

namespace theme {

struct scene {
    zo_window_manager_ptr panel;
    std::vector<zo_window_ptr> windows;
    std::vector<zo_notification_ptr> notifications;
    bool complete = false;  // all of it is on screen
};

// Builds it all and waits until it is on screen.
scene build_scene();

// Ordinary widgets in the states that are theirs (chosen, checked, selected), in two columns.
GtkWidget* ordinary_widgets();

// At its own height, if the box is a row.
void pack(GtkWidget* box, GtkWidget* widget);

GtkWidget* popover_new(GtkWidget* beside);

// Toplevels and popups on screen, the library's only.
std::vector<GtkWidget*> stages();

}  // namespace theme
