// SPDX-License-Identifier: MIT
// The library's windows refuse to stay maximised, in one exact case.
#include "support/desktop.hpp"
#include "ui/window/tree_support.hpp"

namespace {

struct rectangle {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const rectangle&) const = default;
};

std::ostream& operator<<(std::ostream& out, const rectangle& r) {
    return out << r.width << "x" << r.height << "+" << r.x << "+" << r.y;
}

rectangle place_of(GtkWidget* toplevel) {
    rectangle place;
    gtk_window_get_position(GTK_WINDOW(toplevel), &place.x, &place.y);
    gtk_window_get_size(GTK_WINDOW(toplevel), &place.width, &place.height);
    return place;
}

rectangle centred(const rectangle& size) {
    return {zo_ui_workarea_x() + (zo_ui_workarea_width() - size.width) / 2,
            zo_ui_workarea_y() + (zo_ui_workarea_height() - size.height) / 2, size.width, size.height};
}

void send_state(GtkWidget* toplevel, int changed, int now) {
    GdkEvent* event = gdk_event_new(GDK_WINDOW_STATE);
    event->window_state.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(toplevel)));
    event->window_state.changed_mask = static_cast<GdkWindowState>(changed);
    event->window_state.new_window_state = static_cast<GdkWindowState>(now);
    EXPECT_FALSE(gtk_widget_event(toplevel, event)) << "the event ends here";
    gdk_event_free(event);
}

void send_size(GtkWidget* toplevel, int width, int height) {
    GdkEvent* event = gdk_event_new(GDK_CONFIGURE);
    event->configure.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(toplevel)));
    event->configure.width = width;
    event->configure.height = height;
    gtk_widget_event(toplevel, event);
    gdk_event_free(event);
}

// A window of 420x... that stands away from the centre.
class WindowMaximise : public testing::Test {
  protected:
    void show(bool keep_above) {
        zo_window_set_keep_above(window_, keep_above);
        zo_window_set_resizable(window_, true);
        toplevel_ = window_.open();
        child_ = test::block(420, 210);
        zo_window_add_content_child(window_, child_, true, true, 0, false);
        zo_window_show(window_);
        ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(toplevel_); }));
        const auto wanted = keep_above ? GDK_WINDOW_STATE_FOCUSED | GDK_WINDOW_STATE_ABOVE
                                       : static_cast<int>(GDK_WINDOW_STATE_FOCUSED);
        if (managed()) {
            zo_window_activate(window_);
            ASSERT_TRUE(test::turn_until([&] { return (state() & wanted) == wanted; }));
        }
        test::settle_desktop();
        gtk_window_move(GTK_WINDOW(toplevel_), 30, 40);
        test::settle_desktop();
        before_ = place_of(toplevel_);
        g_signal_connect(toplevel_, "window-state-event", G_CALLBACK(note), &states_);
    }

    static bool managed() { return test::session_wm() != "none"; }

    int state() const { return gdk_window_get_state(gtk_widget_get_window(toplevel_)); }

    bool maximised() const { return state() & GDK_WINDOW_STATE_MAXIMIZED; }

    void ask(const char* change) {
        const std::string state = change + std::string(",maximized_vert,maximized_horz");
        test::run_command({"wmctrl", "-i", "-r", test::x_window(toplevel_), "-b", state});
    }

    static gboolean note(GtkWidget*, GdkEventWindowState* event, gpointer data) {
        static_cast<std::vector<std::pair<int, int>>*>(data)->emplace_back(event->changed_mask,
                                                                           event->new_window_state);
        return FALSE;
    }

    bool seen(int changed, int now) const {
        return std::count(states_.begin(), states_.end(), std::pair(changed, now)) > 0;
    }

    std::vector<std::pair<int, int>> states_;
    test::scoped_window window_{"w"};
    GtkWidget* toplevel_ = nullptr;
    GtkWidget* child_ = nullptr;
    rectangle before_;
};

TEST_F(WindowMaximise, AWindowKeptAboveComesBackCentredWithItsOldSize) {
    if (!managed()) return;
    show(true);
    for (int round = 0; round < 5; ++round) {
        states_.clear();
        ask("add");
        ASSERT_TRUE(test::turn_until([&] { return seen(4, 164); }));
        ASSERT_TRUE(test::turn_until([&] { return !maximised(); }));
        test::settle_desktop();
        EXPECT_FALSE(maximised());
        EXPECT_EQ(place_of(toplevel_), centred(before_));
        gtk_window_move(GTK_WINDOW(toplevel_), 30, 40);
        test::settle_desktop();
    }
}

