// SPDX-License-Identifier: MIT
// Eight threads call everything that any thread may call, on one panel and on panels of their own, while the
// loop runs. The thread sanitizer watches.
#include "support/threads.hpp"
#include "ui/window_manager/panel.hpp"

namespace {

using test::on_all_threads;
using test::threads_count;

void call_accessors(const zo_window_manager_ptr& manager, int number) {
    for (const auto setter : {zo_window_manager_on_open, zo_window_manager_on_show, zo_window_manager_on_hide,
                              zo_window_manager_on_close})
        EXPECT_TRUE(setter(manager, number % 2 ? [](const zo_window_manager_ptr&) {}
                                               : std::function<void(zo_window_manager_ptr)>()));
    bool value = false;
    EXPECT_TRUE(zo_window_manager_is_opened(manager, &value));
    EXPECT_TRUE(zo_window_manager_is_visible(manager, &value));
    EXPECT_TRUE(zo_window_manager_is_destroyed(manager, &value));
    EXPECT_TRUE(zo_window_manager_set_keep_extended(manager, number % 2));
    zo_window_manager_get_keep_extended(manager);
    EXPECT_EQ(zo_window_manager_from_object(zo_window_manager_to_object(manager)), manager);
    EXPECT_TRUE(zo_is_window_manager(zo_window_manager_to_object(manager)));
    std::map<unsigned long, GtkWidget*>* container = nullptr;
    EXPECT_TRUE(zo_window_manager_get_local_notification_container(manager, &container));
}

void post_everything(const zo_window_manager_ptr& manager, int number) {
    for (const auto operation : {zo_window_manager_open, zo_window_manager_show, zo_window_manager_extend,
                                 zo_window_manager_retract, zo_window_manager_hide})
        EXPECT_TRUE(operation(manager));
    if (number % 3 == 0) zo_window_manager_close(manager);
}

TEST(ManagerThreads, ShareOnePanel) {
    const test::scoped_panel panel;
    on_all_threads(8, [&](int thread, int turn) {
        call_accessors(panel, thread + turn);
        post_everything(panel, thread + turn);
    });
    panel.close();
    EXPECT_EQ(test::state_of(panel), test::state());
    EXPECT_FALSE(test::panel());
}

TEST(ManagerThreads, HavePanelsOfTheirOwn) {
    std::atomic<int> ended{0};
    on_all_threads(3, [&](int thread, int turn) {
        const zo_window_manager_ptr manager = zo_window_manager_new("own");
        call_accessors(manager, turn);
        zo_window_manager_on_destroy(manager, [&](const zo_window_manager_ptr&) { ++ended; });
        post_everything(manager, turn);
        zo_window_manager_close(manager);
        if (thread % 2)
            zo_window_manager_destroy(manager);
        else
            zo_window_manager_destroy(manager, "own", turn);
    });
    EXPECT_EQ(ended, 3 * threads_count);
    EXPECT_EQ(zo_object_ref_count("[zo_window_manager]"), 0);
    EXPECT_TRUE(test::toplevels("zo-manager").empty());
}

TEST(ManagerThreads, JoinTheirWindows) {
    const test::scoped_panel panel;
    panel.show();
    on_all_threads(4, [&](int thread, int turn) {
        const zo_window_ptr window = zo_window_new("own-" + std::to_string(thread));
        EXPECT_TRUE(zo_window_set_window_manager(window, panel));
        zo_window_open(window);
        zo_window_set_title(window, "turn " + std::to_string(turn));
        zo_window_show(window);
        zo_window_hide(window);
        if (turn % 2)
            zo_window_destroy(window);
        else
            zo_window_set_window_manager(window, {});
        zo_window_destroy(window);
    });
    EXPECT_EQ(zo_object_ref_count("[zo_window]"), 0);
    EXPECT_EQ(panel.get().use_count(), 3);  // the library's and the panel window's, beside this one
}

// Nothing but reads, so that no lock of another function hides a missing one.
TEST(ManagerThreads, ReadWhileTheLoopWrites) {
    const test::scoped_panel panel;
    std::atomic<int> written{0};
    const auto read = [&](int thread, int) {
        constexpr decltype(&zo_window_manager_is_opened) queries[] = {
            zo_window_manager_is_opened, zo_window_manager_is_visible, zo_window_manager_is_destroyed};
        bool value = false;
        while (written.load(std::memory_order_relaxed) < 10) {
            if (thread % 4 == 3)
                zo_window_manager_get_keep_extended(panel);
            else
                queries[thread % 4](panel, &value);
        }
    };
    const auto write = [&] {
        for (const auto operation : {zo_window_manager_open, zo_window_manager_show, zo_window_manager_close})
            operation(panel);
        zo_window_manager_set_keep_extended(panel, written % 2 == 0);
        test::run_tasks();
        written.fetch_add(1, std::memory_order_relaxed);
    };
    on_all_threads(1, read, write);
}

// The callbacks themselves stay on the loop, however many threads post.
TEST(ManagerThreads, AreNeverCalledBack) {
    const test::scoped_panel panel;
    const std::thread::id loop = std::this_thread::get_id();
    int called = 0;
    for (const auto setter : {zo_window_manager_on_open, zo_window_manager_on_show, zo_window_manager_on_hide,
                              zo_window_manager_on_close})
        setter(panel, [&](const zo_window_manager_ptr&) {
            EXPECT_EQ(std::this_thread::get_id(), loop);
            ++called;
        });
    on_all_threads(3, [&](int, int) { post_everything(panel, 0); });
    EXPECT_GE(called, 4);
}

// One posts the end while the others go on.
TEST(ManagerThreads, MeetTheEnd) {
    test::captured_output output;
    const test::scoped_panel panel;
    on_all_threads(2, [&](int thread, int turn) {
        if (thread == turn) zo_window_manager_destroy(panel, "thread", thread);
        call_accessors(panel, turn);
    });
    EXPECT_TRUE(test::state_of(panel).destroyed);
    EXPECT_EQ(output.lines().size(), 1U);  // the second "destroy"
}

}  // namespace
