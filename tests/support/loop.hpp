// SPDX-License-Identifier: MIT
// Turning the main loop in a test: until something has happened, never for a time.
#pragma once

#include <chrono>
#include <functional>

namespace test {

// Turns the loop until `done` holds; false when it does not within the limit, which only a failure reaches.
bool turn_until(const std::function<bool()>& done,
                std::chrono::milliseconds limit = std::chrono::seconds(20));

// Runs every task that is queued, and those they post, until the queue is empty.
void run_tasks();

}  // namespace test