TEST_F(WindowMaximise, AfterwardsTheWindowStaysWhereTheUserPutsIt) {
    if (!managed()) return;
    show(true);
    ask("add");
    ASSERT_TRUE(test::turn_until([&] { return seen(4, 164) && !maximised(); }));
    test::settle_desktop();
    gtk_window_move(GTK_WINDOW(toplevel_), 30, 40);
    test::settle_desktop();
    gtk_window_resize(GTK_WINDOW(toplevel_), before_.width + 200, before_.height + 100);
    ASSERT_TRUE(test::turn_until([&] { return place_of(toplevel_).width == before_.width + 200; }));
    test::settle_desktop();
    EXPECT_EQ(place_of(toplevel_), (rectangle{30, 40, before_.width + 200, before_.height + 100}));
}

TEST_F(WindowMaximise, AWindowNotKeptAboveStaysMaximised) {
    if (!managed()) return;
    show(false);
    ask("add");
    ASSERT_TRUE(test::turn_until([&] { return seen(4, 132); }));
    test::settle_desktop();
    EXPECT_TRUE(maximised());
    // And comes back where it was, when its user wants it.
    ask("remove");
    ASSERT_TRUE(test::turn_until([&] { return !maximised(); }));
    test::settle_desktop();
    EXPECT_EQ(place_of(toplevel_), before_);
}

// Taking back sets the position, which the toplevel's property shows under every window manager.
TEST_F(WindowMaximise, OnlyTheExactMaximisedStateIsTakenBack) {
    show(true);
    const auto taken_back = [&](int changed, int now) {
        gtk_window_set_position(GTK_WINDOW(toplevel_), GTK_WIN_POS_NONE);
        send_state(toplevel_, changed, now);
        GtkWindowPosition position = GTK_WIN_POS_NONE;
        g_object_get(toplevel_, "window-position", &position, nullptr);
        return position == GTK_WIN_POS_CENTER;
    };
    EXPECT_TRUE(taken_back(4, 164));
    for (const auto& [changed, now] :
         {std::pair(4, 132), std::pair(4, 36), std::pair(4, 4), std::pair(4, 160), std::pair(4, 165),
          std::pair(4, 420), std::pair(5, 164), std::pair(132, 164), std::pair(36, 164), std::pair(0, 164)})
        EXPECT_FALSE(taken_back(changed, now)) << changed << " " << now;
}

TEST_F(WindowMaximise, ARealStateIsTakenBackForTheSameReasonOnly) {
    if (!managed()) return;
    show(false);
    ask("add");
    ASSERT_TRUE(test::turn_until([&] { return seen(4, 132); }));
    send_state(toplevel_, 4, 132);
    test::settle_desktop();
    EXPECT_TRUE(maximised());
    send_state(toplevel_, 4, 164);
    EXPECT_TRUE(test::turn_until([&] { return !maximised(); }));
}

TEST_F(WindowMaximise, AWindowUnmaximisedByItselfIsNotCentred) {
    show(true);
    send_state(toplevel_, 4, 160);
    test::settle_desktop();
    EXPECT_EQ(place_of(toplevel_), before_);
    send_state(toplevel_, 4, 164);
    send_state(toplevel_, 128, 32);
    test::settle_desktop();
    EXPECT_EQ(place_of(toplevel_), before_) << "before the maximising is undone";
    send_state(toplevel_, 4, 160);
    test::settle_desktop();
    EXPECT_EQ(place_of(toplevel_), centred(before_));
}

// The un-maximised size comes after the state, and may differ in one direction alone.
TEST_F(WindowMaximise, TheFirstSizeAfterTheStateIsCentred) {
    show(true);
    const rectangle sizes[] = {{0, 0, before_.width + 200, before_.height},
                               {0, 0, before_.width, before_.height + 100}};
    for (const rectangle& size : sizes) {
        send_state(toplevel_, 4, 164);
        send_state(toplevel_, 4, 160);
        send_size(toplevel_, size.width, size.height);
        test::settle_desktop();
        const rectangle place = centred(size);
        EXPECT_EQ(place_of(toplevel_), (rectangle{place.x, place.y, before_.width, before_.height}));
    }
}

// The size was the old one already when the maximising was undone.
TEST_F(WindowMaximise, ALaterSizeLeavesTheWindowInItsPlace) {
    show(true);
    send_state(toplevel_, 4, 164);
    send_state(toplevel_, 4, 160);
    test::settle_desktop();
    EXPECT_EQ(place_of(toplevel_), centred(before_));
    gtk_window_move(GTK_WINDOW(toplevel_), 30, 40);
    test::settle_desktop();
    gtk_window_resize(GTK_WINDOW(toplevel_), before_.width + 200, before_.height + 100);
    ASSERT_TRUE(test::turn_until([&] { return place_of(toplevel_).width == before_.width + 200; }));
    test::settle_desktop();
    EXPECT_EQ(place_of(toplevel_), (rectangle{30, 40, before_.width + 200, before_.height + 100}));
}

}  // namespace
