// SPDX-License-Identifier: MIT
// What is done once for all the tasks of a turn.
#include "core/posting.hpp"
#include "support/loop.hpp"

#include <glib.h>
#include <gtest/gtest.h>
#include <zo_core/zo_service_p.hpp>

#include <string>

namespace {

using test::post;

std::function<void()> note(std::string& order, char letter) {
    return [&order, letter] { order.push_back(letter); };
}

TEST(ServiceBatch, ComesAfterTheTasksThatWaitBeforeWhatTheyPost) {
    std::string order;
    post([&] {
        order.push_back('a');
        post(note(order, 'd'));
        zo::after_batch(note(order, 'c'));
    });
    post(note(order, 'b'));
    g_main_context_iteration(nullptr, FALSE);
    EXPECT_EQ(order, "abc") << "in the same turn";
    test::run_tasks();
    EXPECT_EQ(order, "abcd");
}

TEST(ServiceBatch, ComesInItsOrderAndMayAskForMore) {
    std::string order;
    post([&] {
        zo::after_batch([&] {
            order.push_back('a');
            zo::after_batch(note(order, 'c'));
        });
        zo::after_batch(note(order, 'b'));
    });
    test::run_tasks();
    EXPECT_EQ(order, "abc");
}

TEST(ServiceBatch, ComesAtOnceOutsideOfATask) {
    std::string order;
    zo::after_batch(note(order, 'a'));
    EXPECT_EQ(order, "a");
    post([] {});
    test::run_tasks();
    zo::after_batch(note(order, 'b'));
    EXPECT_EQ(order, "ab");
}

TEST(ServiceBatch, DoesNotWaitForTheEndOfANestedLoop) {
    std::string order;
    post([&] {
        zo::after_batch(note(order, 'a'));
        EXPECT_TRUE(test::turn_until([&] { return !order.empty(); }));
        order.push_back('b');
    });
    test::run_tasks();
    EXPECT_EQ(order, "ab");
}

TEST(ServiceBatch, ReleasesWhatItHolds) {
    bool released = false;
    post([&] { zo::after_batch([held = test::on_release([&] { released = true; })] {}); });
    test::run_tasks();
    EXPECT_TRUE(released);
}

}  // namespace
