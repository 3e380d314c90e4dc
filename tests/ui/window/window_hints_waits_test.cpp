// SPDX-License-Identifier: MIT
// What a hiding and a showing wait for: the window manager's answer to the one before, and nothing else.
// Where the window manager is halted, the test answers in its place.
#include "ui/window/halted_manager.hpp"

#include <zo_ui/platform/linux.hpp>

// After GoogleTest: Xlib's macros have common names.
#include <X11/Xutil.h>
#include <dlfcn.h>
#include <gdk/gdkx.h>
#include <poll.h>

#include <functional>

namespace {

// Who waits for GTK's connection alone, and not for ever, is the library.
int watched = -1;
int waits = 0;
std::function<void()> on_wait;

}  // namespace

// Stands before the C library's own of the same name.
extern "C" __attribute__((visibility("default"))) int poll(pollfd* descriptors, nfds_t count, int timeout) {
    static const auto real = reinterpret_cast<int (*)(pollfd*, nfds_t, int)>(dlsym(RTLD_NEXT, "poll"));
    if (count == 1 && timeout > 0 && descriptors->fd == watched) {
        ++waits;
        if (on_wait) on_wait();
    }
    return real(descriptors, count, timeout);
}

namespace {

class WindowHintsWaits : public testing::Test {
  protected:
    WindowHintsWaits() : toplevel_(window_.show()) {
        test::settle_desktop();
        watched = ConnectionNumber(gdk_x11_get_default_xdisplay());
        waits = 0;
    }
    ~WindowHintsWaits() override {
        watched = -1;
        on_wait = nullptr;
        XCloseDisplay(other_);
    }

    Window id() const { return gdk_x11_window_get_xid(gtk_widget_get_window(toplevel_)); }

    void set(const char* property, long value) const {
        const long values[] = {value, None};
        const Atom atom = XInternAtom(other_, property, False);
        XChangeProperty(other_, id(), atom, atom, 32, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(values), 2);
        XSync(other_, False);
    }

    // As openbox does with a window that it lets go.
    void delete_state() const {
        XDeleteProperty(other_, id(), XInternAtom(other_, "WM_STATE", False));
        XSync(other_, False);
    }

    void hide_and_show() const {
        zo_window_hide(window_);
        zo_window_show(window_);
        test::run_tasks();
    }

    Display* const other_ = XOpenDisplay(nullptr);
    test::scoped_window window_{"w"};
    GtkWidget* const toplevel_;
};

TEST_F(WindowHintsWaits, EndWithTheStateAndNoOtherProperty) {
    const test::halted_manager halted;
    on_wait = [this] {
        if (waits == 1)
            set("ZO_ANOTHER", 1);
        else
            delete_state();
    };
    hide_and_show();
    EXPECT_GE(waits, 2);
}

// An application may give a toplevel another X window.
TEST_F(WindowHintsWaits, AreForTheWindowThatTheToplevelHasNow) {
    gtk_widget_hide(toplevel_);
    gtk_widget_unrealize(toplevel_);
    gtk_widget_show(toplevel_);
    EXPECT_TRUE(test::turn_until([this] { return test::is_on_screen(toplevel_); }));
    test::settle_desktop();
    const test::halted_manager halted;
    waits = 0;
    on_wait = [this] { delete_state(); };
    hide_and_show();
    EXPECT_GE(waits, 1);
}

// Some window managers leave the state on a window that they have let go.
TEST_F(WindowHintsWaits, AreNotForAWindowThatIsWithdrawnAlready) {
    const test::halted_manager halted;
    set("WM_STATE", WithdrawnState);
    on_wait = [this] { delete_state(); };
    hide_and_show();
    EXPECT_EQ(waits, 0);
}

TEST_F(WindowHintsWaits, AreNotForAWindowThatSomebodyElseUnmapped) {
    EXPECT_TRUE(HideWindow(id()));
    EXPECT_TRUE(test::x_property_becomes(toplevel_, "WM_STATE", "Normal", false));
    test::settle_desktop();
    waits = 0;
    zo_window_hide(window_);
    test::run_tasks();
    EXPECT_EQ(waits, 0);
}

}  // namespace
