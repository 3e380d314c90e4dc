// SPDX-License-Identifier: MIT
// Moving the window by its title bar, with a real pointer.
#include "ui/window/tool_menu_support.hpp"

namespace {

struct place {
    int x = 0;
    int y = 0;
    bool operator==(const place&) const = default;
};

std::ostream& operator<<(std::ostream& out, const place& p) { return out << "+" << p.x << "+" << p.y; }

class WindowDrag : public test::ToolMenu {
  protected:
    void show_at(int x, int y) {
        show([](GtkGrid* grid) { test::attach_button(grid, "Press", 0, 0); });
        zo_window_move(window_, x, y);
        EXPECT_TRUE(test::turn_until([&] { return where() == place{x, y}; }));
        test::settle_desktop();
    }

    place where() {
        place origin;
        gdk_window_get_origin(gtk_widget_get_window(toplevel_), &origin.x, &origin.y);
        return origin;
    }

    GtkWidget* label() { return test::find_class(toplevel_, "title-text"); }

    // The pointer is counted in the device's pixels, the window's place in logical ones.
    int scale() const { return gtk_widget_get_scale_factor(toplevel_); }

    // Presses on a widget's middle, drags, and lets go.
    void drag(GtkWidget* widget, int x, int y, int button = 1) {
        const test::point from = test::middle_of(widget);
        test::move_pointer(from.x, from.y);
        test::settle_desktop();
        test::press_button(button);
        test::settle_desktop();
        for (const int part : {4, 2, 1}) {
            test::move_pointer(from.x + scale() * x / part, from.y + scale() * y / part);
            test::settle_desktop();
        }
        test::release_button(button);
        test::settle_desktop();
    }

    void expect_at(int x, int y) {
        EXPECT_TRUE(test::turn_until(
            [&] {
                return where() == place{x, y};
            },
            std::chrono::seconds(5)))
            << where() << " instead of " << place{x, y};
    }
};

TEST_F(WindowDrag, MovesTheWindowExactlyAsFarAsThePointer) {
    show_at(300, 200);
    drag(label(), 123, 77);
    expect_at(423, 277);
    drag(label(), -200, -60);
    expect_at(223, 217);
}

// The bar beside the label is a handle, too.
TEST_F(WindowDrag, WorksFromTheEmptyBar) {
    zo_window_set_enable_title_close(window_, false);
    zo_window_set_enable_title_minimize(window_, false);
    show_at(300, 200);
    const test::point middle = test::middle_of(label());
    GtkWidget* box = test::find_class(toplevel_, "title-event-box");
    const int x = middle.x - scale() * gtk_widget_get_allocated_width(box) / 4;
    test::move_pointer(x, middle.y);
    test::press_button();
    test::settle_desktop();
    for (const int part : {1, 2}) {
        test::move_pointer(x + scale() * 20 * part, middle.y);
        test::settle_desktop();
    }
    test::release_button();
    expect_at(340, 200);
}

TEST_F(WindowDrag, IsNotDoneWhereItIsDisabled) {
    zo_window_set_drag_enabled(window_, false);
    show_at(300, 200);
    drag(label(), 60, 40);
    EXPECT_EQ(where(), (place{300, 200}));
    open_menu();
    test::click(label());
    EXPECT_TRUE(closes()) << "the tool menu is closed by a press all the same";
}

TEST_F(WindowDrag, NeedsTheFirstButton) {
    show_at(300, 200);
    drag(label(), 60, 40, 3);
    EXPECT_EQ(where(), (place{300, 200}));
}

TEST_F(WindowDrag, StartsOnNoButtonAndNotInTheContent) {
    show_at(300, 200);
    zo_window_set_window_close_request_callback(window_, [](zo_window_ptr) { return true; });
    drag(test::find_class(toplevel_, "title-close"), 60, 40);
    EXPECT_EQ(where(), (place{300, 200}));
    drag(content_, 60, 40);
    EXPECT_EQ(where(), (place{300, 200}));
}

// The handler that closes the menu was connected first, so the drag finds none.
TEST_F(WindowDrag, WithAToolMenuClosesItAndMoves) {
    show_at(300, 200);
    open_menu();
    drag(label(), 90, 50);
    EXPECT_EQ(menu(), nullptr);
    expect_at(390, 250);
}

TEST_F(WindowDrag, LeavesTheTitleBarsButtonsWorking) {
    show_at(300, 200);
    drag(label(), 40, 30);
    expect_at(340, 230);
    test::click(test::find_class(toplevel_, "title-minimize"));
    EXPECT_TRUE(test::turn_until([&] { return !test::state_of(window_).visible; }));
}

TEST_F(WindowDrag, LetsThePressGoOn) {
    show_at(300, 200);
    GtkWidget* box = test::find_class(toplevel_, "title-event-box");
    int seen = 0;
    const auto note = +[](GtkWidget*, GdkEvent*, gpointer count) -> gboolean {
        ++*static_cast<int*>(count);
        return TRUE;
    };
    for (const char* signal : {"button-press-event", "button-release-event", "motion-notify-event"})
        g_signal_connect(box, signal, G_CALLBACK(note), &seen);
    for (const GdkEventType type : {GDK_BUTTON_PRESS, GDK_BUTTON_RELEASE, GDK_MOTION_NOTIFY}) {
        GdkEvent* event = gdk_event_new(type);
        event->any.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(box)));
        if (type != GDK_MOTION_NOTIFY) event->button.button = 2;
        EXPECT_TRUE(gtk_widget_event(box, event));
        gdk_event_free(event);
    }
    EXPECT_EQ(seen, 3);
    g_signal_handlers_disconnect_by_data(box, &seen);
}

}  // namespace
