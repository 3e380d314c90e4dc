// SPDX-License-Identifier: MIT
// The trace of tasks, which is on or off for a whole process. This program counts what the library takes from
// the allocator and from the clock.
#include "core/child_process.hpp"
#include "core/posting.hpp"
#include "support/loop.hpp"

#include <glib.h>
#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>

#include <dlfcn.h>
#include <atomic>
#include <cstdlib>
#include <new>
#include <regex>
#include <sstream>
#include <vector>

namespace {

std::atomic<long> allocations{0};
std::atomic<long> clock_reads{0};

}  // namespace

// In place of the standard library's and of GLib's own, for the library as well.

[[gnu::noinline]] void* operator new(std::size_t size) {
    ++allocations;
    if (void* place = std::malloc(size)) return place;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* place) noexcept { std::free(place); }
[[gnu::noinline]] void operator delete(void* place, std::size_t) noexcept { std::free(place); }

extern "C" __attribute__((visibility("default"))) gint64 g_get_monotonic_time() {
    static const auto real = reinterpret_cast<gint64 (*)()>(dlsym(RTLD_NEXT, "g_get_monotonic_time"));
    ++clock_reads;
    return real();
}

namespace {

struct cost {
    long allocations;
    long clock_reads;
    bool operator==(const cost&) const = default;
};
std::ostream& operator<<(std::ostream& out, const cost& c) {
    return out << c.allocations << " allocations, " << c.clock_reads << " readings of the clock";
}

cost cost_of_tasks(int count) {
    int run = 0;
    const cost before{allocations, clock_reads};
    for (int i = 0; i < count; ++i) zo_system_service_exec([&run] { ++run; }, "here", 7);
    while (run < count) g_main_context_iteration(nullptr, TRUE);
    return {allocations - before.allocations, clock_reads - before.clock_reads};
}

const test::scene quiet("quiet", [] {
    cost_of_tasks(100);
    cost_of_tasks(100);  // the queue now has room for them
    std::ostringstream text;
    text << cost_of_tasks(100);
    test::say(text.str());
});

const test::scene tasks("tasks", [] {
    zo_system_service_exec([] { test::post([] {}); }, "src/here.cpp", 7);
    zo_system_service_exec([] { throw 1; }, "src/thrower.cpp", 8);
    const auto turn = [] {
        try {
            test::run_tasks();
        } catch (int) {
        }
    };
    turn();
    turn();
    bool due = false;
    zo_system_service_timeout([&due] { due = true; }, 30, "src/later.cpp", 9);
    test::turn_until([&due] { return due; });
    test::say(std::to_string(cost_of_tasks(1).clock_reads));
});

using environment = std::vector<std::pair<std::string, std::string>>;

std::vector<std::string> traced_lines(const environment& variables) {
    const test::child_end end = test::play("tasks", variables);
    EXPECT_EQ(end.status, 0);
    std::vector<std::string> lines;
    std::istringstream input(end.output);
    for (std::string line; std::getline(input, line);)
        if (line.find(" waited ") != std::string::npos) lines.push_back(line);
    return lines;
}

TEST(ServiceTrace, OffItIsFree) {
    EXPECT_EQ(test::play("quiet", {{"G_MESSAGES_DEBUG", ""}}).output,
              "0 allocations, 0 readings of the clock\n");
    EXPECT_EQ(test::play("quiet", {{"G_MESSAGES_DEBUG", "zo_ui Gtk"}}).output,
              "0 allocations, 0 readings of the clock\n");
    EXPECT_NE(test::play("quiet", {{"G_MESSAGES_DEBUG", "zo_core"}}).output,
              "0 allocations, 0 readings of the clock\n")
        << "or nothing is counted at all";
}

TEST(ServiceTrace, OffItSaysNothing) { EXPECT_TRUE(traced_lines({{"G_MESSAGES_DEBUG", ""}}).empty()); }

TEST(ServiceTrace, OnItTellsOfEachTaskItsPosterItsWaitAndItsRun) {
    for (const char* domains : {"zo_core", "all", "Gtk zo_core"}) {
        const std::vector<std::string> lines = traced_lines({{"G_MESSAGES_DEBUG", domains}});
        const std::vector<std::string> posters{"task of src/here.cpp:7", "task of src/thrower.cpp:8",
                                               "task of test:1", "timeout of src/later.cpp:9",
                                               "task of here:7"};
        ASSERT_EQ(lines.size(), posters.size());
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const std::regex form(".*zo_core-DEBUG: .*: " + posters[i] +
                                  R"( waited \d+\.\d{3} ms, ran \d+\.\d{3} ms)");
            EXPECT_TRUE(std::regex_match(lines[i], form)) << lines[i];
        }
        std::smatch waited;
        ASSERT_TRUE(std::regex_search(lines[3], waited, std::regex(R"(waited (\d+)\.)")));
        EXPECT_GE(std::stoi(waited[1]), 30) << "a timeout waits for its time";
    }
}

const test::scene sources("sources", [] {
    zo_system_service_timeout_clear(test::after(1000, [] {}));  // makes all of them
    for (guint id = 1; id < 10; ++id) {
        GSource* const source = g_main_context_find_source_by_id(nullptr, id);
        if (source && g_source_get_name(source)) test::say(g_source_get_name(source));
    }
});

TEST(ServiceTrace, ItsSourcesAreToldByTheirNames) {
    EXPECT_EQ(test::play("sources").output, "zo tasks\nzo tasks beside drawing\nzo timeouts\n");
}

}  // namespace
