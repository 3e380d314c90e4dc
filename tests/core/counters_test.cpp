// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>

#include <thread>
#include <vector>

namespace {

TEST(Counters, AnUnknownTagIsZero) {
    EXPECT_EQ(zo_object_ref_count("[unknown]"), 0);
    EXPECT_EQ(zo_object_ref_count(""), 0);
}

TEST(Counters, CountUpAndDownByTag) {
    zo_object_ref_increment("[one]");
    zo_object_ref_increment("[one]");
    zo_object_ref_increment("[two]");
    EXPECT_EQ(zo_object_ref_count("[one]"), 2);
    EXPECT_EQ(zo_object_ref_count("[two]"), 1);
    zo_object_ref_decrement("[one]");
    EXPECT_EQ(zo_object_ref_count("[one]"), 1);
    EXPECT_EQ(zo_object_ref_count("[two]"), 1);
    zo_object_ref_decrement("[one]");
    zo_object_ref_decrement("[two]");
    EXPECT_EQ(zo_object_ref_count("[one]"), 0);
    EXPECT_EQ(zo_object_ref_count("[two]"), 0);
}

TEST(Counters, LoseNothingBetweenThreads) {
    constexpr int count = 8;
    constexpr int turns = 2000;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < count; ++thread)
        threads.emplace_back([own = "[thread " + std::to_string(thread) + "]"] {
            for (int turn = 0; turn < turns; ++turn) {
                zo_object_ref_increment("[shared]");
                zo_object_ref_increment(own);
                EXPECT_GT(zo_object_ref_count("[shared]"), 0);
            }
        });
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(zo_object_ref_count("[shared]"), count * turns);
    EXPECT_EQ(zo_object_ref_count("[thread 3]"), turns);
}

}  // namespace
