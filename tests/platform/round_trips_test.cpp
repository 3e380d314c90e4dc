// SPDX-License-Identifier: MIT
// How often getActiveWindowInfo waits for the server; docs/desktop-queries.md tells the figures.
#include "support/loop.hpp"

#include <gtest/gtest.h>
#include <zo_ui/platform/linux.hpp>

#include "platform/foreign_window.hpp"
#include "platform/opened_connection.hpp"
#include "platform/x_client.hpp"

#include <iostream>

namespace {

// Requests between opening and closing the connection, each of which waits for its reply.
unsigned long requests_of_info() {
    static unsigned long first, last;
    const test::opened_connection opened([](Display* display) {
        first = XNextRequest(display);
        test::watch_requests(display, [display](int) { last = XNextRequest(display); });
    });
    unsigned long window = 0;
    std::string title, res_name, res_class;
    int pid = 0;
    EXPECT_TRUE(getActiveWindowInfo(window, title, res_name, res_class, pid));
    // The last one that is seen is not of the query: closing frees the connection's graphics context.
    return last - first - 1;
}

unsigned int children_of(Display* display, Window window) {
    Window root = 0, parent = 0, *children = nullptr;
    unsigned int count = 0;
    EXPECT_TRUE(XQueryTree(display, window, &root, &parent, &children, &count));
    if (children) XFree(children);
    return count;
}

TEST(RoundTrips, AsManyAsTheWalkNeeds) {
    test::x_client owner;
    const test::foreign_window window({"title=name", "class=a,B", "pid=4711"});
    if (test::window_manager() == "none") {
        XReparentWindow(owner, window.id(), owner.make_viewable(), 0, 0);
        owner.set_longs(window.id(), "WM_STATE", "WM_STATE", {1, 0});
        owner.focus(window.id());
    }
    EXPECT_TRUE(setActiveWindow(window.id()));
    ASSERT_TRUE(test::turn_until([&] { return getActiveWindow() == window.id(); }));
    const unsigned int children = children_of(owner, get_top_window(owner, window.id()));
    const unsigned long requests = requests_of_info();
    std::cout << test::window_manager() << ": " << requests << " round trips, " << children
              << " children of the frame" << std::endl;
    // The focus, two steps to the top, the state's atom, the frame's state and children; then the state of
    // the children up to the client; then name, class, and the process id with its atom.
    EXPECT_GE(requests, 6U + 1U + 4U);
    EXPECT_LE(requests, 6U + children + 4U);
}

}  // namespace
