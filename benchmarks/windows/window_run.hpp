// SPDX-License-Identifier: MIT
// What every contender does: open windows one after the other while others are alive, destroy them, and do it
// again.
#pragma once

#include <gtk/gtk.h>
#include <functional>

namespace bench {

struct window_maker {
    std::function<GtkWidget*(int)> open;  // opens and shows a window with that number
    std::function<void(int)> destroy;
};

// `arguments[1]` windows are alive.
int run_windows(const window_maker& maker, char** arguments);

}  // namespace bench
