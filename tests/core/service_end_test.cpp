// SPDX-License-Identifier: MIT
// The end of the service is final, so each case has a process of its own.
#include "core/child_process.hpp"
#include "core/posting.hpp"
#include "core/sleeping_loop.hpp"
#include "support/loop.hpp"

#include <glib.h>
#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>

#include <atomic>
#include <thread>

namespace {

using test::after;
using test::on_release;
using test::post;
using test::say;

std::string done() { return zo_system_service_done() ? " (done)" : " (open)"; }

std::function<void()> saying(const std::string& text) {
    return [text] { say(text + done()); };
}

void expect_output(const std::string& scene, const std::string& output) {
    const test::child_end end = test::play(scene);
    EXPECT_EQ(end.output, output) << scene;
    EXPECT_EQ(end.status, 0) << scene;
}

const test::scene queued("queued", [] {
    post([] {
        say("a" + done());
        post(saying("c"));
    });
    post(saying("b"));
    say("before" + done());
    zo_system_service_end();
    say("after" + done());
});

TEST(ServiceEnd, RunsWhatWaitsAndWhatThatPosts) {
    expect_output("queued", "before (open)\na (done)\nb (done)\nc (done)\nafter (done)\n");
}

const test::scene later("later posts", [] {
    zo_system_service_end();
    post([held = on_release(saying("ended"))] { say("task"); });
    say("posted");
    std::thread([] { post([held = on_release(saying("ended elsewhere"))] { say("task"); }); }).join();
    test::run_tasks();
    zo_system_service_end();
});

TEST(ServiceEnd, DropsLaterPostsWithTheirCaptures) {
    expect_output("later posts", "ended (done)\nposted\nended elsewhere (done)\n");
}

const test::scene timeouts("timeouts", [] {
    post(saying("task"));
    const unsigned long id = after(0, [held = on_release(saying("timeout ended"))] { say("timeout"); });
    zo_system_service_end();
    say("after");
    say(std::to_string(after(0, [held = on_release(saying("late timeout ended"))] { say("late"); })));
    zo_system_service_timeout_clear(id);
    zo_system_service_timeout_clear(1000);
    test::turn_until([turns = 0]() mutable { return ++turns > 5; });
});

TEST(ServiceEnd, DropsTimeoutsWithTheirCaptures) {
    expect_output("timeouts", "task (done)\ntimeout ended (done)\nafter\nlate timeout ended (done)\n0\n");
}

const test::scene due("due timeout", [] {
    bool arm = true;
    post([&] {
        after(0, [] { say("timeout"); });
        // Once this source's turn comes the timeout is due, and waits in the queue.
        post([] {
            zo_system_service_end();
            say("end");
        });
        const gint64 now = g_get_monotonic_time();
        while (g_get_monotonic_time() < now + 5000) std::this_thread::yield();
        arm = false;
    });
    while (arm || !zo_system_service_done()) g_main_context_iteration(nullptr, TRUE);
    test::run_tasks();
});

TEST(ServiceEnd, DropsATimeoutThatIsDue) { expect_output("due timeout", "end\n"); }

const test::scene inside("inside a task", [] {
    post([] {
        say("a" + done());
        zo_system_service_end();
        say("A" + done());
        post([held = on_release(saying("refused"))] { say("never"); });
    });
    post([] {
        say("b" + done());
        post(saying("c"));
    });
    test::run_tasks();
    say("left");
});

TEST(ServiceEnd, InsideATaskRunsTheOthersBeforeItReturns) {
    expect_output("inside a task", "a (open)\nb (done)\nc (done)\nA (done)\nrefused (done)\nleft\n");
}

const test::scene nested("nested loop", [] {
    post([] {
        say("a" + done());
        test::run_tasks();
        post([] {
            say("c" + done());
            test::run_tasks();
            post(saying("d"));
        });
        say("A");
    });
    post(saying("b"));
    zo_system_service_end();
    say("after");
});

TEST(ServiceEnd, ATaskWithANestedLoopMayStillPost) {
    expect_output("nested loop", "a (done)\nb (done)\nA\nc (done)\nd (done)\nafter\n");
}

const test::scene again("again", [] {
    post([] {
        say("a" + done());
        zo_system_service_end();
        say("A");
        post(saying("c"));
    });
    post(saying("b"));
    zo_system_service_end();
    zo_system_service_end();
    say("after");
});

TEST(ServiceEnd, CalledAgainDoesNothing) {
    expect_output("again", "a (done)\nA\nb (done)\nc (done)\nafter\n");
}

// A task that posts itself for as long as it may.
struct endless {
    std::shared_ptr<void> held;
    void operator()() const { post(*this); }
};

const test::scene for_ever("for ever", [] {
    post(endless{on_release([] {
        say("dropped" + done());
        post(saying("never"));
    })});
    zo_system_service_end();
    say("after" + done());
});

TEST(ServiceEnd, ComesThoughATaskPostsItselfForEver) {
    expect_output("for ever", "dropped (done)\nafter (done)\n");
}

const test::scene elsewhere("on another thread", [] {
    const std::thread::id loop_thread = std::this_thread::get_id();
    GMainLoop* loop = g_main_loop_new(nullptr, FALSE);
    std::thread other;
    std::atomic<bool> ended{false};
    const auto say_where = [&](const std::string& text) {
        say(text + (std::this_thread::get_id() == loop_thread ? " on the loop" : " elsewhere") + done());
    };
    after(1000000, [held = on_release([&] { say_where("timeout ended"); })] {});
    post([&] {
        other = std::thread([&] {
            post([&] {
                say_where("task");
                post([&] { say_where("its task"); });
            });
            zo_system_service_end();
            ended = true;
        });
        while (!ended) std::this_thread::yield();
        say_where("first");
    });
    g_idle_add_full(
        G_PRIORITY_LOW, [](gpointer data) { return g_main_loop_quit(static_cast<GMainLoop*>(data)), FALSE; },
        loop, nullptr);
    g_main_loop_run(loop);
    other.join();
    post([] { say("never"); });
    g_main_loop_unref(loop);
});

TEST(ServiceEnd, OnAnotherThreadLeavesTheRestToTheLoop) {
    expect_output("on another thread",
                  "first on the loop (done)\ntask on the loop (done)\ntimeout ended on the loop (done)\n"
                  "its task on the loop (done)\n");
}

const test::scene asleep("asleep", [] {
    zo_system_service_timeout_clear(after(1000000, [] {}));  // whose making would wake the loop as well
    post(saying("task"));
    test::run_tasks();
    say(test::wakes_sleeping_loop(zo_system_service_end, zo_system_service_done) ? "woken" : "slept on");
    post([held = on_release(saying("refused"))] { say("never"); });
    say("after");
    test::run_tasks();
});

TEST(ServiceEnd, OnAnotherThreadWakesASleepingLoopAndCloses) {
    expect_output("asleep", "task (open)\nwoken\nrefused (done)\nafter\n");
}

}  // namespace
