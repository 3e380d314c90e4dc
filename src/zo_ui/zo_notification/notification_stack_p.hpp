// SPDX-License-Identifier: MIT
// Stacks of popups: each below the older ones, with a small gap, and moved up when one of them leaves.
#pragma once

#include <zo_ui/zo_notification/notification_types_p.hpp>

namespace zo {

// Of the notifications without a manager.
popup_container& global_notification_container();

// Notes the library's own record of a popup's place with the popup; null takes it away.
void note_place(GtkWidget* popup, popup_place* place);

// Moves a popup that has a record. Where it is on screen already, that costs nothing.
void move_popup(GtkWidget* popup, popup_place& place, int x, int y);

// Puts a popup that has just come on screen where its record says. A move of a hidden one may get lost when
// the server's report of an earlier place arrives after it.
void put_popup(GtkWidget* popup, const popup_place& place);

// The left edge of a stack: a manager's stands at the right of the screen, the process's at the left.
int x_of(const popup_stack& stack);

// The y for the popup of `id`: below the older ones of a manager's stack, below all of the process's.
int y_below(const popup_stack& stack, unsigned long id);

// Moves the popups of a stack up to where others left. The first does it once for all that the application
// destroyed in a row: each move of hundreds of popups costs a request for each of them. Who asks for a place
// calls the second before, who lets the application look the third.
void close_gaps_soon(const popup_stack& stack);
void close_gaps(popup_container* popups);
void close_all_gaps();

}  // namespace zo
