// SPDX-License-Identifier: MIT
// A main loop whose sleep can be waited for: for tests of what must wake it.
#pragma once

#include <functional>

namespace test {

// Runs the main loop on this thread without anything that would wake it, and `wake` on another thread once
// the loop is going to sleep. False when `done`, asked after every turn, does not hold before a deadline that
// only a failure reaches.
bool wakes_sleeping_loop(const std::function<void()>& wake, const std::function<bool()>& done);

}  // namespace test
