// SPDX-License-Identifier: MIT
// Calls of one kind, row by row: `which` is any number.
#pragma once

#include <zo_ui/zo_ui.hpp>

namespace fuzz {

// Calls an exported function with an empty handle; true when it answers as it has to.
bool refuses_null(int which);

// Sets a flag that a window's buttons do not depend on; true when it reads as it was set.
bool set_flag(const zo_window_ptr& window, int which);

// Sets, or clears, a callback that nothing in the model calls.
bool set_other_callback(const zo_window_ptr& window, int which);

bool set_something(const zo_notification_ptr& notification, int which);

}  // namespace fuzz
