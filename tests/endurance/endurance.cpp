// SPDX-License-Identifier: MIT
// endurance DIVISOR: windows, notifications, joins, events and indicators in very large numbers (divided by
// DIVISOR), on one process, while eight threads post. Prints a line for each phase: how many, how many posts
// ran meanwhile, and by how many bytes of heap each one left the process larger. Ends with 1 when memory
// grows, a counter or a listener is left, or the X server keeps more of this client than before.
#include "endurance/lives.hpp"
#include "endurance/memory.hpp"
#include "endurance/posts.hpp"
#include "support/output.hpp"

#include <zo_ui/zo_ui.hpp>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>

namespace {

using namespace endurance;

constexpr long all_posts = 1000000;
constexpr long points = 10;         // at which the heap is looked at
constexpr long warm_up_parts = 2;   // of the length between two points; they fill the toolkit's caches
constexpr long turn_of_phase = 20;  // items after which every phase is again where it was: see run_phases

bool failed = false;

void fail(const std::string& where, const std::string& what) {
    std::printf("FAILED %s: %s\n", where.c_str(), what.c_str());
    failed = true;
}

// What a phase may leave behind: memory grows when both are exceeded.
struct allowance {
    double slope;  // bytes of heap for each item
    double once;   // bytes that caches, and blocks on their way between threads, take
};
constexpr allowance usual{1.0, 32768.0};  // a leaked list entry is larger
// The menu and the bus beneath an indicator leave 100 bytes of their own, in leaps; a leaked one is larger.
constexpr allowance with_bus{200.0, 262144.0};

struct phase {
    const char* name;
    long count;
    std::function<void(long)> one;
    allowance allowed = usual;
};

// Between two points: the count's share, in whole turns.
long part_of(const phase& it) {
    const long share = it.count / (points + warm_up_parts);
    return std::max((share + turn_of_phase - 1) / turn_of_phase, 1L) * turn_of_phase;
}

// Goes on with its share of the posts, which `budget` is for each item.
class runner {
  public:
    explicit runner(double budget) : budget_(budget) {}

    void run(const phase& it) {
        const long part = part_of(it), run_before = posts_.run();
        std::vector<point> seen;
        for (long i = 0; i < part * (points + warm_up_parts); ++i) {
            it.one(i);
            posts_.until(static_cast<long>(static_cast<double>(++done_) * budget_));
            if ((i + 1) % part != 0) continue;
            posts_.wait();
            turn();
            if ((i + 1) / part > warm_up_parts) seen.push_back({static_cast<double>(i), endurance::heap()});
        }
        const double slope = endurance::slope(seen), growth = endurance::growth(seen);
        std::printf("| %s | %ld | %ld | %.2f |\n", it.name, part * (points + warm_up_parts),
                    posts_.run() - run_before, slope);
        std::fflush(stdout);
        if (slope > it.allowed.slope && growth > it.allowed.once)
            fail(it.name, "memory grows, by " + std::to_string(static_cast<long>(growth)) + " bytes");
    }

  private:
    double budget_;
    long done_ = 0;
    posting_threads posts_;
};

void run_phases(long divisor) {
    panel shown;
    const zo_window_ptr joined = zo_window_new("joined");
    zo_window_open(joined);
    long received = 0, pushed = 0;
    zo_window_set_window_event_callback(
        joined, [&](const zo_window_ptr&, const zo_window_event_ptr&) { ++received; });
    const std::vector<phase> phases{
        {"windows opened, shown, hidden, closed and destroyed", 100000 / divisor, live_a_life},
        {"notifications shown and closed", 100000 / divisor, [&](long i) { notify(i, shown.manager()); }},
        {"joins and leaves", 10000 / divisor,
         [&](long i) {
             zo_window_set_window_manager(joined, shown.manager());
             zo_window_set_window_manager(joined, {});
             turn();
             if (i % turn_of_phase == turn_of_phase - 1) shown.open_anew();
         }},
        {"events of a window", 100000 / divisor,
         [&](long i) {
             zo_window_push_event(joined, zo_window_event_new(static_cast<int>(i)));
             ++pushed;
             turn();
         }},
        {"indicators shown and destroyed", 10000 / divisor, indicate, with_bus},
        {"timeouts (in hundreds), every second one cleared", 1000 / divisor,
         [](long) { arm_timeouts(100); }}};
    long all = 0;
    for (const phase& it : phases) all += part_of(it) * (points + warm_up_parts);
    {
        runner all_of_them(static_cast<double>(all_posts / divisor) / static_cast<double>(all));
        for (const phase& it : phases) all_of_them.run(it);
    }
    if (received != pushed) fail("events of a window", std::to_string(received) + " of them received");
    zo_window_destroy(joined);
    turn();
}

// A line for each list of listeners: "name\t- count".
void look_at_listeners() {
    constexpr std::size_t lists = 5;
    std::vector<std::string> lines;
    {
        const test::captured_output output;
        zo_ui_output_listeners_stats();
        lines = output.lines();
    }
    long left = 0;
    for (const std::string& line : lines) {
        const std::size_t at = line.rfind("- ");
        left += at == std::string::npos ? 1 : std::atol(line.c_str() + at + 2);
        if (!line.ends_with("\t- 0")) fail("listeners are left", line);
    }
    if (lines.size() != lists) fail("lists of listeners", std::to_string(lines.size()));
    std::printf("listeners left in %zu lists: %ld\n", lines.size(), left);
}

void look_at_objects() {
    for (const char* tag : {"[zo_window]", "[zo_window_manager]", "[zo_notification]", "[zo_window_event]",
                            "[zo_appindicator]"}) {
        const long left = zo_object_ref_count(tag);
        if (left != 0) fail(tag, std::to_string(left) + " objects are left");
    }
}

void look_at_x_resources(const endurance::x_resources& before) {
    const endurance::x_resources now = endurance::count_x_resources();
    for (const auto& [name, count] : now) {
        const auto place = before.find(name);
        if (count > (place == before.end() ? 0 : place->second)) fail("X server", name + " is left");
    }
    std::printf("X resources of the client at the start: %s\n", endurance::text_of(before).c_str());
    std::printf("X resources of the client at the end: %s\n", endurance::text_of(now).c_str());
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
        indicate(0);
    }
    const endurance::x_resources resources = endurance::count_x_resources();
    run_phases(divisor);
    look_at_objects();
    look_at_x_resources(resources);
    look_at_listeners();
    return failed ? 1 : 0;
}
