// SPDX-License-Identifier: MIT
#pragma once

#include "workshop.hpp"

namespace demo {

inline constexpr const char* tray_name = "zo-demo";
inline constexpr const char* tray_icon = "applications-graphics";

// Shows the icon with its menu, unless it is shown.
void show_tray(workshop& shop);

// Takes the icon away.
void remove_tray(workshop& shop);

}  // namespace demo
