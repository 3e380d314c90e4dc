// SPDX-License-Identifier: MIT
#include "support/desktop.hpp"

#include "support/loop.hpp"
#include "support/ui.hpp"

#include <gtest/gtest.h>

// After GoogleTest: Xlib's macros have common names.
#include <gdk/gdkx.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct child {
    GPid pid = 0;
    int output = -1;
    bool ended = false;
    int status = 0;
};

void on_end(GPid pid, gint status, gpointer data) {
    auto& ended = *static_cast<child*>(data);
    ended.ended = true;
    ended.status = status;
    g_spawn_close_pid(pid);
}

std::string read_all(int file) {
    std::string text;
    char buffer[4096];
    for (ssize_t n = 0; (n = read(file, buffer, sizeof buffer)) > 0;)
        text.append(buffer, static_cast<std::size_t>(n));
    close(file);
    return text;
}

std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) text += word + " ";
    return text;
}

}  // namespace

std::string test::run_command(const std::vector<std::string>& command) {
    std::vector<char*> words;
    for (const std::string& word : command) words.push_back(const_cast<char*>(word.c_str()));
    words.push_back(nullptr);
    child started;
    GError* error = nullptr;
    const auto flags = static_cast<GSpawnFlags>(G_SPAWN_SEARCH_PATH | G_SPAWN_DO_NOT_REAP_CHILD);
    if (!g_spawn_async_with_pipes(nullptr, words.data(), nullptr, flags, nullptr, nullptr, &started.pid,
                                  nullptr, &started.output, nullptr, &error)) {
        ADD_FAILURE() << error->message;
        g_error_free(error);
        return {};
    }
    const guint watch = g_child_watch_add(started.pid, on_end, &started);
    if (!turn_until([&] { return started.ended; })) {
        ADD_FAILURE() << "does not end: " << joined(command);
        g_source_remove(watch);
        kill(started.pid, SIGKILL);
        waitpid(started.pid, nullptr, 0);
    }
    EXPECT_TRUE(WIFEXITED(started.status) && WEXITSTATUS(started.status) == 0)
        << "failed: " << joined(command);
    return read_all(started.output);
}

void test::move_pointer(int x, int y) {
    run_command({"xdotool", "mousemove", std::to_string(x), std::to_string(y)});
}

void test::press_button(int button) { run_command({"xdotool", "mousedown", std::to_string(button)}); }

void test::release_button(int button) { run_command({"xdotool", "mouseup", std::to_string(button)}); }

void test::click_at(int x, int y) {
    run_command({"xdotool", "mousemove", std::to_string(x), std::to_string(y), "click", "1"});
}

test::point test::middle_of(GtkWidget* widget) {
    GtkWidget* toplevel = gtk_widget_get_toplevel(widget);
    // A widget that was just added has its place after the next layout; until then GTK says -1.
    EXPECT_TRUE(turn_until([&] {
        GtkAllocation place{};
        gtk_widget_get_allocation(widget, &place);
        return place.x != -1 && is_on_screen(toplevel);
    }));
    int x = 0;
    int y = 0;
    gtk_widget_translate_coordinates(widget, toplevel, gtk_widget_get_allocated_width(widget) / 2,
                                     gtk_widget_get_allocated_height(widget) / 2, &x, &y);
    int origin_x = 0;
    int origin_y = 0;
    gdk_window_get_origin(gtk_widget_get_window(toplevel), &origin_x, &origin_y);
    const int scale = gtk_widget_get_scale_factor(widget);
    return {(origin_x + x) * scale, (origin_y + y) * scale};
}

void test::draw_again(GtkWidget* toplevel) {
    GdkFrameClock* clock = gtk_widget_get_frame_clock(toplevel);
    // The first frame may have begun before; a layout may ask for one more.
    for (int frames = 0; frames < 3; ++frames) {
        bool painted = false;
        const gulong handler = g_signal_connect_swapped(
            clock, "after-paint", G_CALLBACK(+[](bool* done) { *done = true; }), &painted);
        gdk_frame_clock_request_phase(clock, GDK_FRAME_CLOCK_PHASE_PAINT);
        EXPECT_TRUE(turn_until([&] { return painted; }));
        g_signal_handler_disconnect(clock, handler);
    }
}

void test::click(GtkWidget* widget) {
    const point middle = middle_of(widget);
    click_at(middle.x, middle.y);
}

void test::type_key(const std::string& key) { run_command({"xdotool", "key", key}); }

std::string test::x_window(GtkWidget* toplevel) {
    return std::to_string(gdk_x11_window_get_xid(gtk_widget_get_window(toplevel)));
}

namespace {

// Own connection: GDK's would swallow the answer.
bool window_manager_answers() {
    Display* display = XOpenDisplay(nullptr);
    const Atom extents = XInternAtom(display, "_NET_FRAME_EXTENTS", False);
    const Window asked = XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0);
    XSelectInput(display, asked, PropertyChangeMask);
    XEvent question{};
    question.xclient.type = ClientMessage;
    question.xclient.window = asked;
    question.xclient.message_type = XInternAtom(display, "_NET_REQUEST_FRAME_EXTENTS", False);
    question.xclient.format = 32;
    XSendEvent(display, DefaultRootWindow(display), False, SubstructureRedirectMask | SubstructureNotifyMask,
               &question);
    XFlush(display);
    bool answered = false;
    const bool in_time = test::turn_until([&] {
        XEvent event;
        while (XCheckTypedWindowEvent(display, asked, PropertyNotify, &event))
            answered |= event.xproperty.atom == extents;
        return answered;
    });
    XCloseDisplay(display);
    return in_time;
}

}  // namespace

void test::settle_desktop() {
    const bool managed = session_wm() != "none";
    for (int round = 0; round < 2; ++round) {
        gdk_display_sync(gdk_display_get_default());
        EXPECT_TRUE(!managed || window_manager_answers());
        run_tasks();
    }
    gdk_display_sync(gdk_display_get_default());
}

std::string test::x_property(GtkWidget* toplevel, const std::string& name) {
    return run_command({"xprop", "-id", x_window(toplevel), name});
}

bool test::x_property_becomes(GtkWidget* toplevel, const std::string& name, const std::string& text,
                              bool there) {
    return turn_until([&] { return (x_property(toplevel, name).find(text) != std::string::npos) == there; });
}
