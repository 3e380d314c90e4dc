// SPDX-License-Identifier: MIT
// Eight threads at once, one of them GTK's with error traps of its own, half of them asking for windows that
// die.
#include "support/loop.hpp"
#include "support/main.hpp"

#include <gtest/gtest.h>
#include <zo_ui/platform/linux.hpp>
#include <zo_ui/zo_ui.hpp>

#include "platform/foreign_window.hpp"
#include "platform/x_client.hpp"

#include <gdk/gdkx.h>
#include <unistd.h>

#include <atomic>
#include <thread>

namespace {

const test::preparation toolkit([](int* argc, char*** argv) { return gtk_init_check(argc, argv) != FALSE; });

// Everything that the module can be asked about a window that may be gone at any moment. False if a result is
// wrong.
bool ask_about(Display* display, Window window) {
    std::string name = "before", res_name, res_class;
    bool right = true;
    const Window top = get_top_window(display, window);
    get_named_window(display, top);
    if (get_window_class(display, window, res_name, res_class)) right &= res_name == "a" && res_class == "B";
    right &= get_window_name(display, window, name) ? name == "name" : name == "before";
    const int pid = getWindowPid(display, window);
    return right && (pid == 0 || pid == 4711);
}

// Asks for windows while another connection makes and destroys them.
void ask_for_dying_windows(const std::atomic<bool>& stop, std::atomic<int>& wrong) {
    const test::x_client asking;
    test::x_client owner;
    while (!stop) {
        const Window window = owner.make();
        owner.set_text(window, "WM_NAME", "STRING", "name");
        owner.set_text(window, "WM_CLASS", "STRING", std::string("a\0B\0", 4));
        owner.set_longs(window, "_NET_WM_PID", "CARDINAL", {4711});
        owner.destroy_soon(window);
        wrong += !ask_about(asking, window);
        wrong += !ask_about(asking, window);
    }
}

void ask_on_own_connections(const std::atomic<bool>& stop, std::atomic<int>& wrong, Window dead) {
    while (!stop) {
        unsigned long window = 99;
        std::string title, res_name, res_class;
        int pid = 99;
        if (getActiveWindowInfo(window, title, res_name, res_class, pid))
            wrong += window == 0 || (pid == 4712 ? title != "restless" : pid != getpid());
        else
            wrong += window != 0 || pid > 0;
        getActiveWindow();
        wrong += !setActiveWindow(dead);
        wrong += !HideWindow(dead);
    }
}

// One turn of GTK's thread, on GDK's own connection: GDK's traps see GDK's errors, and only these.
void turn_of_gtk(GdkDisplay* gdk, Window dead) {
    Display* display = gdk_x11_display_get_xdisplay(gdk);
    EXPECT_TRUE(ask_about(display, dead));
    gdk_x11_display_error_trap_push(gdk);
    EXPECT_TRUE(ask_about(display, dead));
    EXPECT_EQ(gdk_x11_display_error_trap_pop(gdk), 0);
    gdk_x11_display_error_trap_push(gdk);
    XUnmapWindow(display, dead);
    EXPECT_TRUE(ask_about(display, dead));
    EXPECT_EQ(gdk_x11_display_error_trap_pop(gdk), BadWindow);
    getActiveWindow(display);
    test::run_tasks();
}

TEST(Threads, EightAtOnceBesideGtk) {
    const test::counted_errors errors;
    test::x_client owner;
    const Window dead = owner.make_dead();
    const test::foreign_window restless({"restless", "title=restless", "class=a,B", "pid=4712"});
    ASSERT_NE(restless.id(), 0U);
    GtkWidget* window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_widget_show_all(window);

    std::atomic<bool> stop{false};
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) threads.emplace_back([&] { ask_for_dying_windows(stop, wrong); });
    for (int i = 0; i < 3; ++i) threads.emplace_back([&] { ask_on_own_connections(stop, wrong, dead); });
    for (int turn = 0; turn < 300; ++turn) {
        gtk_window_set_title(GTK_WINDOW(window), std::to_string(turn).c_str());
        turn_of_gtk(gdk_display_get_default(), dead);
    }
    stop = true;
    for (std::thread& thread : threads) thread.join();
    gtk_widget_destroy(window);
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(errors.count(), 0);
}

}  // namespace
