// SPDX-License-Identifier: MIT
/// @file
/// What the library says on standard output. Every line is written and flushed in one piece, so that the
/// lines of several threads never mix.
#pragma once

#include <zo_core/zo_export.hpp>

#include <string>

/// Reports an expectation that did not hold. Does nothing when `condition` is true. Otherwise it writes one
/// line with the `expression`, what it was about (`context`, such as the name of a property), and where:
/// `file` and `line`. Always returns; never ends the process.
/// @thread any
ZO_EXPORT void zo_assertion_faild(bool condition, std::string expression, std::string context,
                                  std::string file, int line);
