// SPDX-License-Identifier: MIT
// What a manager asks of the notifications stacked on it. The notification stands on the manager, so the
// manager knows only this much of it. Defined with the notification, which alone knows its class.
#pragma once

#include <zo_ui/zo_handles.hpp>

namespace zo {

// Each posts. Showing one whose manager is gone for good closes it.
void show_notification(_zo_notification& notification);
void hide_notification(_zo_notification& notification);
void destroy_notification(_zo_notification& notification, const char* reason, int line);

}  // namespace zo
