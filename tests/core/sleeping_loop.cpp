// SPDX-License-Identifier: MIT
#include "core/sleeping_loop.hpp"

#include <glib.h>

#include <atomic>
#include <future>
#include <thread>

namespace {

constexpr gint longest_milliseconds = 20000;

std::atomic<std::promise<void>*> first_sleep{nullptr};
std::atomic<bool> overslept{false};

// Stands in for the system's poll: tells that the loop is going to sleep, and never sleeps for ever.
gint watched_poll(GPollFD* files, guint count, gint timeout) {
    if (timeout == 0) return g_poll(files, count, 0);
    if (std::promise<void>* sleep = first_sleep.exchange(nullptr)) sleep->set_value();
    const gint limit = timeout < 0 ? longest_milliseconds : timeout;
    const gint woken = g_poll(files, count, limit);
    if (woken == 0 && timeout < 0) overslept = true;
    return woken;
}

}  // namespace

bool test::wakes_sleeping_loop(const std::function<void()>& wake, const std::function<bool()>& done) {
    std::promise<void> sleep;
    overslept = false;
    first_sleep = &sleep;
    const GPollFunc before = g_main_context_get_poll_func(nullptr);
    g_main_context_set_poll_func(nullptr, watched_poll);
    std::thread waker([&] {
        sleep.get_future().wait();
        wake();
    });
    while (!done() && !overslept) g_main_context_iteration(nullptr, TRUE);
    waker.join();
    g_main_context_set_poll_func(nullptr, before);
    return done() && !overslept;
}
