// SPDX-License-Identifier: MIT
// What the library tells of its own work, in the debug messages of GLib's log: G_MESSAGES_DEBUG=zo_core.
#pragma once

#include <zo_core/zo_service_task.hpp>

#include <string>

namespace zo {

// Is the trace on? Asked of GLib once in the process's life. False costs its caller no more than this.
bool tracing();

// A task that does what `task` does, and then tells who posted it, how long it waited from now on and how
// long it ran. `what` is a literal: "task" or "timeout".
service_task traced(service_task task, const char* what, const std::string& file, int line);

}  // namespace zo
