// SPDX-License-Identifier: MIT
#pragma once

#include "workshop.hpp"

namespace demo {

inline constexpr const char* tray_name = "zo-demo";

// Shows the icon with its menu, the first time.
void show_tray(workshop& shop);

}  // namespace demo
