// SPDX-License-Identifier: MIT
/// @file
/// The object core, in reading order. Link with `pkg-config --cflags --libs zo_core` or the CMake target
/// `zo::core`.
///
/// There is nothing to start: objects may be made, and tasks and timeouts posted, before the main loop runs.
/// They are kept and run once the default GLib main context iterates, whoever iterates it.
#pragma once

#include <zo_core/zo_export.hpp>

#include <zo_core/zo_object.hpp>
#include <zo_core/zo_property.hpp>
#include <zo_core/zo_property_mutex.hpp>

#include <zo_core/zo_diagnostics.hpp>
#include <zo_core/zo_lang.hpp>
#include <zo_core/zo_service.hpp>
#include <zo_core/zo_service_task.hpp>
#include <zo_core/zo_unique_id.hpp>
