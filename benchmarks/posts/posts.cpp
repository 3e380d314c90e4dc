// SPDX-License-Identifier: MIT
#include <posts/posts.hpp>

#include <support/measure.hpp>

#include <glib.h>
#include <algorithm>
#include <atomic>
#include <boost/make_shared.hpp>
#include <chrono>
#include <cstdlib>
#include <string_view>
#include <thread>
#include <vector>

namespace {

using bench::handle;
using poster = std::function<void(const handle&)>;

std::atomic<long> ran{0};
std::atomic<double> ran_at{0};

constexpr long batch = 1000;
constexpr std::chrono::microseconds falls_asleep(200);  // in this time the loop does

void turn_until(long tasks) {
    while (ran.load(std::memory_order_relaxed) < tasks) g_main_context_iteration(nullptr, TRUE);
}

// What the last task of a batch does: it posts the next one, if there is one. Null when others post.
const std::function<void()>* post_next = nullptr;

void post_from_loop(const handle& object, long tasks, const poster& post) {
    long posted = 0;
    const std::function<void()> post_batch = [&] {
        for (const long end = std::min(posted + batch, tasks); posted < end; ++posted) post(object);
    };
    post_next = &post_batch;
    post_batch();
    turn_until(tasks);
    post_next = nullptr;
}

void post_from_threads(const handle& object, long tasks, int posters, const poster& post) {
    std::vector<std::thread> threads;
    for (int thread = 0; thread < posters; ++thread)
        threads.emplace_back([&] {
            const handle own = object;
            for (long one = 0; one < tasks / posters; ++one) post(own);
        });
    turn_until(tasks);
    for (std::thread& thread : threads) thread.join();
}

void print_latency(const handle& object, long tasks, bool is_asleep, const poster& post) {
    std::vector<double> waited;
    std::thread other([&] {
        for (long one = 0; one < tasks; ++one) {
            if (is_asleep) std::this_thread::sleep_for(falls_asleep);
            const double posted = bench::wall_us();
            post(object);
            while (ran.load(std::memory_order_acquire) <= one) std::this_thread::yield();
            waited.push_back(ran_at - posted);
        }
    });
    turn_until(tasks);
    other.join();
    std::sort(waited.begin(), waited.end());
    bench::print("p50_us", waited[waited.size() / 2]);
    bench::print("p99_us", waited[waited.size() * 99 / 100]);
}

bool measures_latency = false;

}  // namespace

void bench::run(const handle& object) {
    *object += 1;
    if (measures_latency) ran_at = wall_us();
    const long now = ran.load(std::memory_order_relaxed) + 1;
    ran.store(now, std::memory_order_release);
    if (post_next && now % batch == 0) (*post_next)();
}

int bench::posts_main(int count, char** arguments, const std::function<void(const handle&)>& post) {
    if (count != 3) return 64;
    const std::string_view from = arguments[1];
    const long tasks = std::atol(arguments[2]);
    const handle object = boost::make_shared<int>(0);
    g_main_context_acquire(nullptr);
    if (from == "busy" || from == "asleep") {
        measures_latency = true;
        print_latency(object, tasks, from == "asleep", post);
    } else {
        const double begun = wall_us();
        const double begun_cpu = cpu_us();
        if (from == "loop")
            post_from_loop(object, tasks, post);
        else
            post_from_threads(object, tasks, std::atoi(arguments[1]), post);
        const auto done = static_cast<double>(tasks);
        print("tasks_per_s", done / (wall_us() - begun) * 1e6);
        print("tasks_per_cpu_s", done / (cpu_us() - begun_cpu) * 1e6);
    }
    g_main_context_release(nullptr);
    return *object == tasks ? 0 : 1;
}
