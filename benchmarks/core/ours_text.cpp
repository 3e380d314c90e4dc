// SPDX-License-Identifier: MIT
#include <core/access.hpp>

#include <zo_ui/zo_window.hpp>

#include <glib.h>

int main(int count, char** arguments) {
    const zo_window_ptr window = zo_window_new("");
    const auto let_tasks_run = [] {
        while (g_main_context_iteration(nullptr, FALSE)) {
        }
    };
    zo_window_set_title(window, bench::texts[1]);
    let_tasks_run();
    return bench::access_main(
        count, arguments,
        [&](int) {
            thread_local std::string text;
            zo_window_get_title(window, text);
            bench::use(text);
        },
        [&](int turn) { zo_window_set_title(window, bench::texts[turn % 2]); }, let_tasks_run);
}
