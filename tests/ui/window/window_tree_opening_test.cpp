// SPDX-License-Identifier: MIT
// Opening: once at a time, with what the properties say then; the callback sees the finished tree.
#include "ui/window/tree_support.hpp"

#include <future>

namespace {

TEST(WindowOpening, TwiceBuildsNothingTheSecondTime) {
    test::scoped_window window("w");
    int opened = 0;
    zo_window_set_window_open_callback(window, [&](zo_window_ptr) { ++opened; });
    GtkWidget* toplevel = window.open();
    zo_window_set_class(window, "later");
    EXPECT_EQ(window.open(), toplevel);
    EXPECT_EQ(test::toplevels("zo-window").size(), 1u);
    EXPECT_EQ(test::children(test::find_name(toplevel, "window-wrapper")).size(), 2u);
    EXPECT_EQ(opened, 1);
}

TEST(WindowOpening, AfterACloseBuildsANewTreeFromThePresentFlags) {
    test::scoped_window window("w");
    int opened = 0;
    zo_window_set_window_open_callback(window, [&](zo_window_ptr) { ++opened; });
    GtkWidget* first = window.open();
    bool first_gone = false;
    const auto on_destroy = +[](GtkWidget*, gpointer gone) { *static_cast<bool*>(gone) = true; };
    g_signal_connect(first, "destroy", G_CALLBACK(on_destroy), &first_gone);
    zo_window_close(window);
    zo_window_set_use_scroll(window, false);
    zo_window_set_enable_content_ads(window, true);
    zo_window_set_enable_title_back(window, true);
    GtkWidget* second = window.open();
    EXPECT_TRUE(first_gone);
    EXPECT_EQ(test::toplevels("zo-window").size(), 1u);
    EXPECT_EQ(test::find_class(second, "window-scroll"), nullptr);
    EXPECT_NE(test::find_class(second, "window-ads-container"), nullptr);
    EXPECT_NE(test::find_class(second, "title-back"), nullptr);
    EXPECT_EQ(opened, 2);
}

TEST(WindowOpening, OfADestroyedWindowBuildsNothing) {
    const zo_window_ptr window = zo_window_new("w");
    zo_window_destroy(window);
    zo_window_open(window);
    test::run_tasks();
    EXPECT_TRUE(test::toplevels("zo-window").empty());
}

TEST(WindowOpening, CallsBackWithTheFinishedHiddenTree) {
    test::scoped_window window("w");
    zo_window_set_enable_title_menu(window, true);
    int calls = 0;
    zo_window_set_window_open_callback(window, [&](zo_window_ptr opened) {
        ++calls;
        EXPECT_EQ(opened, window.get());
        EXPECT_EQ(test::state_of(opened), (test::state{true, false, false}));
        GtkWidget* toplevel = test::toplevel_named("w");
        ASSERT_NE(toplevel, nullptr);
        EXPECT_FALSE(gtk_widget_get_visible(toplevel));
        EXPECT_NE(test::find_class(toplevel, "title-menu"), nullptr);
        EXPECT_NE(test::find_class(toplevel, "window-content"), nullptr);
        EXPECT_EQ(test::own_handlers(opened, toplevel, "window-state-event"), 1u);
        GtkWindowPosition position = GTK_WIN_POS_NONE;
        g_object_get(toplevel, "window-position", &position, nullptr);
        EXPECT_EQ(position, GTK_WIN_POS_CENTER);
        EXPECT_TRUE(zo_window_add_content_child(opened, test::block(5, 5), false, false, 0, false));
        const auto read = std::async(std::launch::async, [&] { return zo_window_get_keep_above(opened); });
        EXPECT_EQ(read.wait_for(std::chrono::seconds(20)), std::future_status::ready)
            << "the property lock is held";
    });
    window.open();
    EXPECT_EQ(calls, 1);
}

TEST(WindowOpening, TakesTheTextsOfThatMoment) {
    test::scoped_window window("before");
    zo_window_set_id(window, "now");
    zo_window_set_title(window, "Now");
    GtkWidget* toplevel = window.open();
    ASSERT_NE(toplevel, nullptr);
    EXPECT_STREQ(gtk_widget_get_name(toplevel), "now");
    EXPECT_STREQ(gtk_label_get_text(GTK_LABEL(test::find_class(toplevel, "title-text"))), "Now");
}

}  // namespace
