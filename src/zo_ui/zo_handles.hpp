// SPDX-License-Identifier: MIT
// The shared handles of the library's classes. Applications hold handles; the classes stay inside.
#pragma once

#include <zo_core/zo_export.hpp>
#include <zo_core/zo_object.hpp>

class _zo_window;
class _zo_window_event;
class _zo_window_manager;
class _zo_notification;
class _zo_appindicator;

using zo_window_ptr = boost::shared_ptr<_zo_window>;
using zo_window_event_ptr = boost::shared_ptr<_zo_window_event>;
using zo_window_manager_ptr = boost::shared_ptr<_zo_window_manager>;
using zo_notification_ptr = boost::shared_ptr<_zo_notification>;
using zo_appindicator_ptr = boost::shared_ptr<_zo_appindicator>;
