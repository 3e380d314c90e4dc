// SPDX-License-Identifier: MIT
#pragma once

#include "tour_panel.hpp"

namespace demo::tour {

// The tour's steps with notifications and the tray. Each throws failed_step when something does not happen.
void message_stack(visit& v);
void messages_of_the_panel(visit& v);
void link_action_and_timeout(visit& v);
void tray_menu(visit& v);

}  // namespace demo::tour
