// SPDX-License-Identifier: MIT
// The drag target that the library never remembers, but would move.
#include "support/desktop.hpp"
#include "ui/window/tree_support.hpp"

#include <zo_ui/zo_window/window_drag_p.hpp>

namespace {

class WindowDragTarget : public testing::Test {
  protected:
    void SetUp() override {
        toplevel_ = window_.show();
        title_ = test::find_class(toplevel_, "title-event-box");
        test::settle_desktop();
    }

    void TearDown() override { zo::drag() = {}; }

    void move_to(double x, double y) {
        GdkEvent* event = gdk_event_new(GDK_MOTION_NOTIFY);
        event->motion.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(title_)));
        event->motion.x_root = x;
        event->motion.y_root = y;
        EXPECT_FALSE(gtk_widget_event(title_, event));
        gdk_event_free(event);
        test::settle_desktop();
    }

    void button(GdkEventType type, guint number) {
        GdkEvent* event = gdk_event_new(type);
        event->button.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(title_)));
        event->button.button = number;
        EXPECT_FALSE(gtk_widget_event(title_, event));
        gdk_event_free(event);
    }

    std::pair<int, int> where(GtkWidget* toplevel) {
        std::pair<int, int> place;
        gdk_window_get_origin(gtk_widget_get_window(toplevel), &place.first, &place.second);
        return place;
    }

    test::scoped_window window_{"w"};
    GtkWidget* toplevel_ = nullptr;
    GtkWidget* title_ = nullptr;
};

TEST_F(WindowDragTarget, IsNotRememberedByTheLibrary) {
    EXPECT_EQ(zo::drag().target, nullptr);
    const auto before = where(toplevel_);
    move_to(20, 30);
    EXPECT_EQ(where(toplevel_), before);
    gtk_widget_set_opacity(toplevel_, 0.5);
    button(GDK_BUTTON_RELEASE, 1);
    EXPECT_LT(gtk_widget_get_opacity(toplevel_), 0.6);
    EXPECT_EQ(zo::drag().target, nullptr);
}

TEST_F(WindowDragTarget, MotionMovesARememberedTarget) {
    test::scoped_window other("other");
    GtkWidget* target = other.show();
    test::settle_desktop();
    const auto before = where(toplevel_);
    zo::drag() = {target, -12.5, 7.25};
    move_to(200, 300);
    EXPECT_TRUE(test::turn_until([&] { return where(target) == std::pair(187, 307); }))
        << where(target).first << " " << where(target).second;
    EXPECT_EQ(where(toplevel_), before);
    EXPECT_EQ(zo::drag().target, target);
}

TEST_F(WindowDragTarget, MotionMovesNothingButAWindow) {
    const auto before = where(toplevel_);
    zo::drag().target = title_;
    move_to(200, 300);
    EXPECT_EQ(where(toplevel_), before);
}

TEST_F(WindowDragTarget, ReleaseForgetsTheTarget) {
    test::scoped_window other("other");
    GtkWidget* target = other.open();
    gtk_widget_show_all(gtk_bin_get_child(GTK_BIN(target)));
    gtk_widget_set_opacity(target, 0.5);
    zo::drag().target = target;
    button(GDK_BUTTON_RELEASE, 2);
    EXPECT_EQ(zo::drag().target, target) << "another button";
    EXPECT_FALSE(gtk_widget_get_visible(target));
    button(GDK_BUTTON_RELEASE, 1);
    EXPECT_EQ(zo::drag().target, nullptr);
    EXPECT_EQ(gtk_widget_get_opacity(target), 1.0);
    EXPECT_TRUE(gtk_widget_get_visible(target)) << "it is presented";
}

}  // namespace
