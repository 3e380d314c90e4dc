// SPDX-License-Identifier: MIT
// A main loop whose sleep can be waited for: for tests of what must wake it.
#pragma once

#include <functional>

namespace test {

// Turns the main loop on this thread until `done` holds, without anything that would wake it, and runs `wake`
// on another thread once the loop is going to sleep. False when the loop slept on, up to a deadline that only
// a failure reaches.
bool wakes_sleeping_loop(const std::function<void()>& wake, const std::function<bool()>& done);

}  // namespace test
