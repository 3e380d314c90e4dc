// SPDX-License-Identifier: MIT
// The coloured lines, and the check that every exported function begins with.
#pragma once

#include <zo_core/zo_export.hpp>

#include <string>
#include <string_view>

namespace zo {

// Writes `text`, a newline and a flush to standard output, in one piece.
ZO_EXPORT void log_line(std::string_view text);

ZO_EXPORT void log_warning(std::string_view body, std::string_view detail);
ZO_EXPORT void log_error(std::string_view body, std::string_view detail);

// A name inside a line, in its colour.
ZO_EXPORT std::string coloured(std::string_view name);

// Writes the line that an empty handle gives to `function`.
ZO_EXPORT void warn_null_handle(const char* function);

// True, with the warning written, when `handle` is empty. `function` is the exported function's __func__.
template <typename Handle>
bool refuse_null(const Handle& handle, const char* function) {
    if (handle) return false;
    warn_null_handle(function);
    return true;
}

}  // namespace zo
