// SPDX-License-Identifier: MIT
#include <core/access.hpp>

#include <zo_ui/zo_window.hpp>

int main(int count, char** arguments) {
    const zo_window_ptr window = zo_window_new("");
    return bench::access_main(
        count, arguments,
        [&](int) {
            bool value = zo_window_get_keep_above(window);
            bench::use(value);
        },
        [&](int turn) { zo_window_set_keep_above(window, turn % 2); });
}
