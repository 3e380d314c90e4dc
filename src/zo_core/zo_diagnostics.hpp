// SPDX-License-Identifier: MIT
// What the library says on standard output. Every line is written and flushed in one piece, so that the lines
// of several threads never mix.
#pragma once

#include <zo_core/zo_export.hpp>

#include <string>

// Reports an expectation that did not hold: nothing when `condition` is true, otherwise one line with the
// expression, what it was about, and where. Always returns; never ends the process. Any thread.
ZO_EXPORT void zo_assertion_faild(bool condition, std::string expression, std::string context,
                                  std::string file, int line);
