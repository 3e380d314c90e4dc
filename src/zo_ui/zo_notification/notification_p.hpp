// SPDX-License-Identifier: MIT
// The notification, as far as a manager needs it.
#pragma once

#include <zo_ui/zo_window_manager/manager_notification_p.hpp>

class _zo_notification : public _zo_object, public zo::managed_notification {};
