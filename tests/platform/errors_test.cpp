// SPDX-License-Identifier: MIT
// Which X errors are the module's own, and where the others go.
#include <gtest/gtest.h>
#include <zo_ui/platform/linux.hpp>
#include <zo_ui/platform/linux/x_errors_p.hpp>

#include "platform/x_client.hpp"

#include <X11/Xproto.h>

#include <thread>

namespace {

int other_handler(Display*, XErrorEvent*) { return 0; }

bool tree_of(Display* display, Window window) {
    Window root = 0, parent = 0, *children = nullptr;
    unsigned int count = 0;
    const bool result = XQueryTree(display, window, &root, &parent, &children, &count);
    if (children) XFree(children);
    return result;
}

class Errors : public testing::Test {
  protected:
    // Each fails with an X error.
    void ask_everything(Display* display) {
        std::string a, b;
        EXPECT_EQ(get_top_window(display, dead), 0U);
        EXPECT_EQ(get_named_window(display, dead), 0U);
        EXPECT_FALSE(get_window_class(display, dead, a, b));
        EXPECT_FALSE(get_window_name(display, dead, a));
        EXPECT_EQ(getWindowPid(display, dead), 0);
    }

    void SetUp() override { owner.set_longs(owner.root(), "_NET_WM_PID", "CARDINAL", {1}); }

    test::x_client owner;
    test::x_client asking;
    const Window dead = owner.make_dead();
};

TEST_F(Errors, OwnErrorsEndNothingAndReachNobody) {
    XSetErrorHandler(nullptr);  // Xlib's own, which would end the program
    ask_everything(asking);
    EXPECT_TRUE(HideWindow(dead));
    EXPECT_TRUE(setActiveWindow(dead));
    const test::counted_errors errors;
    ask_everything(asking);
    EXPECT_TRUE(HideWindow(dead));
    EXPECT_EQ(errors.count(), 0);
}

TEST_F(Errors, TheProcesssHandlerStaysWhoeverSetsIt) {
    const XErrorHandler before = XSetErrorHandler(other_handler);
    ask_everything(asking);
    getActiveWindow();
    EXPECT_EQ(XSetErrorHandler(nullptr), &other_handler);
    ask_everything(asking);
    XSetErrorHandler(before);
}

TEST_F(Errors, TheCallersErrorsReachTheHandler) {
    const test::counted_errors errors;
    ask_everything(asking);
    EXPECT_FALSE(tree_of(asking, dead));
    EXPECT_EQ(errors.count(), 1);
    XUnmapWindow(asking, dead);
    ask_everything(asking);  // reads the error of the line above
    EXPECT_EQ(errors.count(), 2);
    const zo::platform::error_trap trap(asking);
    XUnmapWindow(asking, dead);
    XSync(asking, False);
    EXPECT_EQ(errors.count(), 3) << "not a query";
    EXPECT_FALSE(tree_of(owner, dead));
    EXPECT_EQ(errors.count(), 4) << "another connection";
}

TEST_F(Errors, ATrapTakesWhatIsAskedAfterItsBeginning) {
    using zo::platform::error_trap;
    XSync(asking, False);
    EXPECT_FALSE(error_trap::takes(asking, X_InternAtom));
    {
        const error_trap outer(asking, zo::platform::trapped::everything);
        EXPECT_FALSE(error_trap::takes(asking, X_InternAtom));
        XSync(asking, False);
        const error_trap inner(asking);
        EXPECT_TRUE(error_trap::takes(asking, X_InternAtom)) << "by the outer one";
        EXPECT_TRUE(error_trap::takes(asking, X_UnmapWindow));
        EXPECT_FALSE(error_trap::takes(owner, X_InternAtom));
        std::thread([&] { EXPECT_FALSE(error_trap::takes(asking, X_InternAtom)); }).join();
    }
    EXPECT_FALSE(error_trap::takes(asking, X_InternAtom));
}

TEST_F(Errors, AConnectionIsPreparedOnce) {
    const int before = XAddExtension(asking)->extension;
    for (int i = 0; i < 100; ++i) ask_everything(asking);
    EXPECT_EQ(XAddExtension(asking)->extension, before + 2);
}

TEST_F(Errors, EachThreadsErrorsGoWhereTheyBelongOnASharedConnection) {
    constexpr int rounds = 1000;
    const test::counted_errors errors;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&] {
            for (int round = 0; round < rounds; ++round) ask_everything(asking);
        });
    threads.emplace_back([&] {
        for (int round = 0; round < rounds; ++round) EXPECT_NE(get_focus_window(asking), dead);
    });
    threads.emplace_back([&] {
        for (int round = 0; round < rounds; ++round) XEventsQueued(asking, QueuedAfterReading);
    });
    threads.emplace_back([&] {
        for (int round = 0; round < rounds; ++round) EXPECT_FALSE(tree_of(asking, dead));
    });
    threads.emplace_back([&] {
        for (int round = 0; round < rounds; ++round) XUnmapWindow(asking, dead);
        XSync(asking, False);
    });
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(errors.count(), 2 * rounds);
}

}  // namespace
