// SPDX-License-Identifier: MIT
#include "support/ui.hpp"

#include <thread>

namespace {

constexpr const char* tag = "[zo_window_event]";

TEST(WindowEvent, CarriesItsCode) {
    for (const int code : {0, 1, -7, 2147483647}) {
        const zo_window_event_ptr event = zo_window_event_new(code);
        EXPECT_EQ(event->get_code(), code);
        EXPECT_EQ(zo_window_event_get_code(event), code);
    }
}

TEST(WindowEvent, IsCountedWhileItLives) {
    EXPECT_EQ(zo_object_ref_count(tag), 0);
    zo_window_event_ptr event = zo_window_event_new(1);
    EXPECT_EQ(zo_object_ref_count(tag), 1);
    EXPECT_EQ(event->get_type(), tag);
    EXPECT_EQ(event->to_event(), event);
    EXPECT_EQ(event->to_object(), event);
    EXPECT_FALSE(event->is_reffed());
    event.reset();
    EXPECT_EQ(zo_object_ref_count(tag), 0);
    {
        const _zo_window_event on_the_stack(2);
        EXPECT_EQ(zo_object_ref_count(tag), 1);
    }
    EXPECT_EQ(zo_object_ref_count(tag), 0);
}

TEST(WindowEvent, IsDestroyedLikeAnyObject) {
    test::captured_output output;
    const zo_window_event_ptr event = zo_window_event_new(1);
    event->destroy("first", 1);
    EXPECT_EQ(output.text(), "");
    event->destroy("second", 2);
    EXPECT_EQ(output.text(),
              "\x1b[1;35mZO-SYSTEM**WARNING**\x1b[0;0m: CALLING DESTROY MULTIPLE TIMES IS NOT AN OPTION "
              "\x1b[0;35m[zo_window_event]\x1b[0;0m-second:2\n");
}

TEST(WindowEvents, ReachTheCallbackOnTheLoopInTheirOrder) {
    test::scoped_window window("");
    std::vector<int> codes;
    std::vector<zo_window_event_ptr> events;
    zo_window_set_window_event_callback(window, [&](zo_window_ptr w, const zo_window_event_ptr& event) {
        EXPECT_EQ(w, window.get());
        codes.push_back(event->get_code());
        events.push_back(event);
    });
    const zo_window_event_ptr first = zo_window_event_new(11);
    EXPECT_TRUE(zo_window_push_event(window, first));
    EXPECT_TRUE(zo_window_push_event(window, zo_window_event_new(12)));
    EXPECT_TRUE(zo_window_push_event(window, first));
    EXPECT_TRUE(codes.empty());
    test::run_tasks();
    EXPECT_EQ(codes, (std::vector<int>{11, 12, 11}));
    EXPECT_EQ(events.front(), first);
}

TEST(WindowEvents, ComeFromAnyThreadToTheLoop) {
    test::scoped_window window("");
    const std::thread::id loop = std::this_thread::get_id();
    int delivered = 0;
    zo_window_set_window_event_callback(window, [&](zo_window_ptr, zo_window_event_ptr) {
        EXPECT_EQ(std::this_thread::get_id(), loop);
        ++delivered;
    });
    std::thread([&] { zo_window_push_event(window, zo_window_event_new(1)); }).join();
    EXPECT_EQ(delivered, 0);
    test::run_tasks();
    EXPECT_EQ(delivered, 1);
}

TEST(WindowEvents, AreDroppedWithoutACallback) {
    test::captured_output output;
    test::scoped_window window("");
    EXPECT_TRUE(zo_window_push_event(window, zo_window_event_new(1)));
    EXPECT_EQ(zo_object_ref_count(tag), 1);
    test::run_tasks();
    EXPECT_EQ(zo_object_ref_count(tag), 0);
    int delivered = 0;
    zo_window_set_window_event_callback(window, [&](zo_window_ptr, zo_window_event_ptr) { ++delivered; });
    test::run_tasks();
    EXPECT_EQ(delivered, 0);
    EXPECT_EQ(output.text(), "");
}

TEST(WindowEvents, ArriveInEveryStateButTheEnd) {
    test::scoped_window window;
    std::string states;
    zo_window_set_window_event_callback(window, [&](const zo_window_ptr& w, zo_window_event_ptr) {
        const test::state s = test::state_of(w);
        states += s.visible ? 'v' : s.opened ? 'o' : '-';
    });
    const auto push = [&] { zo_window_push_event(window, zo_window_event_new(1)); };
    push();
    zo_window_open(window);
    push();
    zo_window_show(window);
    push();
    zo_window_close(window);
    push();
    zo_window_destroy(window);
    push();
    test::run_tasks();
    EXPECT_EQ(states, "-ov-");
    EXPECT_EQ(zo_object_ref_count(tag), 0);
}

TEST(WindowEvents, ACallbackMayPushAnother) {
    test::scoped_window window("");
    std::string codes;
    zo_window_set_window_event_callback(window, [&](zo_window_ptr w, const zo_window_event_ptr& event) {
        const int code = event->get_code();
        codes += std::to_string(code);
        if (code < 5) zo_window_push_event(w, zo_window_event_new(code + 1));
    });
    zo_window_push_event(window, zo_window_event_new(1));
    test::run_tasks();
    EXPECT_EQ(codes, "12345");
}

TEST(WindowEvents, APostedEventHoldsTheWindow) {
    int delivered = 0;
    boost::weak_ptr<_zo_window> watched;
    {
        const zo_window_ptr window = zo_window_new("");
        watched = window;
        zo_window_set_window_event_callback(window, [&](zo_window_ptr, zo_window_event_ptr) { ++delivered; });
        zo_object_unref(zo_window_to_object(window));
        zo_window_push_event(window, zo_window_event_new(1));
    }
    EXPECT_FALSE(watched.expired());
    test::run_tasks();
    EXPECT_EQ(delivered, 1);
    EXPECT_TRUE(watched.expired());
}

}  // namespace
