// SPDX-License-Identifier: MIT
#include <zo_ui/zo_notification/notification_p.hpp>

zo::managed_notification& zo::managed(_zo_notification& notification) { return notification; }
