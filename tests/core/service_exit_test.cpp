// SPDX-License-Identifier: MIT
// A process that leaves ends the service, whether it says so or not.
#include "core/child_process.hpp"
#include "core/posting.hpp"
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

void expect_output(const std::string& scene, const std::string& output) {
    const test::child_end end = test::play(scene);
    EXPECT_EQ(end.output, output) << scene;
    EXPECT_EQ(end.status, 0) << scene;
}

const test::scene queued("queued", [] {
    post([] {
        say("a" + done());
        post([] { say("b" + done()); });
    });
    after(0, [held = on_release([] { say("timeout ended" + done()); })] { say("timeout"); });
    say("leaving" + done());
});

TEST(ServiceExit, RunsWhatWaitsAndDropsTimeouts) {
    expect_output("queued", "leaving (open)\na (done)\ntimeout ended (done)\nb (done)\n");
}

const test::scene timeout_only("timeout only", [] {
    after(1000000, [held = on_release([] { say("timeout ended" + done()); })] { say("timeout"); });
});

TEST(ServiceExit, DropsTimeoutsThoughNoTaskWasEverPosted) {
    expect_output("timeout only", "timeout ended (done)\n");
}

const test::scene after_loop("after a loop", [] {
    GMainLoop* loop = g_main_loop_new(nullptr, FALSE);
    post([loop] {
        g_main_loop_quit(loop);
        post([] { say("left behind" + done()); });
    });
    g_main_loop_run(loop);
    g_main_loop_unref(loop);
    say("leaving" + done());
});

TEST(ServiceExit, RunsWhatALeftLoopLeftBehind) {
    expect_output("after a loop", "leaving (open)\nleft behind (done)\n");
}

const test::scene inside("inside a task", [] {
    post([held = on_release([] { say("never ended"); })] {
        say("a" + done());
        std::exit(0);
    });
    post([] { say("b" + done()); });
    test::run_tasks();
});

TEST(ServiceExit, InsideATaskRunsTheOthers) { expect_output("inside a task", "a (open)\nb (done)\n"); }

const test::scene for_ever("for ever", [] {
    static const auto again = [](const auto& self) -> void { post([self] { self(self); }); };
    again(again);
    after(0, [] {});
    say("leaving");
});

TEST(ServiceExit, ComesThoughATaskPostsItselfForEver) { expect_output("for ever", "leaving\n"); }

const test::scene never_drained("ended elsewhere", [] {
    GMainLoop* loop = g_main_loop_new(nullptr, FALSE);
    g_idle_add_full(
        G_PRIORITY_HIGH,
        [](gpointer data) -> gboolean {
            std::thread([] {
                post([] { say("task" + done()); });
                zo_system_service_end();
            }).join();
            g_main_loop_quit(static_cast<GMainLoop*>(data));
            return G_SOURCE_REMOVE;
        },
        loop, nullptr);
    g_main_loop_run(loop);
    g_main_loop_unref(loop);
    say("leaving" + done());
});

TEST(ServiceExit, FinishesAnEndThatTheLoopNeverCameTo) {
    expect_output("ended elsewhere", "leaving (done)\ntask (done)\n");
}

const test::scene explicit_end("explicit end", [] {
    post([] { say("a"); });
    zo_system_service_end();
    say("leaving");
});

TEST(ServiceExit, AddsNothingToAnEndThatHasCome) { expect_output("explicit end", "a\nleaving\n"); }

// Made before the service, so it ends after it.
struct late_object {
    ~late_object() {
        if (!watching) return;
        say("late object" + done());
        post([] { say("never"); });
        after(0, [] { say("never"); });
        zo_object_ref_decrement("[late]");
        say(zo_lang_get_string("toolbar-unlocked"));
        zo_assertion_faild(false, "e", "c", "f", 1);
    }
    bool watching = false;
} late;

const test::scene late_scene("late object", [] {
    late.watching = true;
    post([] { say("task" + done()); });
});

TEST(ServiceExit, IsOverForObjectsThatOutliveIt) {
    expect_output("late object",
                  "task (done)\nlate object (done)\nThe panel slides away. Click to keep it open.\n"
                  "\x1b[1;31mZO-SYSTEM**ERROR**\x1b[0;0m: assertion failed: e - c - f:1\n");
}

const test::scene unused("unused", [] { say("nothing"); });

TEST(ServiceExit, OfAnUnusedServiceIsSilent) { expect_output("unused", "nothing\n"); }

}  // namespace
