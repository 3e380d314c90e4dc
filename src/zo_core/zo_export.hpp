// SPDX-License-Identifier: MIT
/// @file
/// Marks of the interface: everything without ZO_EXPORT stays inside its library.
#pragma once

/// Offers a function or a class to the programs that link the library.
#define ZO_EXPORT __attribute__((visibility("default")))
