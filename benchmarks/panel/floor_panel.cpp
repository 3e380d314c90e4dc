// SPDX-License-Identifier: MIT
// floor_panel WINDOWS: the same panel in plain GTK calls.
#include <desktop/desktop.hpp>
#include <panel/floor_tree.hpp>

#include <cstdlib>
#include <vector>

using namespace floor_panel;

namespace {

void retitle(const std::vector<GtkWidget*>& buttons, GtkWidget* panel) {
    const int count = static_cast<int>(buttons.size());
    const bench::step step("retitle", bench::retitles);
    for (int i = 0; i < bench::retitles; ++i) {
        set_title(buttons[static_cast<std::size_t>(count - 1 - i % bench::in_sight)], bench::title(i + 3));
        bench::turn();
        bench::frame(panel);
    }
}

void join(GtkWidget* row, int count, GtkWidget* panel) {
    const bench::step step("join", bench::joining);
    std::vector<GtkWidget*> added;
    for (int i = 0; i < bench::joining; ++i)
        for (GtkWidget* padding : add_window(row, count + i)) added.push_back(padding);
    for (GtkWidget* padding : added) gtk_widget_show_all(padding);
    for (GtkWidget* padding : added) dim(padding);
    bench::turn();
    bench::frame(panel);
}

}  // namespace

int main(int, char** arguments) {
    const int count = std::atoi(arguments[1]);
    bench::begin();
    GtkWidget* panel = nullptr;
    GtkWidget* row = nullptr;
    std::vector<GtkWidget*> buttons;
    {
        const bench::step step("show", count);
        row = row_new();
        panel = panel_new(row);
        for (int i = 0; i < count; ++i) buttons.push_back(children(add_window(row, i).back()).front());
        for (GtkWidget* padding : children(row)) dim(padding);
        gtk_widget_show_all(panel);
        bench::turn_until_drawn(panel);
    }
    bench::frame(panel);
    retitle(buttons, panel);
    join(row, count, panel);
    {
        const bench::step step("hide", count);
        gtk_widget_hide(panel);
        bench::turn();
    }
    {
        const bench::step step("close", count);
        gtk_widget_destroy(panel);
        bench::turn();
    }
    bench::leave();
}
