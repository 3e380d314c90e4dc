// SPDX-License-Identifier: MIT
#include "support/loop.hpp"

#include <glib.h>

#include <cstdlib>

std::chrono::milliseconds test::patience() {
    const char* const given = std::getenv("ZO_TEST_PATIENCE");
    return std::chrono::milliseconds(given ? std::atoi(given) : 20000);
}

bool test::turn_until(const std::function<bool()>& done, std::chrono::milliseconds limit) {
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!done()) {
        if (std::chrono::steady_clock::now() > end) return false;
        // A timeout wakes the loop, since what `done` looks at need not be an event of the loop.
        GSource* wake = g_timeout_source_new(5);
        g_source_set_callback(
            wake, [](gpointer) -> gboolean { return G_SOURCE_REMOVE; }, nullptr, nullptr);
        g_source_attach(wake, nullptr);
        g_main_context_iteration(nullptr, TRUE);
        g_source_destroy(wake);
        g_source_unref(wake);
    }
    return true;
}

void test::run_tasks() {
    while (g_main_context_pending(nullptr)) g_main_context_iteration(nullptr, FALSE);
}
