// SPDX-License-Identifier: MIT
// The search for the client window in its frame: what XmuClientWindow finds, in one round trip for each level
// of the tree instead of one or two for each window. Test "ClientSearch" compares the two.
#pragma once

#include <X11/Xlib.h>

#include <vector>

namespace zo::platform {

// Where the search expects the client. When it is a child, what is below the children need not be asked for
// in advance, which is dear in a frame of many parts. A wrong guess costs one more round trip.
enum class likely_depth { child, any };

// The window below the given one, whose children these are, that carries the window manager's state. A
// window's children come before their own children, and what is below a window before what is below the next
// one. 0 when there is none, and also when the window carries the state itself.
Window client_below(Display* display, Atom wm_state, Window window, const std::vector<Window>& children,
                    likely_depth depth = likely_depth::any);

}  // namespace zo::platform
