// SPDX-License-Identifier: MIT
// Windows that end between two requests of a call: after each of its requests in turn.
#include <gtest/gtest.h>
#include <zo_ui/platform/linux.hpp>
#include <zo_ui/platform/linux/search_p.hpp>

#include "platform/opened_connection.hpp"
#include "platform/x_client.hpp"

namespace {

class Vanish : public testing::Test {
  protected:
    ~Vanish() override { EXPECT_EQ(errors.count(), 0); }

    void make() {
        frame = owner.make_viewable();
        client = owner.make_client(owner.make_viewable(frame));
        owner.set_text(client, "WM_NAME", "STRING", "name");
        owner.set_text(client, "WM_CLASS", "STRING", std::string("a\0B\0", 4));
        owner.set_longs(client, "_NET_WM_PID", "CARDINAL", {4711});
        owner.focus(client);
        alive = true;
    }

    void end() {
        owner.destroy(frame);
        alive = false;
    }

    // Makes the call, once for each of its requests with the windows ending after it, then undisturbed. It
    // gives true when it found all, as it must when undisturbed; `least` is how many of the disturbed calls
    // must not.
    void run(const std::function<bool()>& call, int least) {
        int failures = 0;
        for (int last = 1; !alive; ++last) {
            make();
            ending = [this, last](int request) {
                if (request == last) end();
            };
            test::watch_requests(asking, ending);
            const bool found = call();
            test::stop_watching_requests();
            EXPECT_TRUE(found || !alive);
            failures += !found;
        }
        EXPECT_GE(failures, least);
    }

    test::counted_errors errors;
    test::x_client owner;
    test::x_client asking;
    Window frame = 0;
    Window client = 0;
    bool alive = false;
    std::function<void(int)> ending;
};

TEST_F(Vanish, TheTopWindow) {
    run([&] { return get_top_window(asking, client) == frame; }, 2);
}

TEST_F(Vanish, TheNamedWindow) {
    run([&] { return get_named_window(asking, frame) == client; }, 4);
}

TEST_F(Vanish, TheActiveWindow) {
    run([&] { return getActiveWindow(asking) == client; }, 7);
}

TEST_F(Vanish, TheSearch) {
    run([&] { return find_window_by_class(asking, frame, "a", "B") == client; }, 5);
}

TEST_F(Vanish, TheFacts) {
    std::string name, res_name, res_class;
    run(
        [&] {
            return get_window_name(asking, client, name) &&
                   get_window_class(asking, client, res_name, res_class) &&
                   getWindowPid(asking, client) == 4711;
        },
        2);
}

TEST_F(Vanish, EverythingAtOnce) {
    const test::opened_connection opened([this](Display* display) { test::watch_requests(display, ending); });
    run(
        [&] {
            unsigned long window = 99;
            std::string title, res_name, res_class;
            int pid = 99;
            if (getActiveWindowInfo(window, title, res_name, res_class, pid))
                return window == client && title == "name" && res_name == "a" && res_class == "B" &&
                       pid == 4711;
            EXPECT_EQ(window, 0U);
            EXPECT_LE(pid, 0);
            return false;
        },
        10);
}

TEST_F(Vanish, WithoutAnActiveWindowTheServerIsWaitedForOnce) {
    owner.focus(None);
    const test::opened_connection opened([](Display* display) { test::watch_requests(display, nullptr); });
    unsigned long window = 99;
    std::string title, res_name, res_class;
    int pid = 99;
    EXPECT_FALSE(getActiveWindowInfo(window, title, res_name, res_class, pid));
    EXPECT_EQ(test::watched_round_trips(), 1 + 1) << "closing makes one";
    test::stop_watching_requests();
}

}  // namespace
