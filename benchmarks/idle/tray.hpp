// SPDX-License-Identifier: MIT
// Whose icons the tray has.
#pragma once

#include <desktop/session_bus.hpp>

namespace bench {

// How many icons of the process the tray knows.
int icons_of(const session_bus& bus, pid_t process);

}  // namespace bench
