// SPDX-License-Identifier: MIT
// The desktop asks a window to close, as Alt+F4 and a frame's button do: the application is asked, and GTK
// never destroys the window by itself.
#include "support/desktop.hpp"
#include "ui/window/event_log.hpp"

#include <gdk/gdkx.h>

namespace {

using handle = const zo_window_ptr&;

// What a window manager sends.
void send_close_message(GtkWidget* toplevel) {
    Display* display = gdk_x11_display_get_xdisplay(gtk_widget_get_display(toplevel));
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = gdk_x11_window_get_xid(gtk_widget_get_window(toplevel));
    event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", False));
    XSendEvent(display, event.xclient.window, False, NoEventMask, &event);
    XFlush(display);
}

// What GDK makes of it, without a server.
void deliver_delete_event(GtkWidget* toplevel) {
    GdkEvent* event = gdk_event_new(GDK_DELETE);
    event->any.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(toplevel)));
    gtk_main_do_event(event);
    gdk_event_free(event);
}

void close_by_command(GtkWidget* toplevel) {
    test::run_command({"wmctrl", "-i", "-c", test::x_window(toplevel)});
}

class WindowCloseRequest : public testing::TestWithParam<void (*)(GtkWidget*)> {
  protected:
    void SetUp() override {
        if (GetParam() == close_by_command && test::session_wm() == "none") return;
        toplevel = window.show();
        test::settle_desktop();
        log.watch(window);
    }

    void answer(bool veto) {
        zo_window_set_window_close_request_callback(window, [this, veto](handle w) {
            EXPECT_EQ(w, window.get());
            log.note("request", w);
            return veto;
        });
    }

    // Sends a request and waits until it has been asked or carried out.
    std::string told_after_request() {
        std::string told;
        GetParam()(toplevel);
        EXPECT_TRUE(test::turn_until([&] { return !(told += log.take_names()).empty(); }));
        test::run_tasks();
        const std::string more = log.take_names();
        return more.empty() ? told : told + " " + more;
    }

    GtkWidget* toplevel = nullptr;  // null where there is nobody to send requests
    test::event_log log;
    test::captured_output output;
    test::scoped_window window;
};

TEST_P(WindowCloseRequest, WithoutACallbackCloses) {
    if (!toplevel) return;
    EXPECT_EQ(told_after_request(), "close");
    EXPECT_EQ(test::state_of(window), test::state());
    EXPECT_FALSE(test::toplevel_named("w"));
    EXPECT_EQ(zo_window_instance_id(window), 1);
    EXPECT_TRUE(window.show());
}

TEST_P(WindowCloseRequest, IsAskedForAndCarriedOut) {
    if (!toplevel) return;
    answer(false);
    log.inside("request", [&](handle w) { EXPECT_TRUE(test::state_of(w).visible); });
    EXPECT_EQ(told_after_request(), "request close");
    EXPECT_EQ(test::state_of(window), test::state());
    EXPECT_EQ(zo_window_instance_id(window), 1);
}

TEST_P(WindowCloseRequest, IsVetoedEachTime) {
    if (!toplevel) return;
    answer(true);
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(told_after_request(), "request");
        EXPECT_EQ(test::state_of(window), (test::state{.opened = true, .visible = true}));
        EXPECT_EQ(test::toplevel_named("w"), toplevel);
        EXPECT_TRUE(test::is_on_screen(toplevel));
    }
    EXPECT_EQ(zo_window_instance_id(window), 0);
    answer(false);
    EXPECT_EQ(told_after_request(), "request close");
}

TEST_P(WindowCloseRequest, MayBeAnsweredByClosingAtOnce) {
    if (!toplevel) return;
    answer(false);
    log.inside("request", [](handle w) {
        zo_window_close(w);
        test::run_tasks();
    });
    EXPECT_EQ(told_after_request(), "request close");
    EXPECT_EQ(zo_window_instance_id(window), 1);
}

TEST_P(WindowCloseRequest, MayBeAnsweredByTheEnd) {
    if (!toplevel) return;
    answer(true);
    log.inside("request", [](handle w) {
        zo_window_destroy(w);
        test::run_tasks();
    });
    EXPECT_EQ(told_after_request(), "request close destroy");
}

TEST_P(WindowCloseRequest, TheCallbackMayTakeItselfAway) {
    if (!toplevel) return;
    answer(true);
    log.inside("request", [](handle w) { zo_window_set_window_close_request_callback(w, nullptr); });
    EXPECT_EQ(told_after_request(), "request");
    EXPECT_EQ(told_after_request(), "close");
}

// A dialog inside the request, and the user asks again meanwhile: each request is asked for.
TEST_P(WindowCloseRequest, MayComeAgainWhileItIsAsked) {
    if (!toplevel) return;
    answer(false);
    log.inside("request", [&](handle w) {
        GetParam()(toplevel);
        EXPECT_TRUE(test::turn_until([&] { return !test::state_of(w).opened; }));
    });
    GetParam()(toplevel);
    EXPECT_TRUE(test::turn_until([&] { return !test::state_of(window).opened; }));
    test::run_tasks();
    EXPECT_EQ(log.take_names(), "request request close");
    EXPECT_EQ(zo_window_instance_id(window), 1);
}

std::string sender_name(const testing::TestParamInfo<void (*)(GtkWidget*)>& tested) {
    constexpr const char* names[] = {"message", "event", "command"};
    return names[tested.index];
}

INSTANTIATE_TEST_SUITE_P(By, WindowCloseRequest,
                         testing::Values(send_close_message, deliver_delete_event, close_by_command),
                         sender_name);

TEST(WindowClose, DoesNotAsk) {
    test::event_log log;
    test::scoped_window window;
    log.watch(window);
    zo_window_set_window_close_request_callback(window, [&](handle w) {
        log.note("request", w);
        return true;
    });
    window.open();
    zo_window_close(window);
    window.open();
    zo_window_destroy(window);
    test::run_tasks();
    EXPECT_EQ(log.take_names(), "open close open close destroy");
}

TEST(WindowClose, TheTitleButtonAsksTheSame) {
    for (const bool veto : {true, false}) {
        test::event_log log;
        test::scoped_window window;
        log.watch(window);
        zo_window_set_window_close_request_callback(window, [&](handle w) {
            log.note("request", w);
            return veto;
        });
        GtkWidget* toplevel = window.open();
        gtk_button_clicked(GTK_BUTTON(test::find_class(toplevel, "title-close")));
        EXPECT_EQ(log.take_names(), veto ? "open request" : "open request close");
        EXPECT_EQ(test::state_of(window).opened, veto);
    }
}

}  // namespace
