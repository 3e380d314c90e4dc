// SPDX-License-Identifier: MIT
// Turning the main loop in a test: until something has happened, never for a time.
#pragma once

#include <chrono>
#include <functional>

namespace test {

// How long a test waits for what must come: 20 s, or ZO_TEST_PATIENCE in milliseconds for who expects
// failures.
std::chrono::milliseconds patience();

// Turns the loop until `done` holds; false when it does not within the limit, which only a failure reaches.
bool turn_until(const std::function<bool()>& done, std::chrono::milliseconds limit = patience());

// Runs every task that is queued, and those they post, until the queue is empty.
void run_tasks();

}  // namespace test
