// SPDX-License-Identifier: MIT
// ours_panel WINDOWS: the panel with a button for each window.
#include <desktop/desktop.hpp>
#include <panel/ours_window.hpp>

#include <cstdlib>
#include <vector>

namespace {

GtkWidget* shown_panel(const zo_window_manager_ptr& manager) {
    zo_window_manager_open(manager);
    zo_window_manager_show(manager);
    bench::turn_until([] { return bench::toplevel("zo-manager") != nullptr; });
    GtkWidget* const panel = bench::toplevel("zo-manager");
    bench::turn_until_drawn(panel);
    return panel;
}

void retitle(const std::vector<zo_window_ptr>& windows, GtkWidget* panel) {
    const int count = static_cast<int>(windows.size());
    const bench::step step("retitle", bench::retitles);
    for (int i = 0; i < bench::retitles; ++i) {
        zo_window_set_title(windows[static_cast<std::size_t>(count - 1 - i % bench::in_sight)],
                            bench::title(i + 3));
        bench::turn();
        bench::frame(panel);
    }
}

void join(std::vector<zo_window_ptr>& windows, const zo_window_manager_ptr& manager, GtkWidget* panel) {
    std::vector<zo_window_ptr> more;
    for (int i = 0; i < bench::joining; ++i)
        more.push_back(bench::joined_window(static_cast<int>(windows.size()) + i, {}));
    bench::turn();
    const bench::step step("join", bench::joining);
    for (const zo_window_ptr& window : more) zo_window_set_window_manager(window, manager);
    bench::turn();
    bench::frame(panel);
    windows.insert(windows.end(), more.begin(), more.end());
}

}  // namespace

int main(int, char** arguments) {
    const int count = std::atoi(arguments[1]);
    bench::begin();
    zo_ui_init();
    const zo_window_manager_ptr manager = zo_window_manager_new("");
    zo_window_manager_set_keep_extended(manager, true);
    std::vector<zo_window_ptr> windows;
    for (int i = 0; i < count; ++i) windows.push_back(bench::joined_window(i, manager));
    bench::turn();
    GtkWidget* panel = nullptr;
    {
        const bench::step step("show", count);
        panel = shown_panel(manager);
    }
    bench::frame(panel);
    retitle(windows, panel);
    join(windows, manager, panel);
    {
        const bench::step step("hide", count);
        zo_window_manager_hide(manager);
        bench::turn();
    }
    {
        const bench::step step("close", count);
        zo_window_manager_close(manager);
        bench::turn();
    }
    bench::leave();
}
