// SPDX-License-Identifier: MIT
/// @file
/// Numbers that tell things apart.
#pragma once

#include <zo_core/zo_export.hpp>

/// A number that this process has not been given before; never 0.
/// @thread any
ZO_EXPORT unsigned long zo_get_unique_id();
