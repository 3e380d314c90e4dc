// SPDX-License-Identifier: MIT
// A server of the test's own, with two screens, which are two roots, and without any client before.
#include <gtest/gtest.h>
#include <zo_ui/platform/linux.hpp>
#include <zo_ui/platform/linux/pointer_p.hpp>

#include "platform/private_server.hpp"
#include "platform/x_client.hpp"

#include <cstdlib>

namespace {

class Screens : public testing::Test {
  protected:
    Screens() : server({"-screen", "0", "640x480x24", "-screen", "1", "800x600x24"}) {
        setenv("DISPLAY", server.name().c_str(), 1);
    }
    ~Screens() override { unsetenv("DISPLAY"); }

    test::private_server server;
};

TEST_F(Screens, ThePointerIsFoundOnWhicheverItIs) {
    const test::x_client client;
    ASSERT_EQ(ScreenCount(static_cast<Display*>(client)), 2);
    for (int screen = 0; screen < 2; ++screen) {
        XWarpPointer(client, None, RootWindow(static_cast<Display*>(client), screen), 0, 0, 0, 0, 30 + screen,
                     40);
        XSync(client, False);
        int x = 0, y = 0;
        EXPECT_TRUE(GetCursorPos(&x, &y));
        EXPECT_EQ(x, 30 + screen);
        EXPECT_EQ(y, 40);
    }
}

TEST_F(Screens, EveryScreensRootIsARoot) {
    const test::x_client asking;
    test::x_client owner((server.name() + ".1").c_str());
    const Window top = owner.make();
    EXPECT_EQ(get_top_window(asking, owner.make(top)), top);
    test::watch_requests(asking, nullptr);
    EXPECT_EQ(get_top_window(asking, owner.root()), 0U);
    EXPECT_EQ(test::watched_requests(), 0);
    test::stop_watching_requests();
}

TEST_F(Screens, ActivatingAsksTheDefaultScreensManager) {
    setenv("DISPLAY", (server.name() + ".1").c_str(), 1);
    const test::x_client other(server.name().c_str());
    test::x_client manager;
    for (Display* display : {static_cast<Display*>(other), static_cast<Display*>(manager)}) {
        XSelectInput(display, DefaultRootWindow(display), SubstructureRedirectMask);
        XSync(display, False);
    }
    const Window window = manager.make();
    EXPECT_TRUE(setActiveWindow(window));
    XSync(manager, False);
    XSync(other, False);
    XEvent event{};
    EXPECT_TRUE(XCheckTypedEvent(manager, ClientMessage, &event));
    EXPECT_FALSE(XCheckTypedEvent(other, ClientMessage, &event));
}

TEST_F(Screens, ANameThatTheServerDoesNotKnowIsNotMadeKnownByAsking) {
    const test::x_client asking;
    EXPECT_EQ(getWindowPid(asking, asking.root()), 0);
    EXPECT_EQ(XInternAtom(asking, "_NET_WM_PID", True), Atom{None});
    test::watch_requests(asking, nullptr);
    EXPECT_EQ(get_named_window(asking, asking.root()), 0U);
    EXPECT_EQ(test::watched_round_trips(), 1) << "no window can have a state that is not known";
    test::stop_watching_requests();
}

}  // namespace
