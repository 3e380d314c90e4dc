// SPDX-License-Identifier: MIT
// Under which file and line each operation is posted: a service in place of the core's only notes.
#include "support/posted_tasks.hpp"
#include "ui/window/window_tables.hpp"

#include <zo_ui/zo_window/window_p.hpp>

using test::posted;
using test::posts;

namespace {

class WindowPosts : public testing::Test {
  protected:
    WindowPosts() : window(zo_window_new("")) { posts.clear(); }
    ~WindowPosts() override {
        posts.clear();
        zo_object_unref(zo_window_to_object(window));
    }

    // One post, and what its task does when it runs.
    void expect_post(int line, bool returned) {
        EXPECT_TRUE(returned) << line;
        ASSERT_EQ(posts.size(), 1U) << line;
        EXPECT_EQ(posts[0].file, "src/zo_ui/zo_window");
        EXPECT_EQ(posts[0].line, line);
        EXPECT_TRUE(posts[0].task);
        posts.clear();
    }

    zo_window_ptr window;
};

TEST_F(WindowPosts, NameTheirPlace) {
    expect_post(158, zo_window_open(window));
    expect_post(166, zo_window_show(window));
    expect_post(174, zo_window_hide(window));
    expect_post(182, zo_window_activate(window));
    expect_post(190, zo_window_restore(window));
    expect_post(200, zo_window_move(window, 1, 2));
    expect_post(210, zo_window_close(window));
    expect_post(219, zo_window_destroy(window));
    expect_post(133, zo_window_push_event(window, zo_window_event_new(1)));
    expect_post(149, zo_window_set_window_manager(window, {}));
    expect_post(296, zo_window_set_id(window, "a"));
    expect_post(330, zo_window_set_class(window, "b"));
    expect_post(360, zo_window_set_title(window, "c"));
    expect_post(118, zo_window_destroy(window, "reason", 1));
}

TEST_F(WindowPosts, AnEqualTextIsPostedAsWell) {
    zo_window_set_id(window, "same");
    zo_window_set_id(window, "same");
    EXPECT_EQ(posts.size(), 2U);
}

TEST_F(WindowPosts, OneOfEachKindHoldsTheWindow) {
    EXPECT_EQ(window.use_count(), 2);
    zo_window_open(window);
    zo_window_move(window, 1, 2);
    zo_window_push_event(window, zo_window_event_new(1));
    zo_window_set_title(window, "c");
    zo_window_set_window_manager(window, {});
    EXPECT_EQ(window.use_count(), 7);
    posts.clear();
    EXPECT_EQ(window.use_count(), 2);
}

TEST_F(WindowPosts, ANewIdIsPosted) {
    const zo_window_ptr named = zo_window_new("named");
    expect_post(296, true);
    zo_object_unref(zo_window_to_object(named));
}

TEST_F(WindowPosts, WhatWorksAtOnceIsNotPosted) {
    test::captured_output output;
    zo_window_save(window);
    for (const test::window_flag& flag : test::window_flags) flag.set(window, !flag.get(window));
    for (const test::window_callback& callback : test::window_callbacks) callback.store(window, [] {});
    for (const test::window_text_row& row : test::window_texts) {
        std::string text;
        row.get(window, text);
    }
    bool flag = false;
    zo_window_is_opened(window, &flag);
    zo_window_instance_id(window);
    zo_window_get_window_manager(window);
    zo_window_add_content_child(window, nullptr, true, true, 0, false);
    EXPECT_TRUE(posts.empty());
}

TEST_F(WindowPosts, EmptyHandlesPostNothing) {
    test::captured_output output;
    for (const test::window_operation& operation : test::window_operations) operation.post({});
    for (const test::window_text_row& row : test::window_texts) row.set({}, "text");
    zo_window_destroy({}, "reason", 1);
    zo_window_move({}, 1, 2);
    zo_window_push_event({}, zo_window_event_new(1));
    zo_window_push_event(window, {});
    zo_window_set_window_manager({}, {});
    EXPECT_TRUE(posts.empty());
    EXPECT_EQ(output.lines().size(), std::size(test::window_operations) + 3 + 5);
}

// The link asks before it posts; the rest leaves the asking to the task.
TEST_F(WindowPosts, OfADestroyedWindow) {
    window->_destroy();
    EXPECT_TRUE(zo_window_set_window_manager(window, {}));
    EXPECT_TRUE(posts.empty());
    EXPECT_TRUE(zo_window_show(window));
    EXPECT_EQ(posts.size(), 1U);
    zo_object_ref(zo_window_to_object(window));
}

TEST_F(WindowPosts, ASecondDestroyWithAReasonPostsNothing) {
    test::captured_output output;
    zo_window_destroy(window, "first", 1);
    zo_window_destroy(window, "second", 2);
    EXPECT_EQ(posts.size(), 1U);
    zo_window_destroy(window);
    EXPECT_EQ(posts.size(), 2U);
}

}  // namespace
