// SPDX-License-Identifier: MIT
// Showing and activating: what is applied again, and who is marked as the active window.
#include "support/desktop.hpp"
#include "support/ui.hpp"

namespace {

bool is_marked(GtkWidget* toplevel) { return test::has_class(toplevel, "active"); }

void activate(const zo_window_ptr& window) {
    EXPECT_TRUE(zo_window_activate(window));
    test::run_tasks();
}

// With a window manager its answer, without one what GTK wrote before the window was mapped.
bool becomes_above(GtkWidget* toplevel, bool above) {
    return test::x_property_becomes(toplevel, "_NET_WM_STATE", "_NET_WM_STATE_ABOVE", above);
}

TEST(WindowKeepAbove, SetAfterTheOpeningHoldsFromTheShowing) {
    test::scoped_window window;
    zo_window_set_keep_above(window, false);
    window.open();
    zo_window_set_keep_above(window, true);
    EXPECT_TRUE(becomes_above(window.show(), true));
}

TEST(WindowKeepAbove, IsNotSetUnasked) {
    test::scoped_window window;
    zo_window_set_keep_above(window, false);
    GtkWidget* toplevel = window.show();
    test::settle_desktop();
    EXPECT_TRUE(becomes_above(toplevel, false));
    activate(window);
    test::settle_desktop();
    EXPECT_TRUE(becomes_above(toplevel, false));
}

TEST(WindowKeepAbove, SetWhileShownHoldsFromTheActivation) {
    if (test::session_wm() == "none") return;
    test::scoped_window window;
    zo_window_set_keep_above(window, false);
    GtkWidget* toplevel = window.show();
    zo_window_set_keep_above(window, true);
    test::settle_desktop();
    EXPECT_TRUE(becomes_above(toplevel, false));
    activate(window);
    EXPECT_TRUE(becomes_above(toplevel, true));
}

TEST(WindowActivate, GivesTheFocus) {
    test::scoped_window first("first");
    test::scoped_window second("second");
    GtkWidget* first_toplevel = first.show();
    GtkWidget* second_toplevel = second.show();
    if (test::session_wm() == "none") return;
    test::settle_desktop();
    for (const auto& [window, toplevel] :
         {std::pair(first.get(), first_toplevel), std::pair(second.get(), second_toplevel),
          std::pair(first.get(), first_toplevel)}) {
        activate(window);
        EXPECT_TRUE(test::turn_until([&, top = toplevel] { return gtk_window_is_active(GTK_WINDOW(top)); }));
    }
}

// One window of the process is marked; the mark moves at once, not with the focus.
TEST(WindowActivate, MarksOneManagedWindow) {
    test::scoped_window first("first");
    test::scoped_window second("second");
    GtkWidget* first_toplevel = first.show();
    GtkWidget* second_toplevel = second.show();
    test::settle_desktop();
    bool marked = false;
    zo_window_set_window_activate_callback(
        first, [&](zo_window_ptr) { marked = is_marked(first_toplevel) && !is_marked(second_toplevel); });
    zo_window_set_window_activate_callback(
        second, [&](zo_window_ptr) { marked = is_marked(second_toplevel) && !is_marked(first_toplevel); });
    for (const zo_window_ptr& window : {first.get(), second.get(), first.get(), first.get()}) {
        marked = false;
        activate(window);
        EXPECT_TRUE(marked);
    }
}

TEST(WindowActivate, LeavesTheMarkWithAWindowThatIsNotManaged) {
    test::scoped_window managed("managed");
    test::scoped_window loose("loose");
    zo_window_set_managed_window(loose, false);
    GtkWidget* managed_toplevel = managed.show();
    GtkWidget* loose_toplevel = loose.show();
    activate(managed);
    activate(loose);
    EXPECT_FALSE(is_marked(loose_toplevel));
    EXPECT_TRUE(is_marked(managed_toplevel));
}

// The one that was marked is gone, with its memory.
TEST(WindowActivate, ForgetsAMarkedWindowThatIsClosed) {
    test::scoped_window second("second");
    GtkWidget* toplevel = second.show();
    for (int round = 0; round < 3; ++round) {
        test::scoped_window first("first");
        first.show();
        activate(first);
        EXPECT_FALSE(is_marked(toplevel));
        zo_window_close(first);
        test::run_tasks();
        activate(second);
        EXPECT_TRUE(is_marked(toplevel));
    }
}

TEST(WindowActivate, AReopenedWindowIsNotMarkedByItsPast) {
    test::scoped_window window;
    window.show();
    activate(window);
    zo_window_close(window);
    EXPECT_FALSE(is_marked(window.open()));
}

}  // namespace
