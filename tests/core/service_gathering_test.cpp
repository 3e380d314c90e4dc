// SPDX-License-Identifier: MIT
// What many tasks in a row would each do is done once, after the last of them, before anybody looks.
#include "core/posting.hpp"
#include "support/loop.hpp"

#include <glib.h>
#include <gtest/gtest.h>
#include <zo_core/zo_service_p.hpp>

#include <string>

namespace {

using test::post;

void post_gathering(std::function<void()> task) { zo::post_gathering(std::move(task), "test", 1); }

std::function<void()> note(std::string& order, char letter) {
    return [&order, letter] { order.push_back(letter); };
}

// A task that writes `letter`, and has `last` written at the end of its row.
std::function<void()> with_last(std::string& order, char letter, char last) {
    return [&order, letter, last] {
        order.push_back(letter);
        zo::after_gathering(note(order, last));
    };
}

TEST(ServiceGathering, ComesAfterTheLastInARowBeforeOtherTasks) {
    std::string order;
    post_gathering(with_last(order, 'a', 'A'));
    post_gathering(with_last(order, 'b', 'B'));
    post(note(order, 'c'));
    post_gathering(with_last(order, 'd', 'D'));
    post(note(order, 'e'));
    test::run_tasks();
    EXPECT_EQ(order, "abABcdDe");
}

TEST(ServiceGathering, ComesInTheSameTurnBeforeWhatItsTasksPost) {
    std::string order;
    post_gathering([&] {
        with_last(order, 'a', 'A')();
        post_gathering(with_last(order, 'c', 'C'));
    });
    post_gathering(with_last(order, 'b', 'B'));
    g_main_context_iteration(nullptr, FALSE);
    EXPECT_EQ(order, "abAB");
    test::run_tasks();
    EXPECT_EQ(order, "abABcC");
}

TEST(ServiceGathering, ComesAtOnceInAnyOtherTaskAndOutside) {
    std::string order;
    zo::after_gathering(note(order, 'a'));
    EXPECT_EQ(order, "a");
    post([&] {
        zo::after_gathering(note(order, 'b'));
        order.push_back('c');
    });
    test::run_tasks();
    EXPECT_EQ(order, "abc");
}

TEST(ServiceGathering, MayAskForMore) {
    std::string order;
    post_gathering([&] {
        zo::after_gathering([&] {
            order.push_back('a');
            zo::after_gathering(note(order, 'b'));
        });
        zo::after_gathering(note(order, 'c'));
    });
    test::run_tasks();
    EXPECT_EQ(order, "abc");
}

TEST(ServiceGathering, DoesNotWaitForTheEndOfANestedLoop) {
    std::string order;
    post_gathering([&] {
        zo::after_gathering(note(order, 'a'));
        EXPECT_TRUE(test::turn_until([&] { return !order.empty(); }));
        order.push_back('b');
    });
    test::run_tasks();
    EXPECT_EQ(order, "ab");
}

TEST(ServiceGathering, ReleasesWhatItHolds) {
    bool released = false;
    post_gathering([&] { zo::after_gathering([held = test::on_release([&] { released = true; })] {}); });
    test::run_tasks();
    EXPECT_TRUE(released);
}

}  // namespace
