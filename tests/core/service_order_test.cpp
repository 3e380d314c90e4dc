// SPDX-License-Identifier: MIT
#include "core/posting.hpp"
#include "core/sleeping_loop.hpp"
#include "support/loop.hpp"
#include "support/output.hpp"

#include <glib.h>
#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>

#include <mutex>
#include <thread>
#include <vector>

namespace {

using test::post;

std::function<void()> note(std::string& order, char letter) {
    return [&order, letter] { order.push_back(letter); };
}

TEST(ServiceOrder, TasksWaitForTheLoop) {
    std::string order;
    for (const char letter : std::string("abc")) post(note(order, letter));
    EXPECT_EQ(order, "");
    EXPECT_TRUE(g_main_context_pending(nullptr));
    EXPECT_EQ(order, "");
    test::run_tasks();
    EXPECT_EQ(order, "abc");
    test::run_tasks();
    EXPECT_EQ(order, "abc") << "a task runs once";
}

TEST(ServiceOrder, TheLoopMayBeAMainLoop) {
    GMainLoop* loop = g_main_loop_new(nullptr, FALSE);
    std::string order;
    post(note(order, 'a'));
    post([&] { g_main_loop_quit(loop); });
    g_main_loop_run(loop);
    EXPECT_EQ(order, "a");
    post(note(order, 'b'));
    EXPECT_FALSE(zo_system_service_done()) << "leaving a loop does not end the service";
    post([&] { g_main_loop_quit(loop); });
    g_main_loop_run(loop);
    EXPECT_EQ(order, "ab");
    g_main_loop_unref(loop);
}

TEST(ServiceOrder, TasksOfSeveralThreadsKeepTheirCommonOrder) {
    constexpr int threads_count = 4;
    constexpr int each = 1500;  // together more than the queue keeps room for
    std::vector<int> order;
    std::mutex turn;
    int next = 0;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threads_count; ++thread)
        threads.emplace_back([&] {
            for (int count = 0; count < each; ++count) {
                std::lock_guard lock(turn);
                post([&order, number = next++] { order.push_back(number); });
            }
        });
    ASSERT_TRUE(test::turn_until([&] { return order.size() == threads_count * each; }));
    for (std::thread& thread : threads) thread.join();
    for (int number = 0; number < threads_count * each; ++number) ASSERT_EQ(order[number], number);
}

TEST(ServiceOrder, WhatATaskPostsRunsAfterWhatWaits) {
    std::string order;
    post([&] {
        order.push_back('a');
        post(note(order, 'd'));
    });
    post([&] {
        order.push_back('b');
        post(note(order, 'e'));
    });
    post(note(order, 'c'));
    test::run_tasks();
    EXPECT_EQ(order, "abcde");
}

TEST(ServiceOrder, ATurnRunsNoMoreThanWhatWaitedAtItsBegin) {
    int runs = 0;
    std::function<void()> again = [&] {
        if (++runs < 5) post(again);
    };
    post(again);
    for (int turn = 1; turn <= 5; ++turn) {
        g_main_context_iteration(nullptr, FALSE);
        EXPECT_LE(runs, turn);
    }
    test::run_tasks();
    EXPECT_EQ(runs, 5);
}

TEST(ServiceOrder, ANestedLoopGoesOnRunningTasks) {
    std::string order;
    post([&] {
        order.push_back('a');
        post(note(order, 'd'));
        EXPECT_TRUE(test::turn_until([&] { return order.size() >= 4; }));
        order.push_back('e');
    });
    post(note(order, 'b'));
    post(note(order, 'c'));
    test::run_tasks();
    EXPECT_EQ(order, "abcde");
}

TEST(ServiceOrder, NestedLoopsNest) {
    std::string order;
    const auto nest = [&](char begin, char end, std::size_t until) {
        return [&order, begin, end, until] {
            order.push_back(begin);
            EXPECT_TRUE(test::turn_until([&] { return order.size() >= until; }));
            order.push_back(end);
        };
    };
    post(nest('a', 'A', 5));
    post(nest('b', 'B', 4));
    post(note(order, 'c'));
    post(note(order, 'd'));
    post(note(order, 'e'));
    test::run_tasks();
    EXPECT_EQ(order, "abcdeBA");
    post(note(order, 'f'));
    test::run_tasks();
    EXPECT_EQ(order, "abcdeBAf");
}

TEST(ServiceOrder, ANestedLoopRunsTasksOfOtherThreads) {
    bool ran = false;
    std::thread other;
    post([&] {
        other = std::thread([&] { post([&] { ran = true; }); });
        EXPECT_TRUE(test::turn_until([&] { return ran; }));
    });
    test::run_tasks();
    other.join();
    EXPECT_TRUE(ran);
}

TEST(ServiceOrder, APostWakesASleepingLoop) {
    bool ran = false;
    EXPECT_TRUE(test::wakes_sleeping_loop([&] { post([&] { ran = true; }); }, [&] { return ran; }));
}

TEST(ServiceOrder, TasksRunOnTheThreadThatTurnsTheLoop) {
    std::thread::id ran_on;
    std::thread([&] { post([&] { ran_on = std::this_thread::get_id(); }); }).join();
    test::run_tasks();
    EXPECT_EQ(ran_on, std::this_thread::get_id());
}

TEST(ServiceOrder, AnEmptyTaskIsReportedAndNotQueued) {
    test::captured_output output;
    zo_system_service_exec(nullptr, "src/app.cpp", 12);
    EXPECT_EQ(
        output.text(),
        "\x1b[1;31mZO-SYSTEM**ERROR**\x1b[0;0m: assertion failed: task != nullptr - zo_system_service_exec - "
        "src/app.cpp:12\n");
    EXPECT_FALSE(g_main_context_pending(nullptr));
}

TEST(ServiceOrder, AnEmptyQueueLeavesTheLoopAlone) {
    post([] {});
    test::run_tasks();
    EXPECT_FALSE(g_main_context_pending(nullptr));
    EXPECT_FALSE(g_main_context_iteration(nullptr, FALSE));
}

}  // namespace
