// SPDX-License-Identifier: MIT
// A panel across the top of the screen: a launcher at its left, a clock at its right.
#include <zo_ui/zo_ui.hpp>

#include <ctime>
#include <memory>

namespace {

GtkWidget* button_new(const char* label, std::function<void()> action) {
    GtkWidget* button = gtk_button_new_with_label(label);
    zo_ui_connect_button_click_signal(button, [action](GtkWidget*) { action(); });
    return button;
}

// Shows the time once a second, as long as the label lives.
void tick(GtkWidget* label, const std::shared_ptr<unsigned long>& timeout) {
    const std::time_t now = std::time(nullptr);
    char text[16];
    std::strftime(text, sizeof text, "%H:%M:%S", std::localtime(&now));
    gtk_label_set_text(GTK_LABEL(label), text);
    *timeout = zo_system_service_timeout([label, timeout] { tick(label, timeout); }, 1000, "clock", __LINE__);
}

GtkWidget* clock_new() {
    GtkWidget* label = gtk_label_new(nullptr);
    const auto timeout = std::make_shared<unsigned long>(0);
    zo_ui_connect_widget_destroy(label, [timeout] { zo_system_service_timeout_clear(*timeout); });
    tick(label, timeout);
    return label;
}

}  // namespace

int main(int argc, char** argv) {
    gtk_init(&argc, &argv);
    zo_ui_init();
    GError* error = nullptr;
    zo_theme_set_theme_path(zo_theme_get_system_path());
    zo_theme_use_theme("brevant", error);
    if (error) g_printerr("no theme: %s\n", error->message);
    g_clear_error(&error);

    zo_window_manager_ptr panel = zo_window_manager_new("");
    zo_window_manager_set_keep_extended(panel, true);  // else it slides away at once
    zo_window_manager_on_open(panel, [](zo_window_manager_ptr opened) {
        const auto launch = [] { g_spawn_command_line_async("x-terminal-emulator", nullptr); };
        zo_window_manager_add_widget_left(opened, button_new("Terminal", launch));
        zo_window_manager_add_widget_left(opened,
                                          button_new("Quit", [opened] { zo_window_manager_close(opened); }));
        zo_window_manager_add_widget_right(opened, clock_new());
    });
    zo_window_manager_on_close(panel, [](zo_window_manager_ptr) { gtk_main_quit(); });
    zo_window_manager_open(panel);
    zo_window_manager_show(panel);
    gtk_main();
    zo_window_manager_destroy(panel);
    zo_system_service_end();
    zo_theme_uninit();
}
