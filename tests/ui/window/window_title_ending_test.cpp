// SPDX-License-Identifier: MIT
// Callbacks that end the window while the click that called them is still running.
#include "support/desktop.hpp"
#include "ui/window/tree_support.hpp"

namespace {

using window_ending = void (*)(zo_window_ptr);

void by_close(zo_window_ptr window) {
    zo_window_close(window);
    test::run_tasks();
}

void by_destroy(zo_window_ptr window) {
    zo_window_destroy(window);
    test::run_tasks();
}

void from_outside(zo_window_ptr) { gtk_widget_destroy(test::toplevel_named("w")); }

void by_close_and_open(zo_window_ptr window) {
    zo_window_close(window);
    zo_window_open(window);
    zo_window_show(window);
    test::run_tasks();
}

const window_ending endings[] = {by_close, by_destroy, from_outside, by_close_and_open};

// The application lets go of the window; the click alone holds it.
class WindowTitleEnding : public testing::TestWithParam<window_ending> {
  protected:
    void SetUp() override {
        window_ = zo_window_new("w");
        test::enable_title_buttons(window_);
        zo_window_open(window_);
        zo_window_show(window_);
        test::run_tasks();
        toplevel_ = test::toplevel_named("w");
        ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(toplevel_); }));
        test::settle_desktop();
    }

    void TearDown() override {
        if (window_) zo_window_destroy(window_);
        test::run_tasks();
    }

    void click(const char* style_class) {
        test::click(test::find_class(toplevel_, style_class));
        EXPECT_TRUE(test::turn_until([&] { return calls_ > 0; })) << style_class;
        test::run_tasks();
        EXPECT_EQ(calls_, 1);
    }

    void end(zo_window_ptr window) {
        ++calls_;
        window_.reset();
        GetParam()(window);
        window_ = window;
    }

    zo_window_ptr window_;
    GtkWidget* toplevel_ = nullptr;
    int calls_ = 0;
};

TEST_P(WindowTitleEnding, FromAPlainCallback) {
    zo_window_set_window_exit_app_request_callback(window_, [this](zo_window_ptr w) { end(w); });
    click("title-exit");
    EXPECT_EQ(test::state_of(window_).opened, GetParam() == by_close_and_open);
}

TEST_P(WindowTitleEnding, FromTheCloseRequestThatAgrees) {
    zo_window_set_window_close_request_callback(window_, [this](zo_window_ptr w) {
        end(w);
        return false;
    });
    click("title-close");
    // What was agreed to was the end of the tree that is gone.
    EXPECT_EQ(test::state_of(window_).opened, GetParam() == by_close_and_open);
}

TEST_P(WindowTitleEnding, FromTheCloseRequestThatVetoes) {
    zo_window_set_window_close_request_callback(window_, [this](zo_window_ptr w) {
        end(w);
        return true;
    });
    click("title-close");
    EXPECT_EQ(test::state_of(window_).opened, GetParam() == by_close_and_open);
}

TEST_P(WindowTitleEnding, FromThePhotoHandler) {
    zo_window_set_save_to_photo_handler(window_, [this](zo_window_ptr w, GdkPixbuf* photo) {
        end(w);
        EXPECT_GT(gdk_pixbuf_get_width(photo), 0);
    });
    click("title-shoot");
}

TEST_P(WindowTitleEnding, FromTheMenuHandler) {
    zo_window_set_menu_create_handler(window_, [this](zo_window_ptr w, GtkGrid* grid) {
        end(w);
        gtk_grid_attach(grid, test::block(20, 20), 0, 0, 1, 1);
    });
    click("title-menu");
    EXPECT_TRUE(test::toplevels("tool-menu").empty());
}

TEST_P(WindowTitleEnding, FromTheHideCallback) {
    zo_window_set_window_hide_callback(window_, [this](zo_window_ptr w) {
        if (!calls_) end(w);
    });
    click("title-minimize");
}

INSTANTIATE_TEST_SUITE_P(Each, WindowTitleEnding, testing::ValuesIn(endings));

}  // namespace
