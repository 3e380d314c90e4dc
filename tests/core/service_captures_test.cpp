// SPDX-License-Identifier: MIT
// A task may hold the last handle of anything: its captures end on the loop, where they may do everything.
#include "core/posting.hpp"
#include "support/loop.hpp"

#include <glib.h>
#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>

#include <boost/make_shared.hpp>
#include <thread>

namespace {

using test::after;
using test::on_release;
using test::post;

TEST(ServiceCaptures, EndBeforeTheNextTask) {
    std::string order;
    post([&order, held = on_release([&] { order.push_back('b'); })] { order.push_back('a'); });
    post([&order] { order.push_back('c'); });
    test::run_tasks();
    EXPECT_EQ(order, "abc");
}

TEST(ServiceCaptures, EndOnTheLoopWhoeverPosted) {
    std::thread::id ended_on;
    std::thread([&] {
        auto held = on_release([&] { ended_on = std::this_thread::get_id(); });
        post([held = std::move(held)] {});
    }).join();
    EXPECT_EQ(ended_on, std::thread::id());
    test::run_tasks();
    EXPECT_EQ(ended_on, std::this_thread::get_id());
}

TEST(ServiceCaptures, MayPostAndArmWhenTheyEnd) {
    bool ran = false;
    bool timed = false;
    const auto use_everything = [&] {
        post([&] { ran = true; });
        const unsigned long id = after(100000, [] {});
        zo_system_service_timeout_clear(id);
        after(0, [&] { timed = true; });
    };
    post([held = on_release(use_everything)] {});
    EXPECT_TRUE(test::turn_until([&] { return ran && timed; }));
    ran = timed = false;
    after(0, [held = on_release(use_everything)] {});
    EXPECT_TRUE(test::turn_until([&] { return ran && timed; }));
    ran = timed = false;
    const unsigned long id = after(100000, [held = on_release(use_everything)] {});
    post([id] { zo_system_service_timeout_clear(id); });
    EXPECT_TRUE(test::turn_until([&] { return ran && timed; }));
}

TEST(ServiceCaptures, MayTurnTheLoopWhenTheyEnd) {
    std::string order;
    post([held = on_release([&] {
              EXPECT_TRUE(test::turn_until([&] { return order == "bd"; }));
              order.push_back('c');
          })] {});
    post([&] { order.push_back('b'); });
    post([&] { order.push_back('d'); });
    test::run_tasks();
    EXPECT_EQ(order, "bdc");
}

TEST(ServiceCaptures, KeepTheirObjectAliveUntilTheTaskHasRun) {
    auto object = boost::make_shared<_zo_object>();
    const boost::weak_ptr<_zo_object> watch = object;
    bool alive = false;
    post([&alive, raw = object.get(), held = object->to_object()] { alive = raw == held.get(); });
    object.reset();
    EXPECT_FALSE(watch.expired());
    test::run_tasks();
    EXPECT_TRUE(alive);
    EXPECT_TRUE(watch.expired());
}

TEST(ServiceCaptures, OfAClearedTimeoutEndOnTheLoop) {
    std::thread::id ended_on;
    const unsigned long id =
        after(100000, [held = on_release([&] { ended_on = std::this_thread::get_id(); })] {});
    std::thread([&] {
        zo_system_service_timeout_clear(id);
        EXPECT_EQ(ended_on, std::thread::id());
    }).join();
    test::run_tasks();
    EXPECT_EQ(ended_on, std::this_thread::get_id());
}

TEST(ServiceCaptures, OfATimeoutClearedByATaskEndAtOnce) {
    bool ended = false;
    const unsigned long id = after(100000, [held = on_release([&] { ended = true; })] {});
    post([&] {
        zo_system_service_timeout_clear(id);
        EXPECT_TRUE(ended);
    });
    test::run_tasks();
    EXPECT_TRUE(ended);
}

TEST(ServiceCaptures, OfATimeoutEndWhenItHasRun) {
    bool ran = false;
    bool ended = false;
    after(0, [&ran, &ended, held = on_release([&] { ended = true; })] {
        ran = true;
        EXPECT_FALSE(ended);
    });
    EXPECT_TRUE(test::turn_until([&] { return ran; }));
    EXPECT_TRUE(ended);
}

}  // namespace
