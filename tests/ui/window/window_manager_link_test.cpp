// SPDX-License-Identifier: MIT
// Joining a manager and leaving it.
#include "ui/window/recording_manager.hpp"

#include <atomic>
#include <thread>

namespace {

class WindowManagerLink : public testing::Test {
  protected:
    void link(const zo_window_manager_ptr& manager) {
        EXPECT_TRUE(zo_window_set_window_manager(window, manager));
        test::run_tasks();
        EXPECT_EQ(zo_window_get_window_manager(window), manager);
    }

    zo_window_manager_ptr present() { return zo_window_get_window_manager(window); }

    test::event_log log;
    boost::shared_ptr<test::recording_manager> m = test::recording_manager_new(log, "m");
    boost::shared_ptr<test::recording_manager> n = test::recording_manager_new(log, "n");
    test::captured_output output;
    test::scoped_window window;
};

TEST_F(WindowManagerLink, IsPosted) {
    EXPECT_TRUE(zo_window_set_window_manager(window, m));
    EXPECT_FALSE(present());
    log.inside("m:connect", [&](const zo_window_ptr& w) {
        EXPECT_EQ(w, window.get());
        EXPECT_EQ(present(), m);
    });
    test::run_tasks();
    EXPECT_EQ(log.take_names(), "m:connect");
    EXPECT_EQ(present(), m);
    EXPECT_EQ(output.text(), "");
}

TEST_F(WindowManagerLink, TheSameAgainIsNothing) {
    link({});
    EXPECT_EQ(log.take_names(), "");
    link(m);
    link(m);
    EXPECT_EQ(log.take_names(), "m:connect");
    link({});
    link({});
    EXPECT_EQ(log.take_names(), "m:disconnect");
    zo_window_set_window_manager(window, m);
    zo_window_set_window_manager(window, m);
    test::run_tasks();
    EXPECT_EQ(log.take_names(), "m:connect");
}

TEST_F(WindowManagerLink, LeavesTheOldOneFirst) {
    link(m);
    log.inside("m:disconnect", [&](auto&) { EXPECT_EQ(present(), m); });
    log.inside("n:connect", [&](auto&) { EXPECT_EQ(present(), n); });
    log.take();
    link(n);
    EXPECT_EQ(log.take_names(), "m:disconnect n:connect");
    link(m);
    EXPECT_EQ(log.take_names(), "n:disconnect m:connect");
}

TEST_F(WindowManagerLink, HoldsTheManager) {
    link(m);
    EXPECT_EQ(m.use_count(), 2);
    link(n);
    EXPECT_EQ(m.use_count(), 1);
    const boost::weak_ptr<test::recording_manager> watched = n;
    n.reset();
    EXPECT_FALSE(watched.expired());
    link({});
    EXPECT_TRUE(watched.expired());
}

TEST_F(WindowManagerLink, ThePresentOneIsTold) {
    link(m);
    window.open();
    link(n);
    log.take();
    zo_window_show(window);
    zo_window_set_title(window, "text");
    zo_window_hide(window);
    test::run_tasks();
    EXPECT_EQ(log.take_names(), "n:shown n:title n:hidden");
    link({});
    log.take();
    zo_window_close(window);
    test::run_tasks();
    EXPECT_EQ(log.take_names(), "");
}

TEST_F(WindowManagerLink, ADestroyedWindowJoinsNobody) {
    zo_window_destroy(window);
    zo_window_set_window_manager(window, m);  // not destroyed yet, but when the task runs
    test::run_tasks();
    EXPECT_EQ(log.take_names(), "");
    EXPECT_FALSE(present());
    EXPECT_TRUE(zo_window_set_window_manager(window, m));
    test::run_tasks();
    EXPECT_EQ(log.take_names(), "");
    EXPECT_FALSE(present());
    EXPECT_EQ(m.use_count(), 1);
}

TEST_F(WindowManagerLink, TheDestroyedMarkAloneStopsIt) {
    link(m);
    log.take();
    zo_window_set_window_manager(window, {});
    zo_window_set_bool_property(window, "window-destroyed", true);
    test::run_tasks();
    EXPECT_EQ(log.take_names(), "");
    EXPECT_EQ(present(), m);
    zo_window_set_bool_property(window, "window-destroyed", false);
}

TEST_F(WindowManagerLink, NobodyIsJoinedFromInsideTheEnd) {
    link(m);
    log.take();
    log.inside("m:destroyed", [&](const zo_window_ptr& w) {
        zo_window_set_window_manager(w, n);
        test::run_tasks();
    });
    zo_window_destroy(window);
    test::run_tasks();
    EXPECT_EQ(log.take_names(), "m:destroyed");
    EXPECT_FALSE(present());
}

// The manager that is left may run anything, even the window's end.
TEST_F(WindowManagerLink, AWindowThatEndsWhileLeavingJoinsNobody) {
    link(m);
    log.take();
    log.inside("m:disconnect", [](const zo_window_ptr& w) {
        zo_window_destroy(w);
        test::run_tasks();
    });
    zo_window_set_window_manager(window, n);
    test::run_tasks();
    EXPECT_EQ(log.take_names(), "m:disconnect m:destroyed");
    EXPECT_FALSE(present());
    EXPECT_EQ(n.use_count(), 1);
}

// Of two links the later one holds, also when it is carried out inside the earlier.
TEST_F(WindowManagerLink, ALaterLinkInsideAnEarlierHolds) {
    const auto last = test::recording_manager_new(log, "l");
    link(m);
    log.take();
    log.inside("m:disconnect", [&](const zo_window_ptr& w) {
        zo_window_set_window_manager(w, last);
        test::run_tasks();
    });
    zo_window_set_window_manager(window, n);
    test::run_tasks();
    EXPECT_EQ(present(), last);
    EXPECT_EQ(log.take_names(), "m:disconnect m:disconnect l:connect");
    link({});
}

// Even one to the manager that is being left.
TEST_F(WindowManagerLink, ALaterWayBackInsideALeavingHolds) {
    link(m);
    log.take();
    log.inside("m:disconnect", [&](const zo_window_ptr& w) {
        zo_window_set_window_manager(w, {});
        zo_window_set_window_manager(w, m);
        test::run_tasks();
    });
    zo_window_set_window_manager(window, n);
    test::run_tasks();
    EXPECT_EQ(present(), m);
    EXPECT_EQ(log.take_names(), "m:disconnect m:disconnect m:connect");
    link({});
}

TEST_F(WindowManagerLink, TheGetterNeedsNoLock) {
    link(m);
    const zo_object_ptr object = zo_window_to_object(window);
    object->property_lock(__FILE__, __LINE__);
    std::atomic<bool> answered{false};
    std::thread reader([&] { answered = present() == m; });
    EXPECT_TRUE(test::turn_until([&] { return answered.load(); }));
    object->property_unlock();
    reader.join();
}

TEST_F(WindowManagerLink, IsReadFromManyThreadsWhileItChanges) {
    constexpr int count = 8;
    std::atomic<int> left{count};
    std::vector<std::thread> threads;
    for (int i = 0; i < count; ++i)
        threads.emplace_back([&] {
            for (int turn = 0; turn < 500; ++turn) {
                const zo_window_manager_ptr read = present();
                EXPECT_TRUE(!read || read == m || read == n);
                zo_window_set_window_manager(window, turn % 3 ? (turn % 2 ? m : n) : nullptr);
            }
            --left;
        });
    EXPECT_TRUE(test::turn_until([&] { return left == 0; }, std::chrono::seconds(120)));
    for (std::thread& thread : threads) thread.join();
    test::run_tasks();
    int joined = 0;
    for (const auto& entry : log.take()) joined += entry.what.ends_with(":connect") ? 1 : -1;
    EXPECT_EQ(joined, present() ? 1 : 0);
}

}  // namespace
