// SPDX-License-Identifier: MIT
// What the classes of the library share beside their base.
#pragma once

#include <zo_core/zo_object.hpp>

#include <string>

namespace zo {

// The destroy guard: true for the first call on `object`, which goes on to destroy it; false, with one line
// written, for every later one. `file` and `guard_line` are the class's own, `reason` and `line` the
// caller's.
ZO_EXPORT bool begin_destroy(_zo_object& object, const char* file, int guard_line, const std::string& reason,
                             int line);

}  // namespace zo
