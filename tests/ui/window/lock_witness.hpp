// SPDX-License-Identifier: MIT
// Stands in for the core's property_lock, and notes where it was taken. For programs that are linked with the
// library's objects; included once.
#pragma once

#include <zo_core/zo_object.hpp>

#include <string>
#include <vector>

namespace test {

struct taken_lock {
    std::string file;
    int line;
};

inline std::vector<taken_lock> taken_locks;

// Was the window's lock taken with this line?
inline bool was_locked_at(int line) {
    for (const taken_lock& lock : taken_locks)
        if (lock.file == "src/zo_ui/zo_window" && lock.line == line) return true;
    return false;
}

}  // namespace test

void _zo_object::property_lock(const char* file, int line) {
    property_mutex_.lock();
    test::taken_locks.push_back({file, line});
}
