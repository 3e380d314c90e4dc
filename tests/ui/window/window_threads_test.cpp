// SPDX-License-Identifier: MIT
// Eight threads call everything that any thread may call, on one window and on windows of their own, while
// the loop runs. The thread sanitizer watches.
#include "support/threads.hpp"
#include "ui/window/window_tables.hpp"

namespace {

using test::on_all_threads;
using test::threads_count;

void call_accessors(const zo_window_ptr& window, int number) {
    for (const test::window_flag& flag : test::window_flags) {
        EXPECT_TRUE(flag.set(window, flag.initial));
        EXPECT_EQ(flag.get(window), flag.initial);
    }
    for (const test::window_text_row& row : test::window_texts) {
        std::string text;
        EXPECT_TRUE(row.get(window, text));
        EXPECT_TRUE(row.set(window, "text-" + std::to_string(number)));
    }
    for (const test::window_callback& callback : test::window_callbacks) {
        EXPECT_TRUE(callback.store(window, [] {}));
        if (number % 2) callback.clear(window);
    }
    EXPECT_TRUE(zo_window_set_bool_property(window, "own-" + std::to_string(number % 3), true));
    zo_window_get_bool_property(window, "own-flag");
    bool flag = false;
    EXPECT_TRUE(zo_window_is_opened(window, &flag));
    EXPECT_TRUE(zo_window_is_visible(window, &flag));
    EXPECT_TRUE(zo_window_is_destroyed(window, &flag));
    EXPECT_GE(zo_window_instance_id(window), 0);
    EXPECT_FALSE(zo_window_get_window_manager(window));
    EXPECT_EQ(zo_window_from_object(zo_window_to_object(window)), window);
    EXPECT_TRUE(zo_is_window(zo_window_to_object(window)));
    EXPECT_TRUE(zo_window_save(window));
}

void post_everything(const zo_window_ptr& window, int number) {
    EXPECT_TRUE(zo_window_open(window));
    EXPECT_TRUE(zo_window_show(window));
    EXPECT_TRUE(zo_window_activate(window));
    EXPECT_TRUE(zo_window_move(window, 10 + number, 20));
    EXPECT_TRUE(zo_window_hide(window));
    EXPECT_TRUE(zo_window_restore(window));
    EXPECT_TRUE(zo_window_set_window_manager(window, {}));
    EXPECT_TRUE(zo_window_push_event(window, zo_window_event_new(number)));
    if (number % 4 == 0) zo_window_close(window);
}

TEST(WindowThreads, ShareOneWindow) {
    test::scoped_window window("shared");
    zo_window_set_bool_property(window, "own-flag", true);
    on_all_threads(12, [&](int thread, int turn) {
        call_accessors(window, 100 * thread + turn);
        post_everything(window, turn);
    });
    const test::state s = test::state_of(window);
    EXPECT_EQ(test::toplevels("zo-window").size(), s.opened ? 1U : 0U);
    EXPECT_FALSE(s.destroyed);
}

TEST(WindowThreads, HaveWindowsOfTheirOwn) {
    std::atomic<int> ended{0};
    on_all_threads(6, [&](int thread, int turn) {
        const zo_window_ptr window = zo_window_new("own-" + std::to_string(thread));
        zo_window_set_bool_property(window, "own-flag", true);
        call_accessors(window, turn);
        zo_window_set_window_destroy_callback(window, [&](zo_window_ptr) { ++ended; });
        post_everything(window, turn);
        if (turn % 2)
            zo_window_destroy(window);
        else
            zo_window_destroy(window, "own", turn);
    });
    EXPECT_EQ(ended, 6 * threads_count);
    EXPECT_EQ(zo_object_ref_count("[zo_window]"), 0);
    EXPECT_TRUE(test::toplevels("zo-window").empty());
}

// What thread number `thread` reads; nothing else, so that no lock of another function hides a missing one.
bool read_one(const zo_window_ptr& window, int thread) {
    bool flag = false;
    std::string text;
    switch (thread) {
        case 0:
            return zo_window_is_opened(window, &flag);
        case 1:
            return zo_window_is_visible(window, &flag);
        case 2:
            return zo_window_instance_id(window) >= 0;
        case 3:
            return zo_window_get_keep_above(window);
        case 4:
            return zo_window_get_title(window, text);
        case 5:
            return zo_window_get_id(window, text);
        case 6:
            return zo_window_get_class(window, text);
        default:
            return zo_window_get_window_manager(window) == nullptr;
    }
}

TEST(WindowThreads, ReadWhileTheLoopWrites) {
    test::scoped_window window("shared");
    std::atomic<int> written{0};
    const auto read = [&](int thread, int) {
        while (written.load(std::memory_order_relaxed) < 15) EXPECT_TRUE(read_one(window, thread));
    };
    const auto write = [&] {
        zo_window_open(window);
        zo_window_show(window);
        zo_window_set_keep_above(window, true);
        for (const test::window_text_row& row : test::window_texts) row.set(window, "text");
        zo_window_set_window_manager(window, {});
        zo_window_close(window);
        test::run_tasks();
        written.fetch_add(1, std::memory_order_relaxed);
    };
    on_all_threads(1, read, write);
}

// The callbacks themselves stay on the loop, however many threads post.
TEST(WindowThreads, AreNeverCalledBack) {
    test::scoped_window window("shared");
    const std::thread::id loop = std::this_thread::get_id();
    int called = 0;
    for (const test::window_callback& callback : test::window_callbacks)
        callback.store(window, [&] {
            EXPECT_EQ(std::this_thread::get_id(), loop);
            ++called;
        });
    std::atomic<int> posted{0};
    on_all_threads(10, [&](int, int turn) {
        zo_window_push_event(window, zo_window_event_new(turn));
        ++posted;
        zo_window_open(window);
        zo_window_show(window);
        zo_window_hide(window);
        zo_window_close(window);
    });
    EXPECT_GT(called, posted);
}

// One posts the end while the others go on.
TEST(WindowThreads, MeetTheEnd) {
    test::captured_output output;
    for (int round = 0; round < 5; ++round) {
        test::scoped_window window("ending");
        zo_window_set_bool_property(window, "own-flag", true);
        on_all_threads(2, [&](int thread, int turn) {
            if (thread == turn) zo_window_destroy(window, "thread", thread);
            call_accessors(window, turn);
            post_everything(window, turn);
        });
        EXPECT_EQ(test::state_of(window), test::state{.destroyed = true});
        EXPECT_TRUE(test::toplevels("zo-window").empty());
    }
    EXPECT_EQ(output.lines().size(), 5U);  // the second "destroy" of each window
}

}  // namespace
