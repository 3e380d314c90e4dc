// SPDX-License-Identifier: MIT
// A callback that closes the window and opens it again, in a nested loop: what was under way belonged to the
// old tree, and leaves the new one alone, even where GTK gives it the old one's memory.
#include "ui/window/recording_manager.hpp"

#include <algorithm>

namespace {

void run(const zo_window_ptr& window, const std::vector<bool (*)(zo_window_ptr)>& operations) {
    for (const auto operation : operations) operation(window);
    test::run_tasks();
}

// Closes and opens until GTK gives the new tree the memory of the first, which some allocators never do.
// Gives how often.
int reopen_in_the_same_memory(const zo_window_ptr& window) {
    const GtkWidget* const first = test::toplevel_named("w");
    int times = 0;
    do run(window, {zo_window_close, zo_window_open});
    while (++times < 100 && test::toplevel_named("w") != first);
    return times;
}

class WindowReopening : public testing::Test {
  protected:
    WindowReopening() {
        log.watch(window);
        zo_window_set_window_manager(window, manager);
        test::run_tasks();
        log.take();
    }

    std::size_t count_of(const std::string& what) {
        const auto told = log.take();
        return static_cast<std::size_t>(
            std::count_if(told.begin(), told.end(), [&](const auto& entry) { return entry.what == what; }));
    }

    test::event_log log;
    boost::shared_ptr<test::recording_manager> manager = test::recording_manager_new(log);
    test::scoped_window window;
};

TEST_F(WindowReopening, InsideOpenIsToldOnce) {
    log.inside("open", [](auto& w) { run(w, {zo_window_close, zo_window_open}); });
    run(window, {zo_window_open});
    EXPECT_EQ(log.take_names(), "open close m:closed open m:opened");
}

TEST_F(WindowReopening, InsideShowTheNewTreeIsShownOnce) {
    run(window, {zo_window_open});
    log.take();
    log.inside("show", [](auto& w) { run(w, {zo_window_close, zo_window_open, zo_window_show}); });
    run(window, {zo_window_show});
    EXPECT_EQ(log.take_names(), "show close m:closed open m:opened show m:shown");
}

// The close is over when its callback opens the window again: the manager has an opened window.
TEST_F(WindowReopening, InsideCloseLeavesItOpenForTheManager) {
    run(window, {zo_window_open});
    log.take();
    log.inside("close", [](auto& w) { run(w, {zo_window_open}); });
    run(window, {zo_window_close});
    EXPECT_EQ(log.take_names(), "close open m:opened");
    EXPECT_TRUE(test::state_of(window).opened);
}

TEST_F(WindowReopening, InTheSameMemoryInsideOpen) {
    int times = 0;
    log.inside("open", [&](auto& w) { times = reopen_in_the_same_memory(w); });
    run(window, {zo_window_open});
    EXPECT_EQ(count_of("m:opened"), static_cast<std::size_t>(times));
}

TEST_F(WindowReopening, InTheSameMemoryInsideShow) {
    run(window, {zo_window_open});
    log.inside("show", [](auto& w) {
        reopen_in_the_same_memory(w);
        run(w, {zo_window_show});
    });
    run(window, {zo_window_show});
    EXPECT_EQ(count_of("m:shown"), 1U);
}

TEST_F(WindowReopening, InTheSameMemoryInsideHide) {
    run(window, {zo_window_open, zo_window_show});
    log.inside("hide", [](auto& w) { reopen_in_the_same_memory(w); });
    run(window, {zo_window_hide});
    EXPECT_EQ(count_of("m:hidden"), 0U);
}

TEST_F(WindowReopening, InTheSameMemoryInsideATitlesCallback) {
    zo_window_set_window_title_text_change_callback(
        window, [](const zo_window_ptr& w, std::string) { reopen_in_the_same_memory(w); });
    run(window, {zo_window_open});
    zo_window_set_title(window, "text");
    test::run_tasks();
    EXPECT_EQ(count_of("m:title"), 0U);
}

// The user asked for the old tree to be closed.
TEST_F(WindowReopening, InTheSameMemoryInsideACloseRequest) {
    zo_window_set_window_close_request_callback(window, [](const zo_window_ptr& w) {
        reopen_in_the_same_memory(w);
        return false;
    });
    run(window, {zo_window_open});
    for (int i = 0; i < 5; ++i) {
        gtk_button_clicked(GTK_BUTTON(test::find_class(test::toplevel_named("w"), "title-close")));
        ASSERT_TRUE(test::state_of(window).opened);
    }
}

TEST_F(WindowReopening, InsideTheDestroySignalOfTheToplevel) {
    run(window, {zo_window_open, zo_window_show});
    const auto reopen = +[](GtkWidget*, const zo_window_ptr* w) {
        run(*w, {zo_window_open, zo_window_show});
    };
    g_signal_connect(test::toplevel_named("w"), "destroy", G_CALLBACK(reopen),
                     const_cast<zo_window_ptr*>(&window.get()));
    run(window, {zo_window_close});
    EXPECT_EQ(test::state_of(window), (test::state{.opened = true, .visible = true}));
    EXPECT_EQ(test::toplevels("zo-window").size(), 1U);
}

}  // namespace
