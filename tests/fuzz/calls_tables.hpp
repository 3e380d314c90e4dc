// SPDX-License-Identifier: MIT
// Calls of one kind, row by row: `which` is any number.
#pragma once

#include "fuzz/calls.hpp"

#include <optional>
#include <zo_ui/zo_ui.hpp>

namespace fuzz {

// Calls an exported function with an empty handle; true when it answers as it has to.
bool refuses_null(int which);

// Sets a flag; true when it reads as it was set.
bool set_flag(const zo_window_ptr& window, int which);

// The button that it stands for, if it is one of the title bar's.
std::optional<title_button> button_of_flag(int which);

// Sets all flags of buttons in the title bar by the bits of `which`.
bool set_title_flags(const zo_window_ptr& window, int which);
title_flags title_flags_of(int which);

// Sets, or clears, a callback that nothing in the model calls, unless it is one of those below.
bool set_other_callback(const zo_window_ptr& window, int which);
std::optional<event> other_event_of(int which);

bool set_something(const zo_notification_ptr& notification, int which);

}  // namespace fuzz
