// SPDX-License-Identifier: MIT
// What a window manager gets to see, read where it would read it: at the root of a server without one.
#include "support/loop.hpp"
#include "support/output.hpp"

#include <gtest/gtest.h>
#include <zo_ui/platform/linux.hpp>

#include "platform/x_client.hpp"

#include <unistd.h>

#include <chrono>
#include <optional>
#include <thread>

namespace {

class Messages : public testing::Test {
  protected:
    Messages() {
        XSelectInput(manager, manager.root(), SubstructureRedirectMask);
        XSync(manager, False);
    }
    ~Messages() override { EXPECT_EQ(errors.count(), 0); }

    std::optional<XClientMessageEvent> message() {
        XEvent event{};
        const bool came = test::turn_until([&] { return XCheckTypedEvent(manager, ClientMessage, &event); });
        EXPECT_TRUE(came);
        return came ? std::optional(event.xclient) : std::nullopt;
    }

    void expect_activation(const XClientMessageEvent& message, Window window) {
        EXPECT_EQ(message.type, ClientMessage);
        EXPECT_EQ(message.send_event, True);
        EXPECT_EQ(message.window, window);
        EXPECT_EQ(message.message_type, XInternAtom(manager, "_NET_ACTIVE_WINDOW", True));
        EXPECT_EQ(message.format, 32);
        for (const long item : message.data.l) EXPECT_EQ(item, 0);
    }

    test::counted_errors errors;
    test::x_client manager;
};

TEST_F(Messages, ActivatingSendsTheRequestToTheRoot) {
    const Window window = manager.make();
    EXPECT_TRUE(setActiveWindow(window));
    if (const auto received = message()) expect_activation(*received, window);
}

TEST_F(Messages, OnAConnectionOfTheCallersItIsSentWithTheCallersNextFlush) {
    const Window window = manager.make();
    const test::x_client caller;
    EXPECT_EQ(setActiveWindow(caller, window), 1);
    XFlush(caller);
    if (const auto received = message()) expect_activation(*received, window);
    EXPECT_EQ(setActiveWindow(nullptr, window), 0);
}

TEST_F(Messages, SomebodyWhoOnlyWatchesSeesItToo) {
    const test::x_client watcher;
    XSelectInput(watcher, watcher.root(), SubstructureNotifyMask);
    XSync(watcher, False);
    const Window window = manager.make();
    EXPECT_TRUE(setActiveWindow(window));
    XEvent event{};
    EXPECT_TRUE(test::turn_until([&] { return XCheckTypedEvent(watcher, ClientMessage, &event); }));
    expect_activation(event.xclient, window);
}

TEST_F(Messages, AWindowThatIsGoneIsAskedForAllTheSame) {
    const Window window = manager.make_dead();
    EXPECT_TRUE(setActiveWindow(window));
    if (const auto received = message()) expect_activation(*received, window);
    EXPECT_TRUE(HideWindow(window));
    EXPECT_TRUE(HideWindow(0));
}

TEST_F(Messages, ThePrintOutActivatesABrowserOnceMoreAfterThreeSeconds) {
    test::x_client owner;
    const Window frame = owner.make();
    const Window client = owner.make(frame);
    owner.set_text(client, "WM_NAME", "STRING", "page");
    owner.set_text(client, "WM_CLASS", "STRING", std::string("Navigator\0Firefox\0", 18));
    owner.set_longs(client, "_NET_WM_PID", "CARDINAL", {4711});
    owner.set_longs(client, "WM_STATE", "WM_STATE", {1, 0});
    manager.set_longs(manager.root(), "_NET_ACTIVE_WINDOW", "WINDOW", {0});
    XMapWindow(manager, client);
    XMapWindow(manager, frame);
    XSync(manager, False);
    owner.focus(client);

    const test::captured_output output;
    const auto start = std::chrono::steady_clock::now();
    std::thread printing(testX11ActiveWindow);
    const auto received = message();
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::seconds(3));
    printing.join();
    if (received) expect_activation(*received, client);
    EXPECT_EQ(output.lines().at(4), "res    class: Firefox");
}

}  // namespace
