// SPDX-License-Identifier: MIT
// The window manager, as far as windows need it: an object that hosts them.
#pragma once

#include <zo_ui/zo_window/window_host_p.hpp>

class _zo_window_manager : public _zo_object, public zo::window_host {};
