// SPDX-License-Identifier: MIT
#include <windows/window_run.hpp>

#include <desktop/desktop.hpp>
#include <desktop/manager.hpp>
#include <support/allocations.hpp>
#include <support/measure.hpp>
#include <support/x_requests.hpp>

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace {

constexpr int measured = 10;
constexpr unsigned quiet_ms = 40;  // two frames

// Two frames without anything to do. When they are over, what is to be drawn has been drawn.
void turn_for_two_frames() {
    bool over = false;
    const auto end = +[](gpointer flag) -> gboolean {
        *static_cast<bool*>(flag) = true;
        return G_SOURCE_REMOVE;
    };
    g_timeout_add_full(G_PRIORITY_LOW, quiet_ms, end, &over, nullptr);
    while (!over) g_main_context_iteration(nullptr, TRUE);
}

// Until the window manager has handled what was asked of it and the program has followed: another window may
// be drawn anew when one goes. The question is on a connection of its own, which is not counted.
void settle() {
    static Display* const asking = XOpenDisplay(nullptr);
    unsigned long before = 0;
    do {
        gdk_display_sync(gdk_display_get_default());
        before = bench::x_requests();
        bench::wait_for_manager(asking);
        XSync(asking, True);  // what else came of it is not kept
        turn_for_two_frames();
    } while (before != bench::x_requests());
}

struct cost {
    double cpu;
    unsigned long requests;
    unsigned long allocations;
};

cost cost_now() { return {bench::cpu_us(), bench::x_requests(), bench::allocations()}; }

cost operator-(const cost& a, const cost& b) {
    return {a.cpu - b.cpu, a.requests - b.requests, a.allocations - b.allocations};
}

cost cost_of_one(const bench::window_maker& maker, int number) {
    const cost before = cost_now();
    bench::turn_until_drawn(maker.open(number));
    maker.destroy(number);
    settle();
    return cost_now() - before;
}

template <typename Value>
Value median(const std::vector<cost>& costs, Value cost::*value) {
    std::vector<Value> values;
    for (const cost& each : costs) values.push_back(each.*value);
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void print_heap(const bench::window_maker& maker, int first, bool is_told) {
    const double before = bench::heap_bytes();
    for (int i = first; i < first + measured; ++i) bench::turn_until_drawn(maker.open(i));
    settle();
    const double opened = bench::heap_bytes();
    for (int i = first; i < first + measured; ++i) maker.destroy(i);
    settle();
    if (!is_told) return;
    bench::print("open_heap", (opened - before) / measured);
    bench::print("left_heap", (bench::heap_bytes() - before) / measured);
}

}  // namespace

int bench::run_windows(const window_maker& maker, char** arguments) {
    const int alive = std::atoi(arguments[1]) - 1;
    for (int i = 0; i < alive; ++i) {
        maker.open(i);
        if (i % measured == 0) turn();
    }
    settle();
    cost_of_one(maker, alive);  // what is loaded once
    std::vector<cost> costs;
    {
        const section counted;
        for (int i = 0; i < measured; ++i) costs.push_back(cost_of_one(maker, alive));
    }
    // The desktop may have a window drawn once more: the middle one tells.
    print("window_cpu_us", median(costs, &cost::cpu));
    print("window_x_requests", static_cast<double>(median(costs, &cost::requests)));
    print("window_allocations", static_cast<double>(median(costs, &cost::allocations)));
    print("operations", measured);
    for (const bool is_told : {false, true}) print_heap(maker, alive, is_told);
    leave();
}
