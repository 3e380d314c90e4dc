// SPDX-License-Identifier: MIT
// ours_window ALIVE
#include <desktop/desktop.hpp>
#include <windows/window_run.hpp>

#include <zo_ui/zo_ui.hpp>

#include <map>

namespace {

std::map<int, zo_window_ptr> windows;

GtkWidget* open(int number) {
    const zo_window_ptr window = zo_window_new("window" + std::to_string(number));
    GtkWidget* toplevel = nullptr;
    zo_window_set_title(window, "Window " + std::to_string(number));
    zo_window_set_window_open_callback(window, [&toplevel](const zo_window_ptr& self) {
        GtkWidget* label = gtk_label_new("Something to read");
        zo_window_add_content_child(self, label, false, false, 0, false);
        toplevel = gtk_widget_get_toplevel(label);
    });
    zo_window_open(window);
    zo_window_show(window);
    bench::turn_until([&toplevel] { return toplevel != nullptr; });
    zo_window_set_window_open_callback(window, nullptr);
    windows[number] = window;
    return toplevel;
}

void destroy(int number) {
    zo_window_destroy(windows[number]);
    windows.erase(number);
}

}  // namespace

int main(int, char** arguments) {
    bench::begin();
    zo_ui_init();
    return bench::run_windows({open, destroy}, arguments);
}
