// SPDX-License-Identifier: MIT
#pragma once

#include <gtk/gtk.h>

namespace zo {

// What a drag without the window manager's help would move. The library never remembers a target, since
// gtk_window_begin_move_drag does the moving; the release and motion handlers are kept as an extension point
// (tests "MotionMovesARememberedTarget" and "ReleaseForgetsTheTarget"). On the loop.
struct drag_state {
    GtkWidget* target = nullptr;
    double horizontal_offset = 0;
    double vertical_offset = 0;
};

drag_state& drag();

}  // namespace zo
