// SPDX-License-Identifier: MIT
// Marks of the interface: everything without ZO_EXPORT stays inside its library.
#pragma once

#define ZO_EXPORT __attribute__((visibility("default")))
