// SPDX-License-Identifier: MIT
// Work of many threads at once beside the loop; the thread sanitizer watches.
#pragma once

#include "support/loop.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

namespace test {

constexpr int threads_count = 8;

// Runs `work(thread, turn)` on all threads while this one turns the loop, and `meanwhile` in each turn.
inline void on_all_threads(
    int turns, const std::function<void(int, int)>& work, const std::function<void()>& meanwhile = [] {}) {
    std::atomic<int> left{threads_count};
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threads_count; ++thread)
        threads.emplace_back([&, thread] {
            for (int turn = 0; turn < turns; ++turn) work(thread, turn);
            --left;
        });
    const auto done = [&] {
        meanwhile();
        return left == 0;
    };
    EXPECT_TRUE(turn_until(done, std::chrono::seconds(240)));
    for (std::thread& thread : threads) thread.join();
    run_tasks();
}

}  // namespace test
