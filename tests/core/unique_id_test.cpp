// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>

#include <set>
#include <thread>
#include <vector>

namespace {

TEST(UniqueId, IsNeverZeroAndNeverRepeated) {
    constexpr std::size_t count = 8;
    constexpr std::size_t turns = 2000;
    std::vector<std::vector<unsigned long>> taken(count);
    std::vector<std::thread> threads;
    for (auto& ids : taken)
        threads.emplace_back([&ids] {
            for (std::size_t turn = 0; turn < turns; ++turn) ids.push_back(zo_get_unique_id());
        });
    for (std::thread& thread : threads) thread.join();
    std::set<unsigned long> all;
    for (const auto& ids : taken) all.insert(ids.begin(), ids.end());
    EXPECT_EQ(all.size(), count * turns);
    EXPECT_EQ(all.count(0), 0U);
}

}  // namespace
