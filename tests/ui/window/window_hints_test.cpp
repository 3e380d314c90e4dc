// SPDX-License-Identifier: MIT
// What the desktop's window manager is told, as another program reads it.
#include "support/desktop.hpp"
#include "support/ui.hpp"

// After GoogleTest: Xlib's macros have common names.
#include <gdk/gdkx.h>

namespace {

// The requests for another state of a window that reach its window manager from now on.
class state_requests {
  public:
    explicit state_requests(GtkWidget* toplevel)
        : window_(gdk_x11_window_get_xid(gtk_widget_get_window(toplevel))) {
        gdk_display_sync(gdk_display_get_default());
        XSelectInput(display_, DefaultRootWindow(display_), SubstructureNotifyMask);
        XSync(display_, False);
    }
    ~state_requests() { XCloseDisplay(display_); }
    state_requests(const state_requests&) = delete;
    state_requests& operator=(const state_requests&) = delete;

    int count() const {
        gdk_display_sync(gdk_display_get_default());
        XSync(display_, False);
        const Atom state = XInternAtom(display_, "_NET_WM_STATE", False);
        int requests = 0;
        for (XEvent event; XCheckTypedEvent(display_, ClientMessage, &event);)
            requests += event.xclient.window == window_ && event.xclient.message_type == state;
        return requests;
    }

  private:
    Display* const display_ = XOpenDisplay(nullptr);
    const Window window_;
};

class WindowHints : public testing::Test {
  protected:
    void SetUp() override {
        if (test::session_wm() == "none") return;
        window_ = std::make_unique<test::scoped_window>("hints");
        toplevel_ = window_->show();
    }

    // Once, of a window that the window manager is done with.
    void expect_all_hints_at_once(int round) {
        settle();
        const std::string state = test::x_property(toplevel_, "_NET_WM_STATE");
        for (const char* hint :
             {"_NET_WM_STATE_ABOVE", "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"})
            EXPECT_NE(state.find(hint), std::string::npos) << hint << ", round " << round << ": " << state;
    }

    void expect_all_hints() {
        for (const char* hint :
             {"_NET_WM_STATE_ABOVE", "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"})
            EXPECT_TRUE(test::x_property_becomes(toplevel_, "_NET_WM_STATE", hint)) << hint;
    }

    // As the server has it: GTK believes that what it maps is on screen.
    bool is_viewable() {
        return test::turn_until(
            [&] {
                return test::run_command({"xwininfo", "-id", test::x_window(toplevel_)}).find("IsViewable") !=
                       std::string::npos;
            },
            std::chrono::seconds(5));
    }

    // fluxbox answers no question about frames.
    void settle() {
        EXPECT_TRUE(is_viewable());
        if (test::session_wm() != "fluxbox") test::settle_desktop();
    }

    std::unique_ptr<test::scoped_window> window_;
    GtkWidget* toplevel_ = nullptr;
};

TEST_F(WindowHints, AreSetWhenTheWindowIsShown) {
    if (toplevel_) expect_all_hints();
}

// Window managers take the state of a withdrawn window away; one that learns of its new showing meanwhile
// takes the new hints away, too, or never shows the window again.
TEST_F(WindowHints, SurviveAHideFollowedByAShowAtOnce) {
    for (int round = 0; toplevel_ && round < 30; ++round) {
        for (int pairs = 0; pairs <= round % 3; ++pairs) {
            zo_window_hide(*window_);
            zo_window_show(*window_);
        }
        test::run_tasks();
        EXPECT_TRUE(test::turn_until([&] { return test::is_on_screen(toplevel_); }));
        expect_all_hints_at_once(round);
        ASSERT_TRUE(is_viewable()) << "round " << round;
    }
}

// A showing that the window manager had not heard of is no reason to lose the next.
TEST_F(WindowHints, SurviveAHideOfAWindowThatJustCame) {
    for (int round = 0; toplevel_ && round < 20; ++round) {
        zo_window_close(*window_);
        zo_window_open(*window_);
        zo_window_show(*window_);
        zo_window_hide(*window_);
        zo_window_show(*window_);
        test::run_tasks();
        toplevel_ = test::toplevel_named("hints");
        EXPECT_TRUE(test::turn_until([&] { return test::is_on_screen(toplevel_); }));
        expect_all_hints();
        ASSERT_TRUE(is_viewable()) << "round " << round;
    }
}

// Each hint is that of its own flag.
TEST_F(WindowHints, AreLeftOutWhereTheirFlagIsOff) {
    const struct {
        const char* hint;
        bool (*set)(zo_window_ptr, bool);
    } rows[] = {{"_NET_WM_STATE_ABOVE", zo_window_set_keep_above},
                {"_NET_WM_STATE_SKIP_TASKBAR", zo_window_set_skip_taskbar_hint},
                {"_NET_WM_STATE_SKIP_PAGER", zo_window_set_skip_pager}};
    for (const auto& off : rows) {
        if (!toplevel_) return;
        zo_window_close(*window_);
        for (const auto& row : rows) row.set(*window_, row.hint != off.hint);
        toplevel_ = window_->show();
        settle();
        for (const auto& row : rows)
            EXPECT_TRUE(test::x_property_becomes(toplevel_, "_NET_WM_STATE", row.hint, row.hint != off.hint))
                << row.hint << " without " << off.hint;
        EXPECT_TRUE(test::x_property_becomes(toplevel_, "_NET_WM_STATE", "_NET_WM_STATE_BELOW", false));
        zo_window_hide(*window_);
        zo_window_show(*window_);
        test::run_tasks();
        settle();
        EXPECT_TRUE(test::x_property_becomes(toplevel_, "_NET_WM_STATE", off.hint, false))
            << off.hint << " after hiding";
    }
}

TEST_F(WindowHints, AskForAFrameOnlyWhereTheDesktopDecorates) {
    if (!toplevel_) return;
    const auto frame_wanted = [&] {
        const std::string hints = test::x_property(toplevel_, "_MOTIF_WM_HINTS");
        return hints.find("0x2, 0x0, 0x0, 0x0, 0x0") == std::string::npos;
    };
    EXPECT_FALSE(frame_wanted());
    zo_window_close(*window_);
    zo_window_set_use_system_decoration(*window_, true);
    toplevel_ = window_->show();
    EXPECT_TRUE(frame_wanted());
    EXPECT_TRUE(test::x_property_becomes(toplevel_, "_NET_FRAME_EXTENTS", "= 0, 0, 0, 0", false));
}

// Not whenever it is mapped later, as when its workspace comes back: the user may have changed them since.
TEST_F(WindowHints, AreAskedForOnceAfterAHiding) {
    if (!toplevel_) return;
    zo_window_hide(*window_);
    test::run_tasks();
    EXPECT_TRUE(test::x_property_becomes(toplevel_, "WM_STATE", "Normal", false));
    zo_window_show(*window_);
    test::run_tasks();
    settle();
    gdk_display_sync(gdk_display_get_default());
    test::run_tasks();  // the window's own mapping
    const state_requests requests(toplevel_);
    GdkEvent* const mapped = gdk_event_new(GDK_MAP);
    mapped->any.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(toplevel_)));
    gtk_widget_event(toplevel_, mapped);
    gdk_event_free(mapped);
    EXPECT_EQ(requests.count(), 0);
}

}  // namespace
