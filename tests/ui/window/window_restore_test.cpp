// SPDX-License-Identifier: MIT
// The snapshot, and bringing back what it says.
#include "ui/window/event_log.hpp"

namespace {

class WindowRestore : public testing::Test {
  protected:
    WindowRestore() { log.watch(window); }

    // The snapshot as a state.
    test::state saved() {
        return {zo_window_get_bool_property(window, "window-restore-opened"),
                zo_window_get_bool_property(window, "window-restore-visible"),
                zo_window_get_bool_property(window, "window-restore-destroyed")};
    }

    void restore() {
        EXPECT_TRUE(zo_window_restore(window));
        test::run_tasks();
    }

    void hide() {
        zo_window_hide(window);
        test::run_tasks();
    }

    test::event_log log;
    test::captured_output output;
    test::scoped_window window;
};

TEST_F(WindowRestore, SavingNotesTheStateAtOnce) {
    const auto expect_saved = [&](const test::state& expected) {
        EXPECT_TRUE(zo_window_save(window));
        EXPECT_EQ(saved(), expected);
        EXPECT_EQ(saved(), test::state_of(window));
    };
    EXPECT_EQ(saved(), test::state());
    expect_saved({});
    window.open();
    expect_saved({.opened = true});
    window.show();
    expect_saved({.opened = true, .visible = true});
    hide();
    EXPECT_EQ(saved(), (test::state{.opened = true, .visible = true}));
    expect_saved({.opened = true});
    zo_window_close(window);
    test::run_tasks();
    expect_saved({});
    zo_window_destroy(window);
    test::run_tasks();
    expect_saved({.destroyed = true});
    EXPECT_EQ(output.text(), "");
}

TEST_F(WindowRestore, ShowsAWindowThatWasVisible) {
    GtkWidget* toplevel = window.show();
    zo_window_save(window);
    hide();
    log.take();
    restore();
    EXPECT_EQ(log.take_names(), "show restore");
    EXPECT_TRUE(test::state_of(window).visible);
    EXPECT_TRUE(gtk_widget_get_visible(toplevel));
}

TEST_F(WindowRestore, TheCallbackSeesAVisibleWindow) {
    GtkWidget* toplevel = window.show();
    zo_window_save(window);
    hide();
    log.inside("restore", [&](auto&) { EXPECT_TRUE(gtk_widget_get_visible(toplevel)); });
    log.take();
    restore();
    for (const auto& entry : log.take())
        EXPECT_EQ(entry.seen, (test::state{.opened = true, .visible = true})) << entry.what;
}

TEST_F(WindowRestore, LeavesAWindowThatWasHidden) {
    window.show();
    hide();
    zo_window_save(window);
    log.take();
    restore();
    EXPECT_EQ(log.take_names(), "");
    EXPECT_FALSE(test::state_of(window).visible);
}

TEST_F(WindowRestore, OfAVisibleWindowTellsNothing) {
    window.show();
    zo_window_save(window);
    log.take();
    restore();
    EXPECT_EQ(log.take_names(), "");
}

TEST_F(WindowRestore, WithoutASnapshotTellsNothing) {
    window.open();
    log.take();
    restore();
    EXPECT_EQ(log.take_names(), "");
}

TEST_F(WindowRestore, UsesTheLastSnapshotAgainAndAgain) {
    window.show();
    zo_window_save(window);
    for (int round = 0; round < 3; ++round) {
        hide();
        log.take();
        restore();
        EXPECT_EQ(log.take_names(), "show restore");
    }
}

// A window that was closed meanwhile stays closed: only visibility is brought back.
TEST_F(WindowRestore, OpensNothing) {
    window.show();
    zo_window_save(window);
    zo_window_close(window);
    test::run_tasks();
    log.take();
    restore();
    EXPECT_EQ(log.take_names(), "");
    window.open();
    restore();
    EXPECT_EQ(log.take_names(), "open show restore");
}

// "window-restore" means visible again: a show callback that took it back leaves nothing to tell.
TEST_F(WindowRestore, IsNotToldWhenTheShowCallbackClosedTheWindow) {
    window.show();
    zo_window_save(window);
    hide();
    log.inside("show", [](const zo_window_ptr& w) {
        zo_window_close(w);
        test::run_tasks();
    });
    log.take();
    restore();
    EXPECT_EQ(log.take_names(), "show close");
}

TEST_F(WindowRestore, WithoutACallbackStillShows) {
    window.show();
    zo_window_save(window);
    hide();
    zo_window_set_window_restore_callback(window, nullptr);
    log.take();
    restore();
    EXPECT_EQ(log.take_names(), "show");
}

}  // namespace
