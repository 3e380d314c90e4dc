// SPDX-License-Identifier: MIT
/// @file
/// The shared handles of the library's classes. Applications hold handles; the classes stay inside.
#pragma once

#include <zo_core/zo_export.hpp>
#include <zo_core/zo_object.hpp>

class _zo_window;
class _zo_window_event;
class _zo_window_manager;
class _zo_notification;
class _zo_appindicator;

/// A shared handle of a window.
using zo_window_ptr = boost::shared_ptr<_zo_window>;
/// A shared handle of an event.
using zo_window_event_ptr = boost::shared_ptr<_zo_window_event>;
/// A shared handle of a window manager, that is of a panel.
using zo_window_manager_ptr = boost::shared_ptr<_zo_window_manager>;
/// A shared handle of a notification.
using zo_notification_ptr = boost::shared_ptr<_zo_notification>;
/// A shared handle of a tray indicator.
using zo_appindicator_ptr = boost::shared_ptr<_zo_appindicator>;
