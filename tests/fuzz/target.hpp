// SPDX-License-Identifier: MIT
// What every fuzzing target needs: the toolkit, and a check that ends the process.
#pragma once

#include <functional>
#include <string>

namespace fuzz {

// gtk_init, zo_ui_init; a warning of GLib's log ends the process from here on, unless it contains `allowed`.
void prepare(int* argc, char*** argv);
void allow_warning(const std::string& text);

inline void check(bool holds, const std::function<std::string()>& what);

[[noreturn]] void fail(const std::string& what);

}  // namespace fuzz

inline void fuzz::check(bool holds, const std::function<std::string()>& what) {
    if (!holds) fail(what());
}
