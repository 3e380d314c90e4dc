// SPDX-License-Identifier: MIT
// endurance DIVISOR: windows, notifications, joins and posts in very large numbers (divided by DIVISOR), on
// one process. Prints a line for each phase: how many, and by how many bytes of heap each one left the
// process larger. Ends with 1 when memory grows, a counter or a listener is left, or the X server keeps more
// of this client than before.
#include "support/output.hpp"

#include <zo_ui/zo_ui.hpp>

#include <X11/Xlib.h>
#include <gdk/gdkx.h>
#include <malloc.h>

// After Xlib, whose types it uses without saying so.
#include <X11/extensions/XRes.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <thread>
#include <vector>

namespace {

constexpr int warm_up_parts = 5;            // a fifth of each phase fills the toolkit's caches
constexpr double allowed_per_item = 4.0;    // bytes: a leaked handle or list entry is larger
constexpr double allowed_once = 1048576.0;  // bytes: what allocator and queue keep for the next burst
constexpr int posting_threads = 8;

bool failed = false;

void turn() {
    while (g_main_context_pending(nullptr)) g_main_context_iteration(nullptr, FALSE);
}

double heap() {
    malloc_trim(0);
    return static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd);
}

// What the server keeps for this client.
unsigned long x_resources() {
    Display* const display = gdk_x11_get_default_xdisplay();
    XSync(display, False);
    int count = 0;
    XResType* types = nullptr;
    GdkWindow* const own = gdk_display_get_default_group(gdk_display_get_default());
    XResQueryClientResources(display, GDK_WINDOW_XID(own), &count, &types);
    unsigned long sum = 0;
    for (int i = 0; i < count; ++i) sum += types[i].count;
    if (types) XFree(types);
    return sum;
}

void fail(const char* phase, const char* what) {
    std::printf("FAILED %s: %s\n", phase, what);
    failed = true;
}

void run_phase(const char* name, long count, const std::function<void(long)>& one) {
    const long warm = count / warm_up_parts;
    for (long i = 0; i < warm; ++i) one(i);
    turn();
    const double before = heap();
    for (long i = warm; i < count; ++i) one(i);
    turn();
    const double grown = heap() - before;
    const double per_item = grown / static_cast<double>(count - warm);
    std::printf("| %s | %ld | %.2f |\n", name, count, per_item);
    std::fflush(stdout);
    if (grown > allowed_once && per_item > allowed_per_item) fail(name, "memory grows");
}

void live_a_life(long i) {
    const zo_window_ptr window = zo_window_new(i % 2 ? "one" : "other");
    zo_window_set_title(window, "title");
    zo_window_open(window);
    zo_window_show(window);
    turn();
    zo_window_hide(window);
    zo_window_close(window);
    zo_window_destroy(window);
    turn();
}

void notify(long i, const zo_window_manager_ptr& manager) {
    const zo_notification_ptr notification = zo_notification_new();
    zo_notification_set_title(notification, "title");
    zo_notification_set_content(notification, "some <b>content</b>");
    if (i % 2) zo_notification_set_manager(notification, manager);
    if (i % 3 == 0) zo_notification_add_action(notification, "a", "Action", [](const std::string&) {});
    zo_notification_open_show(notification);
    turn();
    zo_notification_destroy(notification);
    turn();
}

void post_from_all_threads(long count) {
    std::atomic<long> run{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < posting_threads; ++t)
        threads.emplace_back([&run, count] {
            for (long i = 0; i < count / posting_threads; ++i)
                zo_system_service_exec([&run] { ++run; }, "endurance", 1);
        });
    const long all = count / posting_threads * posting_threads;
    for (long i = 0; run < all; ++i) {
        if (i % 64 == 0) live_a_life(i);
        g_main_context_iteration(nullptr, FALSE);
    }
    for (std::thread& thread : threads) thread.join();
}

void arm_timeouts(int count) {
    int left = count / 2;
    for (int i = 0; i < count; ++i) {
        const unsigned long id =
            zo_system_service_timeout([&left] { --left; }, i % 2 ? 1 : 1000000, "endurance", 1);
        if (i % 2 == 0) zo_system_service_timeout_clear(id);
    }
    while (left > 0) g_main_context_iteration(nullptr, TRUE);
}

// A panel for one phase after the other. It keeps the places of windows that left it until it is closed, so
// it is opened anew now and then.
class panel {
  public:
    panel() : manager_(zo_window_manager_new("")) { open(); }
    ~panel() {
        zo_window_manager_close(manager_);
        zo_window_manager_destroy(manager_);
        turn();
    }
    panel(const panel&) = delete;
    panel& operator=(const panel&) = delete;
    const zo_window_manager_ptr& manager() const { return manager_; }

    void open_anew() {
        zo_window_manager_close(manager_);
        open();
    }

  private:
    void open() {
        zo_window_manager_open(manager_);
        zo_window_manager_show(manager_);
        turn();
    }
    zo_window_manager_ptr manager_;
};

void run_phases(long divisor) {
    panel shown;
    run_phase("windows opened, shown, hidden, closed and destroyed", 100000 / divisor, live_a_life);
    run_phase("notifications shown and closed", 100000 / divisor,
              [&](long i) { notify(i, shown.manager()); });
    const zo_window_ptr joined = zo_window_new("joined");
    zo_window_open(joined);
    run_phase("joins and leaves", 10000 / divisor, [&](long i) {
        zo_window_set_window_manager(joined, shown.manager());
        zo_window_set_window_manager(joined, {});
        turn();
        if (i % 20 == 19) shown.open_anew();
    });
    zo_window_destroy(joined);
    run_phase("timeouts (in hundreds), every second one cleared", 1000 / divisor,
              [](long) { arm_timeouts(100); });
    run_phase("posts from 8 threads, with windows meanwhile (in thousands)", 1000 / divisor,
              [](long) { post_from_all_threads(1000); });
}

// A line for each list of listeners: "name\t- count".
void look_at_listeners() {
    const test::captured_output output;
    zo_ui_output_listeners_stats();
    for (const std::string& line : output.lines())
        if (!line.ends_with("- 0")) fail("listeners are left", line.c_str());
    std::printf("listeners left in %zu lists: 0\n", output.lines().size());
}

}  // namespace

int main(int argc, char** argv) {
    const long divisor = argc > 1 ? std::max(std::atol(argv[1]), 1L) : 1;
    gtk_init(&argc, &argv);
    zo_ui_init();
    {
        // What the toolkit makes once.
        const panel first;
        for (long i = 0; i < 6; ++i) notify(i, first.manager());
        live_a_life(0);
    }
    const unsigned long resources = x_resources();
    run_phases(divisor);
    for (const char* tag : {"[zo_window]", "[zo_window_manager]", "[zo_notification]"})
        if (zo_object_ref_count(tag) != 0) fail(tag, "objects are left");
    if (x_resources() > resources) fail("X server", "resources are left");
    std::printf("X resources of the client: %lu at the start, %lu at the end\n", resources, x_resources());
    look_at_listeners();
    return failed ? 1 : 0;
}
