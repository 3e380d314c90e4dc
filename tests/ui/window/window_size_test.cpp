// SPDX-License-Identifier: MIT
// The window is as large as its content, as far as the work area goes.
#include "support/desktop.hpp"
#include "ui/window/tree_support.hpp"

namespace {

class WindowSize : public testing::Test {
  protected:
    // Opens the window with one child of this size.
    void open(int width, int height) {
        toplevel_ = window_.open();
        scroll_ = GTK_SCROLLED_WINDOW(test::find_class(toplevel_, "window-scroll"));
        child_ = test::block(width, height);
        zo_window_add_content_child(window_, child_, false, false, 0, false);
    }

    void show() {
        zo_window_show(window_);
        ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(toplevel_); }));
    }

    int height_of(const char* style_class) {
        GtkWidget* part = test::find_class(toplevel_, style_class);
        return part ? gtk_widget_get_allocated_height(part) : 0;
    }

    int least_width() { return gtk_scrolled_window_get_min_content_width(scroll_); }
    int least_height() { return gtk_scrolled_window_get_min_content_height(scroll_); }

    bool window_is(int width, int height) {
        return gdk_window_get_width(gtk_widget_get_window(toplevel_)) == width &&
               gdk_window_get_height(gtk_widget_get_window(toplevel_)) == height;
    }

    void allocate(const char* style_class, int width, int height) {
        GtkAllocation allocation{0, 0, width, height};
        GtkWidget* part = test::find_class(toplevel_, style_class);
        gtk_widget_show(part);
        g_signal_emit_by_name(part, "size-allocate", &allocation);
    }

    test::scoped_window window_{"w"};
    GtkWidget* toplevel_ = nullptr;
    GtkWidget* child_ = nullptr;
    GtkScrolledWindow* scroll_ = nullptr;
};

struct first_size {
    int width = 0;
    int height = 0;
    static gboolean note(GtkWidget* toplevel, GdkEvent*, first_size* size) {
        gtk_window_get_size(GTK_WINDOW(toplevel), &size->width, &size->height);
        return FALSE;
    }
};

// The user sees no small window first.
TEST_F(WindowSize, IsRightWhenTheWindowAppears) {
    open(500, 300);
    first_size seen;
    g_signal_connect(toplevel_, "map-event", G_CALLBACK(first_size::note), &seen);
    show();
    EXPECT_EQ(seen.width, 500);
    EXPECT_EQ(seen.height, 300 + height_of("title-event-box"));
    EXPECT_EQ(least_width(), 500);
    EXPECT_EQ(least_height(), 300);
}

TEST_F(WindowSize, FollowsTheContentWhileShown) {
    open(500, 300);
    show();
    for (int step = 1; step <= 20; ++step) {
        const int width = 500 + step * 10;
        const int height = 300 + step * 5;
        gtk_widget_set_size_request(child_, width, height);
        ASSERT_TRUE(test::turn_until([&] { return window_is(width, height + height_of("title-event-box")); }))
            << "step " << step;
        EXPECT_EQ(gtk_widget_get_allocated_width(child_), width);
        EXPECT_EQ(gtk_widget_get_allocated_height(child_), height);
    }
}

TEST_F(WindowSize, FollowsAChildThatIsAddedWhileShown) {
    open(500, 300);
    show();
    zo_window_add_content_child(window_, test::block(640, 100), false, false, 0, false);
    EXPECT_TRUE(test::turn_until([&] { return window_is(640, 400 + height_of("title-event-box")); }));
}

TEST_F(WindowSize, FollowsWhileHiddenToo) {
    open(500, 300);
    show();
    zo_window_hide(window_);
    test::run_tasks();
    gtk_widget_set_size_request(child_, 720, 310);
    show();
    EXPECT_TRUE(test::turn_until([&] { return window_is(720, 310 + height_of("title-event-box")); }));
}

TEST_F(WindowSize, OfTooLargeContentIsTheWorkAreaAndTheContentScrolls) {
    zo_window_set_enable_content_ads(window_, true);
    open(zo_ui_workarea_width() * 2, zo_ui_workarea_height() * 2);
    show();
    const int others = height_of("title-event-box") + height_of("window-ads-container");
    EXPECT_GT(height_of("window-ads-container"), 0);
    ASSERT_TRUE(test::turn_until([&] { return least_height() == zo_ui_workarea_height() - others; }));
    EXPECT_EQ(least_width(), zo_ui_workarea_width());
    test::settle_desktop();
    EXPECT_LE(gdk_window_get_width(gtk_widget_get_window(toplevel_)), zo_ui_workarea_width());
    EXPECT_LE(gdk_window_get_height(gtk_widget_get_window(toplevel_)), zo_ui_workarea_height());
    for (GtkAdjustment* side :
         {gtk_scrolled_window_get_hadjustment(scroll_), gtk_scrolled_window_get_vadjustment(scroll_)})
        EXPECT_GT(gtk_adjustment_get_upper(side), gtk_adjustment_get_page_size(side));
}

