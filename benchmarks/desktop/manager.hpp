// SPDX-License-Identifier: MIT
// What the window manager tells, and when it has handled what came before. On a connection of the caller's.
#pragma once

#include <X11/Xlib.h>
#include <vector>

namespace bench {

// The windows of a property of the root, such as "_NET_CLIENT_LIST".
std::vector<Window> windows_told(Display* display, const char* property);

// Asks the window manager for something about a window; `first` is the message's first number.
void ask_manager(Display* display, Window window, const char* message, long first);

// Returns when the window manager has handled what came before; at once when there is none.
void wait_for_manager(Display* display);

// Returns when no client is managed any more: those of the program before may not be gone yet.
void wait_for_empty_desktop();

}  // namespace bench
