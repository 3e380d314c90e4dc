// SPDX-License-Identifier: MIT
// Stacks of popups: each below the older ones, with a small gap, and moved up when one of them leaves.
#pragma once

#include <zo_ui/zo_notification/notification_types_p.hpp>

namespace zo {

// Of the notifications without a manager.
popup_container& global_notification_container();

// Notes the library's own record of a popup's place with the popup; null takes it away.
void note_place(GtkWidget* popup, popup_place* place);

// Moves a popup that has a record. A place that it has on screen already costs nothing.
void move_popup(GtkWidget* popup, popup_place& place, int x, int y);

// The y below all popups older than `id`, or, with `whole`, below every other one.
int y_below(const popup_container& popups, unsigned long id, bool whole);

// Closes the gaps, also those of hidden popups. What is not a window is passed over.
void restack(const popup_stack& stack);

}  // namespace zo