// Without scrolling nothing holds the content back.
TEST_F(WindowSize, WithoutAScrollerFollowsTheContent) {
    zo_window_set_use_scroll(window_, false);
    open(500, 300);
    show();
    gtk_widget_set_size_request(child_, 620, 340);
    EXPECT_TRUE(test::turn_until([&] { return window_is(620, 340 + height_of("title-event-box")); }));
}

TEST_F(WindowSize, TheScrollerTakesTheSmallerOfContentAndWorkArea) {
    zo_window_set_enable_content_ads(window_, true);
    open(10, 10);
    const int screen_width = zo_ui_workarea_width();
    const int screen_height = zo_ui_workarea_height();
    allocate("window-title", 300, 21);
    allocate("window-ads-container", 300, 13);
    allocate("window-content", 111, 222);
    EXPECT_EQ(least_width(), 111);
    EXPECT_EQ(least_height(), 222);
    allocate("window-content", screen_width, screen_height - 34);
    EXPECT_EQ(least_width(), screen_width);
    EXPECT_EQ(least_height(), screen_height - 34);
    allocate("window-content", screen_width + 1, screen_height - 33);
    EXPECT_EQ(least_width(), screen_width);
    EXPECT_EQ(least_height(), screen_height - 34);
}

// Nothing else takes of its height.
TEST_F(WindowSize, WithoutTitleAndAdvertisementTheScrollerTakesTheWholeWorkArea) {
    zo_window_set_use_built_in_title(window_, false);
    open(10, 10);
    const int screen_height = zo_ui_workarea_height();
    allocate("window-content", 111, screen_height);
    EXPECT_EQ(least_height(), screen_height);
    allocate("window-content", 111, screen_height + 1);
    EXPECT_EQ(least_height(), screen_height);
}

TEST_F(WindowSize, IsNeverNegative) {
    open(10, 10);
    allocate("window-title", 300, zo_ui_workarea_height() + 50);
    allocate("window-content", 111, 222);
    EXPECT_EQ(least_height(), 0);
    EXPECT_EQ(least_width(), 111);
}

// What a former tree measured does not bound the next one.
TEST_F(WindowSize, ForgetsTheTreeThatWasClosed) {
    open(10, 10);
    allocate("window-title", 300, zo_ui_workarea_height() - 100);
    zo_window_close(window_);
    open(10, 10);
    allocate("window-content", 111, 222);
    EXPECT_EQ(least_height(), 222);
}

// Ends the window in the turn of the loop that follows the layout.
struct ending {
    zo_window_ptr window;
    bool (*end)(zo_window_ptr);
    bool asked = false;

    static void at_layout(GtkWidget*, GtkAllocation*, ending* self) {
        if (!std::exchange(self->asked, true)) g_idle_add_full(G_PRIORITY_HIGH, run, self, nullptr);
    }
    static gboolean run(gpointer self) {
        static_cast<ending*>(self)->end(static_cast<ending*>(self)->window);
        return G_SOURCE_REMOVE;
    }
};

// Between the layout and the work that it left behind, the window goes.
TEST_F(WindowSize, LeavesNothingBehindWhenTheWindowGoes) {
    const auto from_outside = [](zo_window_ptr) {
        gtk_widget_destroy(test::toplevel_named("w"));
        return true;
    };
    bool (*const ends[])(zo_window_ptr) = {from_outside, zo_window_close, zo_window_destroy};
    for (const auto end : ends) {
        open(500, 300);
        show();
        ending ended{window_, end};
        GtkWidget* content = test::find_class(toplevel_, "window-content");
        g_signal_connect_after(content, "size-allocate", G_CALLBACK(ending::at_layout), &ended);
        gtk_widget_set_size_request(child_, 800, 600);
        EXPECT_TRUE(test::turn_until([&] { return !test::toplevel_named("w"); }));
        test::run_tasks();
        EXPECT_FALSE(test::state_of(window_).opened);
    }
}

}  // namespace
