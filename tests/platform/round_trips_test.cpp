// SPDX-License-Identifier: MIT
// How often getActiveWindowInfo waits for the server; docs/desktop-queries.md tells the figures.
#include "support/loop.hpp"
#include "support/x_wire.hpp"

#include <gtest/gtest.h>
#include <zo_ui/platform/linux.hpp>

#include "platform/foreign_window.hpp"
#include "platform/x_client.hpp"

#include <iostream>

namespace {

int of_opening_and_closing() {
    const test::x_wire wire;
    XCloseDisplay(open_display());
    return wire.round_trips();
}

struct cost {
    int round_trips, requests;
};

cost of_info() {
    const test::x_wire wire;
    unsigned long window = 0;
    std::string title, res_name, res_class;
    int pid = 0;
    EXPECT_TRUE(getActiveWindowInfo(window, title, res_name, res_class, pid));
    return {wire.round_trips(), wire.requests()};
}

// From a window to its top, both counted.
int steps_to_top(Display* display, Window window) {
    Window root = 0, parent = 0, *children = nullptr;
    unsigned int count = 0;
    EXPECT_TRUE(XQueryTree(display, window, &root, &parent, &children, &count));
    if (children) XFree(children);
    return parent == root || parent == 0 ? 1 : 1 + steps_to_top(display, parent);
}

Window focused_window(Display* display) {
    Window window = None;
    int revert = 0;
    XGetInputFocus(display, &window, &revert);
    return window;
}

class RoundTrips : public testing::Test {
  protected:
    void activate(Window window) {
        if (test::window_manager() == "none") {
            XReparentWindow(owner, window, owner.make_viewable(), 0, 0);
            owner.set_longs(window, "WM_STATE", "WM_STATE", {1, 0});
            owner.focus(window);
        }
        EXPECT_TRUE(setActiveWindow(window));
        ASSERT_TRUE(test::turn_until([&] { return getActiveWindow() == window; }));
    }

    test::x_client owner;
};

TEST_F(RoundTrips, AsManyAsTheTreeHasLevels) {
    const test::foreign_window window({"title=name", "type=UTF8_STRING", "class=a,B", "pid=4711"});
    activate(window.id());
    const int steps = steps_to_top(owner, window.id());
    const int info = of_info().round_trips;
    const int connection = of_opening_and_closing();
    std::cout << test::window_manager() << ": " << info << " round trips, " << connection
              << " of them for the connection; " << steps << " windows from the client to its frame"
              << std::endl;
    // The focus, each step to the top, each level from the frame down to the client, and its facts.
    EXPECT_EQ(info - connection, 1 + steps + (steps - 1) + 1);
    EXPECT_LE(info, 15);
}

TEST_F(RoundTrips, OneMoreForAFocusedWindowInTheClient) {
    const test::foreign_window window({"title=name", "class=a,B", "pid=4711"});
    activate(window.id());
    const int before = of_info().round_trips;
    const Window inner = owner.make_viewable(window.id());
    int info = 0;
    // A window manager may give the focus to the client itself once more, after it has answered.
    ASSERT_TRUE(test::turn_until([&] {
        owner.focus(inner);
        info = of_info().round_trips;
        return focused_window(owner) == inner;
    }));
    EXPECT_EQ(info, before + 1);
    EXPECT_LE(info, 15);
}

TEST_F(RoundTrips, APartOfTheFrameCostsOneRequestAndNoRoundTrip) {
    if (test::window_manager() != "none") return;
    const test::foreign_window window({"title=name", "class=a,B", "pid=4711"});
    activate(window.id());
    const cost before = of_info();
    const Window frame = get_top_window(owner, window.id());
    for (int i = 0; i < 200; ++i) XLowerWindow(owner, owner.make(owner.make(frame)));
    XRaiseWindow(owner, window.id());
    XSync(owner, False);
    const cost after = of_info();
    EXPECT_EQ(after.round_trips, before.round_trips);
    EXPECT_EQ(after.requests, before.requests + 200) << "what is below the parts is not asked for";
}

}  // namespace
