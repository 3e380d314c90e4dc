// SPDX-License-Identifier: MIT
// The setters of callbacks. When each callback is called is shown elsewhere.
#include "support/lock_probe.hpp"
#include "ui/window/window_tables.hpp"

#include <memory>
#include <thread>

namespace {

class WindowCallbacks : public testing::TestWithParam<test::window_callback> {};

TEST_P(WindowCallbacks, AreStoredUnderTheirPropertyAtOnce) {
    test::captured_output output;
    test::scoped_window window("");
    int called = 0;
    EXPECT_TRUE(GetParam().store(window, [&] { ++called; }));
    EXPECT_TRUE(GetParam().call(window, GetParam().property));
    EXPECT_EQ(called, 1);
    EXPECT_TRUE(GetParam().store(window, [&] { called += 10; }));
    EXPECT_TRUE(GetParam().call(window, GetParam().property));
    EXPECT_EQ(called, 11);
    EXPECT_TRUE(GetParam().clear(window));
    EXPECT_FALSE(GetParam().call(window, GetParam().property));
    EXPECT_EQ(called, 11);
    EXPECT_EQ(output.text(), "");
}

TEST_P(WindowCallbacks, StandAlone) {
    test::scoped_window window("");
    GetParam().store(window, [] {});
    for (const test::window_callback& other : test::window_callbacks)
        EXPECT_EQ(other.call(window, other.property), other.property == GetParam().property);
}

TEST_P(WindowCallbacks, AreLetGoWhenReplaced) {
    test::scoped_window window("");
    const auto held = std::make_shared<int>();
    GetParam().store(window, [held] {});
    EXPECT_EQ(held.use_count(), 2);
    GetParam().store(window, [] {});
    EXPECT_EQ(held.use_count(), 1);
    GetParam().store(window, [held] {});
    GetParam().clear(window);
    EXPECT_EQ(held.use_count(), 1);
}

TEST_P(WindowCallbacks, AreLetGoByTheDestruction) {
    const auto held = std::make_shared<int>();
    test::scoped_window window("");
    GetParam().store(window, [held] {});
    zo_window_destroy(window);
    test::run_tasks();
    EXPECT_EQ(held.use_count(), 1);
    EXPECT_FALSE(GetParam().call(window, GetParam().property));
}

// Runs a function when the last copy goes.
struct on_release {
    explicit on_release(std::function<void()> f) : function(std::move(f)) {}
    ~on_release() { function(); }
    std::function<void()> function;
};

TEST_P(WindowCallbacks, AreDestroyedOutsideTheLock) {
    test::scoped_window window("");
    bool was_free = false;
    const auto witness = [&] {
        return std::make_shared<on_release>([&] { was_free = test::lock_is_free(window); });
    };
    GetParam().store(window, [held = witness()] {});
    EXPECT_FALSE(was_free);
    GetParam().store(window, [] {});
    EXPECT_TRUE(was_free);
    was_free = false;
    GetParam().store(window, [held = witness()] {});
    zo_window_destroy(window);
    test::run_tasks();
    EXPECT_TRUE(was_free);
}

INSTANTIATE_TEST_SUITE_P(All, WindowCallbacks, testing::ValuesIn(test::window_callbacks),
                         [](const auto& callback) { return std::string(callback.param.setter); });

TEST(WindowCallbackTable, IsComplete) { EXPECT_EQ(std::size(test::window_callbacks), 17U); }

TEST(WindowCallbackTime, ACallbackThatComesTooLateIsNotCalled) {
    test::scoped_window window;
    window.open();
    int called = 0;
    zo_window_set_window_open_callback(window, [&](zo_window_ptr) { ++called; });
    test::run_tasks();
    EXPECT_EQ(called, 0);
    zo_window_close(window);
    window.open();
    EXPECT_EQ(called, 1);
}

// The task reads the callback, not the call that posted it.
TEST(WindowCallbackTime, TheCallbackOfTheTasksTimeIsCalled) {
    test::scoped_window window;
    std::string called;
    zo_window_set_window_open_callback(window, [&](zo_window_ptr) { called += "first"; });
    zo_window_open(window);
    zo_window_set_window_open_callback(window, [&](zo_window_ptr) { called += "second"; });
    test::run_tasks();
    EXPECT_EQ(called, "second");
}

TEST(WindowCallbackTime, AllRunOnTheLoopWithTheWindowsOwnHandle) {
    test::scoped_window window;
    const std::thread::id loop = std::this_thread::get_id();
    int called = 0;
    zo_window_set_window_show_callback(window, [&](const zo_window_ptr& shown) {
        EXPECT_EQ(shown, window.get());
        EXPECT_EQ(std::this_thread::get_id(), loop);
        ++called;
    });
    std::thread([&] {
        zo_window_open(window);
        zo_window_show(window);
    }).join();
    EXPECT_EQ(called, 0);
    test::run_tasks();
    EXPECT_EQ(called, 1);
}

}  // namespace
