// SPDX-License-Identifier: MIT
// Real clicks on the title bar's buttons, and the callbacks that they reach.
#include "support/desktop.hpp"
#include "ui/window/tree_support.hpp"

namespace {

using plain_setter = bool (*)(zo_window_ptr, std::function<void(zo_window_ptr)>);

class WindowTitleClicks : public testing::Test {
  protected:
    GtkWidget* show() {
        test::enable_title_buttons(window_);
        toplevel_ = window_.show();
        test::settle_desktop();
        return toplevel_;
    }

    GtkWidget* button(const char* style_class) { return test::find_class(toplevel_, style_class); }

    test::state state() { return test::state_of(window_); }

    test::scoped_window window_{"w"};
    GtkWidget* toplevel_ = nullptr;
    const test::state shown_{true, true, false};
};

TEST_F(WindowTitleClicks, ExitHintAndBackCallBack) {
    const std::pair<const char*, plain_setter> buttons[] = {
        {"title-exit", zo_window_set_window_exit_app_request_callback},
        {"title-hint", zo_window_set_window_hint_request_callback},
        {"title-back", zo_window_set_window_go_back_callback}};
    show();
    std::vector<std::string> calls;
    for (const auto& [style_class, set] : buttons)
        set(window_, [&, name = std::string(style_class)](zo_window_ptr called) {
            EXPECT_EQ(called, window_.get());
            EXPECT_EQ(state(), shown_);
            calls.push_back(name);
        });
    std::vector<std::string> expected;
    for (const auto& [style_class, set] : buttons) {
        expected.push_back(style_class);
        test::click(button(style_class));
        EXPECT_TRUE(test::turn_until([&] { return calls.size() == expected.size(); })) << style_class;
        EXPECT_EQ(calls, expected);
    }
}

TEST_F(WindowTitleClicks, WithoutACallbackDoNothing) {
    show();
    for (const char* style_class : {"title-exit", "title-hint", "title-back", "title-shoot", "title-menu"})
        test::click(button(style_class));
    test::settle_desktop();
    EXPECT_EQ(state(), shown_);
    EXPECT_TRUE(test::toplevels("tool-menu").empty());
}

TEST_F(WindowTitleClicks, CloseWithoutACallbackCloses) {
    int closed = 0;
    zo_window_set_window_close_callback(window_, [&](zo_window_ptr) { ++closed; });
    show();
    test::click(button("title-close"));
    EXPECT_TRUE(test::turn_until([&] { return !state().opened; }));
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(zo_window_instance_id(window_), 1);
    EXPECT_EQ(test::toplevel_named("w"), nullptr);
}

TEST_F(WindowTitleClicks, CloseAsksAndIsVetoedByTrue) {
    bool veto = true;
    int asked = 0;
    int closed = 0;
    zo_window_set_window_close_callback(window_, [&](zo_window_ptr) { ++closed; });
    zo_window_set_window_close_request_callback(window_, [&](zo_window_ptr called) {
        EXPECT_EQ(called, window_.get());
        EXPECT_EQ(state(), shown_);
        ++asked;
        return veto;
    });
    show();
    test::click(button("title-close"));
    EXPECT_TRUE(test::turn_until([&] { return asked == 1; }));
    test::settle_desktop();
    EXPECT_EQ(state(), shown_);
    EXPECT_EQ(closed, 0);
    veto = false;
    test::click(button("title-close"));
    EXPECT_TRUE(test::turn_until([&] { return !state().opened; }));
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(closed, 1);
}

TEST_F(WindowTitleClicks, MinimizeHides) {
    int hidden = 0;
    zo_window_set_window_hide_callback(window_, [&](zo_window_ptr) { ++hidden; });
    show();
    test::click(button("title-minimize"));
    EXPECT_TRUE(test::turn_until([&] { return !state().visible; }));
    EXPECT_EQ(state(), (test::state{true, false, false}));
    EXPECT_FALSE(gtk_widget_get_visible(toplevel_));
    EXPECT_EQ(hidden, 1);
}

// A callback set after the window was opened is the one that is called.
TEST_F(WindowTitleClicks, TheCallbackOfTheMomentIsCalled) {
    show();
    int calls = 0;
    zo_window_set_window_hint_request_callback(window_, [](zo_window_ptr) { ADD_FAILURE(); });
    zo_window_set_window_hint_request_callback(window_, [&](zo_window_ptr) { ++calls; });
    test::click(button("title-hint"));
    EXPECT_TRUE(test::turn_until([&] { return calls == 1; }));
    zo_window_set_window_hint_request_callback(window_, nullptr);
    test::click(button("title-hint"));
    test::settle_desktop();
    EXPECT_EQ(calls, 1);
}

TEST_F(WindowTitleClicks, WorkInATreeThatWasBuiltAnew) {
    show();
    zo_window_close(window_);
    int calls = 0;
    zo_window_set_window_go_back_callback(window_, [&](zo_window_ptr) { ++calls; });
    show();
    test::click(button("title-back"));
    EXPECT_TRUE(test::turn_until([&] { return calls == 1; }));
}

// A button of the second kind does nothing.
TEST_F(WindowTitleClicks, OnlyTheFirstButtonClicks) {
    int calls = 0;
    zo_window_set_window_hint_request_callback(window_, [&](zo_window_ptr) { ++calls; });
    show();
    const test::point middle = test::middle_of(button("title-hint"));
    test::move_pointer(middle.x, middle.y);
    for (const int other : {2, 3}) {
        test::press_button(other);
        test::release_button(other);
    }
    test::settle_desktop();
    EXPECT_EQ(calls, 0);
}

}  // namespace
