// SPDX-License-Identifier: MIT
// Everything that may be called from any thread, called from eight at once while the loop runs.
#include "core/posting.hpp"
#include "support/loop.hpp"
#include "support/output.hpp"

#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>
#include <zo_core/zo_object_p.hpp>
#include <zo_core/zo_property_access_p.hpp>

#include <atomic>
#include <boost/make_shared.hpp>
#include <thread>
#include <vector>

namespace {

using test::after;
using test::post;

constexpr int threads_count = 8;
constexpr int turns = 200;

// Runs `work(thread, turn)` on all threads while this one turns the loop. Now and then they wait for a turn
// of it, so that none is through before the loop has begun.
void on_all_threads(const std::function<void(int, int)>& work) {
    std::atomic<int> left{threads_count};
    std::atomic<long> loop_turns{0};
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threads_count; ++thread)
        threads.emplace_back([&, thread] {
            for (int turn = 0; turn < turns; ++turn) {
                work(thread, turn);
                if (turn % 10 != 0) continue;
                for (const long seen = loop_turns; loop_turns == seen;) std::this_thread::yield();
            }
            --left;
        });
    const auto all_done = [&] {
        ++loop_turns;
        return left == 0;
    };
    EXPECT_TRUE(test::turn_until(all_done, std::chrono::seconds(120)));
    for (std::thread& thread : threads) thread.join();
}

TEST(Threads, PostAndArmAndClear) {
    std::atomic<int> ran{0};
    int timed = 0;  // on the loop only
    const auto held = std::make_shared<int>(0);
    on_all_threads([&, held](int, int turn) {
        post([&, held] { ++ran; });
        const unsigned long cleared = after(100000, [held] { ADD_FAILURE() << "cleared"; });
        after(static_cast<unsigned long>(turn % 3), [&, held] { ++timed; });
        zo_system_service_timeout_clear(cleared);
        EXPECT_FALSE(zo_system_service_done());
    });
    EXPECT_TRUE(
        test::turn_until([&] { return ran == threads_count * turns && timed == threads_count * turns; }));
    test::run_tasks();
    EXPECT_EQ(held.use_count(), 1);
}

TEST(Threads, TasksPostedByTasksOfAllThreads) {
    int ran = 0;  // on the loop only
    on_all_threads([&](int, int) {
        post([&] {
            ++ran;
            post([&] { ++ran; });
        });
    });
    EXPECT_TRUE(test::turn_until([&] { return ran == 2 * threads_count * turns; }));
}

TEST(Threads, OneObject) {
    auto object = boost::make_shared<_zo_object>();
    test::captured_output output;
    on_all_threads([&](int thread, int turn) {
        std::string text = std::to_string(turn);
        int number = 0;
        {
            zo::property_guard guard(*object, "test", 1);
            guard.write<std::string>("text", text, {"value"});
            guard.write<int>("thread " + std::to_string(thread), number, {"value"});
        }
        object->property_lock("test", 1);
        boost::any any;
        EXPECT_TRUE(zo_property_get(object->property_list, "text", any));
        EXPECT_TRUE(zo_property_get_extract<std::string>(object->property_list, "text", &text));
        EXPECT_FALSE(zo_property_init<std::string>(object->property_list, "text", "never"));
        object->property_unlock();
        EXPECT_EQ(boost::any_cast<std::string>(any), text);
        zo_object_ref(object);
        EXPECT_TRUE(object->is_reffed());
        EXPECT_EQ(object->to_object(), object);
        EXPECT_EQ(object->get_type(), "[zo_object]");
        EXPECT_NE(object->describe(), "");
        object->destroy("thread", turn);
        post([held = object->to_object()] { zo_object_unref(held); });
    });
    test::run_tasks();
    EXPECT_FALSE(object->is_reffed());
    EXPECT_EQ(object.use_count(), 1);
    EXPECT_EQ(object->property_list.size(), 2U + threads_count);
    EXPECT_EQ(output.lines().size(), static_cast<std::size_t>(threads_count * turns - 1));
}

TEST(Threads, ObjectsThatComeAndGo) {
    on_all_threads([](int, int) {
        zo_object_ref_increment("[coming and going]");
        auto object = boost::make_shared<_zo_object>();
        zo_object_ref(object);
        post([held = object->to_object()] {
            zo_object_unref_real(held);
            zo_object_ref_decrement("[coming and going]");
        });
    });
    test::run_tasks();
    EXPECT_EQ(zo_object_ref_count("[coming and going]"), 0);
}

TEST(Threads, TextsAndIds) {
    std::atomic<unsigned long> highest{0};
    on_all_threads([&](int, int) {
        EXPECT_EQ(zo_lang_get_string("tooltip_menu"), "Menu");
        const unsigned long id = zo_get_unique_id();
        for (unsigned long seen = highest; seen < id && !highest.compare_exchange_weak(seen, id);) continue;
    });
    EXPECT_EQ(highest, static_cast<unsigned long>(threads_count * turns));
}

}  // namespace
