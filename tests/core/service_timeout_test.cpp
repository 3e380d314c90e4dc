// SPDX-License-Identifier: MIT
#include "core/child_process.hpp"
#include "core/posting.hpp"
#include "core/sleeping_loop.hpp"
#include "support/loop.hpp"
#include "support/output.hpp"

#include <glib.h>
#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>

#include <climits>
#include <set>
#include <thread>

namespace {

using test::after;
using test::post;
using test::turn_until;

constexpr unsigned long never = 1000UL * 1000 * 1000;

std::function<void()> note(std::string& order, char letter) {
    return [&order, letter] { order.push_back(letter); };
}

// Turns the loop until a timeout armed now would have run, and so every earlier one that was due.
void run_due() {
    bool ran = false;
    after(0, [&] { ran = true; });
    ASSERT_TRUE(turn_until([&] { return ran; }));
}

TEST(ServiceTimeout, RunsOnceAndNotTooEarly) {
    int runs = 0;
    gint64 ran_at = 0;
    const gint64 armed_at = g_get_monotonic_time();
    after(30, [&] {
        ++runs;
        ran_at = g_get_monotonic_time();
    });
    EXPECT_EQ(runs, 0);
    EXPECT_TRUE(turn_until([&] { return runs > 0; }));
    EXPECT_GE(ran_at - armed_at, 30000);
    run_due();
    EXPECT_EQ(runs, 1);
}

TEST(ServiceTimeout, RunsOnTheThreadThatTurnsTheLoop) {
    std::thread::id ran_on;
    std::thread([&] { after(0, [&] { ran_on = std::this_thread::get_id(); }); }).join();
    EXPECT_TRUE(turn_until([&] { return ran_on != std::thread::id(); }));
    EXPECT_EQ(ran_on, std::this_thread::get_id());
}

TEST(ServiceTimeout, TheyRunInTheOrderOfTheirTimes) {
    std::string order;
    after(60, note(order, 'd'));
    after(20, note(order, 'b'));
    after(40, note(order, 'c'));
    after(1, note(order, 'a'));
    EXPECT_TRUE(turn_until([&] { return order.size() == 4; }));
    EXPECT_EQ(order, "abcd");
}

TEST(ServiceTimeout, OfOneTimeRunInTheOrderOfArming) {
    std::string order;
    for (char letter = 'a'; letter <= 'z'; ++letter) after(0, note(order, letter));
    EXPECT_TRUE(turn_until([&] { return order.size() == 26; }));
    EXPECT_EQ(order, "abcdefghijklmnopqrstuvwxyz");
}

TEST(ServiceTimeout, StandsInLineWithTasks) {
    std::string order;
    const gint64 armed_at = g_get_monotonic_time();
    after(1, note(order, 'b'));
    for (gint64 now = armed_at; now < armed_at + 2000; now = g_get_monotonic_time())
        std::this_thread::yield();
    post(note(order, 'a'));
    EXPECT_TRUE(turn_until([&] { return order.size() == 2; }));
    EXPECT_EQ(order, "ab") << "a task that waits comes before a timeout that is due";
}

TEST(ServiceTimeout, OfNoTimeIsNotRunByItsCaller) {
    bool ran = false;
    after(0, [&] { ran = true; });
    EXPECT_FALSE(ran);
    EXPECT_TRUE(turn_until([&] { return ran; }));
}

const test::scene first_id("first id", [] { test::say(after(never, [] {}) == 0 ? "zero" : "not zero"); });

TEST(ServiceTimeout, TheFirstIdOfAProcessIsNotZeroEither) {
    EXPECT_EQ(test::play("first id").output, "not zero\n");
}

TEST(ServiceTimeout, IdsAreDistinctAndNeverZero) {
    std::set<unsigned long> ids;
    for (int count = 0; count < 100; ++count) ids.insert(after(never, [] {}));
    EXPECT_EQ(ids.size(), 100U);
    EXPECT_EQ(ids.count(0), 0U);
    for (const unsigned long id : ids) zo_system_service_timeout_clear(id);
    const unsigned long later = after(never, [] {});
    EXPECT_EQ(ids.count(later), 0U) << "an id is not given again";
    zo_system_service_timeout_clear(later);
}

TEST(ServiceTimeout, AClearedOneDoesNotRunAndTheOthersDo) {
    std::string order;
    const unsigned long first = after(5, note(order, 'x'));
    after(6, note(order, 'a'));
    const unsigned long last = after(7, note(order, 'y'));
    zo_system_service_timeout_clear(first);
    zo_system_service_timeout_clear(last);
    after(8, note(order, 'b'));
    EXPECT_TRUE(turn_until([&] { return order.size() >= 2; }));
    EXPECT_EQ(order, "ab");
}

// How long the loop would sleep now, in milliseconds; -1 for ever.
gint sleep_of_loop() {
    gint priority = 0;
    gint timeout = 0;
    EXPECT_TRUE(g_main_context_acquire(nullptr));
    g_main_context_prepare(nullptr, &priority);
    g_main_context_query(g_main_context_default(), priority, &timeout, nullptr, 0);
    g_main_context_release(nullptr);
    return timeout;
}

TEST(ServiceTimeout, AClearedOneWakesNoLoop) {
    EXPECT_EQ(sleep_of_loop(), -1);
    const unsigned long late = after(never, [] {});
    EXPECT_GT(sleep_of_loop(), 0);
    const unsigned long early = after(never / 2, [] {});
    EXPECT_LE(sleep_of_loop(), static_cast<gint>(never / 2));
    zo_system_service_timeout_clear(early);
    test::run_tasks();
    EXPECT_GT(sleep_of_loop(), static_cast<gint>(never / 2));
    zo_system_service_timeout_clear(late);
    test::run_tasks();
    EXPECT_EQ(sleep_of_loop(), -1);
}

const test::scene dropped("dropped", [] {
    after(never, [] {});
    zo_system_service_end();
    test::say(std::to_string(sleep_of_loop()));
});

TEST(ServiceTimeout, OneDroppedAtTheEndOfTheServiceWakesNoLoop) {
    EXPECT_EQ(test::play("dropped").output, "-1\n");
}

TEST(ServiceTimeout, ClearingASpentOrUnknownOneIsSilent) {
    test::captured_output output;
    bool ran = false;
    bool other = false;
    const unsigned long id = after(0, [&] { ran = true; });
    EXPECT_TRUE(turn_until([&] { return ran; }));
    const unsigned long waiting = after(10, [&] { other = true; });
    zo_system_service_timeout_clear(id);
    zo_system_service_timeout_clear(0);
    zo_system_service_timeout_clear(ULONG_MAX);
    zo_system_service_timeout_clear(waiting + 1);
    EXPECT_TRUE(turn_until([&] { return other; }));
    EXPECT_EQ(output.text(), "");
}

TEST(ServiceTimeout, MayClearItselfWhileItRuns) {
    unsigned long id = 0;
    std::string after_clearing;
    id = after(0, [&id, &after_clearing, text = std::string(100, 'x')] {
        zo_system_service_timeout_clear(id);
        zo_system_service_timeout_clear(id);
        after_clearing = text;
    });
    EXPECT_TRUE(turn_until([&] { return !after_clearing.empty(); }));
    EXPECT_EQ(after_clearing, std::string(100, 'x'));
}

TEST(ServiceTimeout, MayBeClearedWhenItIsDueAlready) {
    std::string order;
    unsigned long second = 0;
    after(0, [&] {
        order.push_back('a');
        zo_system_service_timeout_clear(second);
    });
    second = after(0, note(order, 'x'));
    after(0, note(order, 'b'));
    EXPECT_TRUE(turn_until([&] { return order.size() >= 2; }));
    run_due();
    EXPECT_EQ(order, "ab");
}

TEST(ServiceTimeout, MayArmItselfAgain) {
    int runs = 0;
    std::function<void()> again = [&] {
        if (++runs < 10) after(0, again);
    };
    after(0, again);
    EXPECT_TRUE(turn_until([&] { return runs == 10; }));
}

TEST(ServiceTimeout, HugeDelaysNeverRunAndHinderNobody) {
    std::string order;
    std::set<unsigned long> ids;
    for (const unsigned long delay : {ULONG_MAX, ULONG_MAX - 1, ULONG_MAX / 1000, ULONG_MAX / 2,
                                      static_cast<unsigned long>(G_MAXINT64), G_MAXINT64 / 1000UL, 1UL << 32})
        ids.insert(after(delay, note(order, 'x')));
    after(5, note(order, 'a'));
    EXPECT_TRUE(turn_until([&] { return !order.empty(); }));
    run_due();
    EXPECT_EQ(order, "a");
    for (const unsigned long id : ids) zo_system_service_timeout_clear(id);
    test::run_tasks();
    EXPECT_EQ(order, "a");
}

TEST(ServiceTimeout, ANestedLoopRunsOthers) {
    std::string order;
    after(0, [&] {
        after(0, note(order, 'a'));
        EXPECT_TRUE(turn_until([&] { return order == "a"; }));
        order.push_back('b');
    });
    EXPECT_TRUE(turn_until([&] { return order == "ab"; }));
}

TEST(ServiceTimeout, ArmedByAnotherThreadWakesASleepingLoop) {
    bool ran = false;
    const unsigned long later = after(never, [] {});
    EXPECT_TRUE(test::wakes_sleeping_loop([&] { after(1, [&] { ran = true; }); }, [&] { return ran; }));
    zo_system_service_timeout_clear(later);
}

TEST(ServiceTimeout, AnEmptyOneIsReportedAndNotArmed) {
    test::captured_output output;
    EXPECT_EQ(zo_system_service_timeout(nullptr, 0, "src/app.cpp", 12), 0U);
    EXPECT_EQ(output.text(),
              "\x1b[1;31mZO-SYSTEM**ERROR**\x1b[0;0m: assertion failed: task != nullptr - "
              "zo_system_service_timeout - src/app.cpp:12\n");
    run_due();
}

}  // namespace
