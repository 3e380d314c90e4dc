// SPDX-License-Identifier: MIT
// Walking the window tree, on an X server without a window manager, where the test decides what has which
// state.
#include <gtest/gtest.h>
#include <zo_ui/platform/linux.hpp>

#include "platform/x_client.hpp"

namespace {

class Tree : public testing::Test {
  protected:
    ~Tree() override { EXPECT_EQ(errors.count(), 0); }

    // How often the call waits for the server on the asking connection.
    template <typename Call>
    int round_trips_of(Call call) {
        test::watch_requests(asking, nullptr);
        call();
        const int round_trips = test::watched_round_trips();
        test::stop_watching_requests();
        return round_trips;
    }

    test::counted_errors errors;
    test::x_client owner;
    test::x_client asking;
};

TEST_F(Tree, AConnectionIsToTheSameServer) {
    Display* display = open_display();
    ASSERT_NE(display, nullptr);
    EXPECT_EQ(DefaultRootWindow(display), asking.root());
    XCloseDisplay(display);
}

TEST_F(Tree, TheFocusIsToldAsTheServerTellsIt) {
    const Window window = owner.make_viewable();
    owner.focus(window);
    EXPECT_EQ(get_focus_window(asking), window);
    owner.focus(PointerRoot);
    EXPECT_EQ(get_focus_window(asking), Window{PointerRoot});
    owner.focus(None);
    EXPECT_EQ(get_focus_window(asking), Window{None});
    owner.focus(owner.root());
    EXPECT_EQ(get_focus_window(asking), owner.root());
}

TEST_F(Tree, TheTopOfAChildOfTheRootIsThatChild) {
    const Window window = owner.make();
    EXPECT_EQ(get_top_window(asking, window), window);
}

TEST_F(Tree, TheTopOfADeepWindowIsItsAncestorBelowTheRoot) {
    const Window top = owner.make();
    const Window middle = owner.make(top);
    const Window deep = owner.make(middle);
    owner.make(deep);
    EXPECT_EQ(get_top_window(asking, deep), top);
    test::watch_requests(asking, nullptr);
    EXPECT_EQ(get_top_window(asking, deep), top);
    EXPECT_EQ(test::watched_requests(), 3);
    EXPECT_EQ(test::watched_round_trips(), 3);
    test::stop_watching_requests();
}

TEST_F(Tree, NoWindowThePointersRootAndTheRootHaveNoTopAndAreNotAskedFor) {
    const int round_trips = round_trips_of([&] {
        EXPECT_EQ(get_top_window(asking, 0), 0U);
        EXPECT_EQ(get_top_window(asking, 1), 0U);
        EXPECT_EQ(get_top_window(asking, asking.root()), 0U);
    });
    EXPECT_EQ(round_trips, 0);
}

TEST_F(Tree, AWindowThatIsGoneHasNoTop) {
    EXPECT_EQ(get_top_window(asking, owner.make_dead()), 0U);
    EXPECT_EQ(get_top_window(asking, 0xdeadbeef), 0U);
}

TEST_F(Tree, TheNamedWindowIsTheOneBelowThatCarriesTheState) {
    const Window frame = owner.make();
    owner.make(frame);
    const Window inner = owner.make(frame);
    const Window client = owner.make_client(inner);
    owner.make(client);
    EXPECT_EQ(get_named_window(asking, frame), client);
    EXPECT_EQ(get_named_window(asking, inner), client);
}

TEST_F(Tree, AWindowThatItselfCarriesTheStateNamesNone) {
    const Window client = owner.make_client(owner.root());
    owner.make_client(client);
    EXPECT_EQ(get_named_window(asking, client), 0U);
}

TEST_F(Tree, NothingBelowWithTheStateNamesNone) {
    const Window frame = owner.make();
    owner.make(frame);
    EXPECT_EQ(get_named_window(asking, frame), 0U);
    EXPECT_EQ(get_named_window(asking, owner.make_dead()), 0U);
    EXPECT_EQ(get_named_window(asking, 0), 0U);
    EXPECT_EQ(get_named_window(asking, 1), 0U);
}

TEST_F(Tree, TheActiveWindowIsTheClientOfTheFocusedFrame) {
    const Window frame = owner.make_viewable();
    const Window client = owner.make_client(frame);
    const Window child = owner.make_viewable(client);
    for (const Window focused : {child, client, frame}) {
        owner.focus(focused);
        EXPECT_EQ(getActiveWindow(asking), client);
        EXPECT_EQ(getActiveWindow(), client);
    }
}

TEST_F(Tree, TheActiveWindowIsNotWhatTheWindowManagerAnnounces) {
    const Window frame = owner.make_viewable();
    const Window client = owner.make_client(frame);
    const Window other = owner.make_client(owner.make_viewable());
    owner.focus(client);
    owner.set_longs(owner.root(), "_NET_ACTIVE_WINDOW", "WINDOW", {static_cast<long>(other)});
    EXPECT_EQ(getActiveWindow(), client);
}

TEST_F(Tree, WithoutAFrameThereIsNoActiveWindow) {
    const Window client = owner.make_client(owner.root());
    owner.focus(client);
    EXPECT_EQ(getActiveWindow(asking), 0U);
    EXPECT_EQ(getActiveWindow(), 0U);
}

TEST_F(Tree, TheFocusOnNothingOrOnARootIsNoActiveWindowAfterOneRoundTrip) {
    for (const Window focused : {Window{None}, Window{PointerRoot}, owner.root()}) {
        owner.focus(focused);
        EXPECT_EQ(round_trips_of([&] { EXPECT_EQ(getActiveWindow(asking), 0U); }), 1);
        EXPECT_EQ(getActiveWindow(), 0U);
    }
}

TEST_F(Tree, WithoutAConnectionThereIsNothing) {
    EXPECT_EQ(get_focus_window(nullptr), 0U);
    EXPECT_EQ(get_top_window(nullptr, owner.root()), 0U);
    EXPECT_EQ(get_named_window(nullptr, owner.root()), 0U);
    EXPECT_EQ(getActiveWindow(nullptr), 0U);
}

}  // namespace
