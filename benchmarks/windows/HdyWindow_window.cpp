// SPDX-License-Identifier: MIT
// HdyWindow_window ALIVE: a window with a title bar of its own and scrolled content.
#include <desktop/desktop.hpp>
#include <windows/window_run.hpp>

#include <handy.h>

#include <map>
#include <string>

namespace {

std::map<int, GtkWidget*> windows;

void on_clicked(GtkWidget*, gpointer) {}

GtkWidget* title_button(const char* tooltip, const char* style_class) {
    GtkWidget* button = gtk_button_new();
    for (const char* name : {"size-16", style_class})
        gtk_style_context_add_class(gtk_widget_get_style_context(button), name);
    gtk_widget_set_tooltip_text(button, tooltip);
    g_signal_connect(button, "clicked", G_CALLBACK(on_clicked), nullptr);
    return button;
}

GtkWidget* open(int number) {
    GtkWidget* window = hdy_window_new();
    gtk_window_set_type_hint(GTK_WINDOW(window), GDK_WINDOW_TYPE_HINT_DIALOG);
    gtk_window_set_keep_above(GTK_WINDOW(window), TRUE);
    gtk_window_set_skip_taskbar_hint(GTK_WINDOW(window), TRUE);
    gtk_window_set_skip_pager_hint(GTK_WINDOW(window), TRUE);
    gtk_window_set_position(GTK_WINDOW(window), GTK_WIN_POS_CENTER);
    GtkWidget* bar = hdy_header_bar_new();
    hdy_header_bar_set_title(HDY_HEADER_BAR(bar), ("Window " + std::to_string(number)).c_str());
    hdy_header_bar_pack_end(HDY_HEADER_BAR(bar), title_button("Close window", "title-close"));
    hdy_header_bar_pack_end(HDY_HEADER_BAR(bar), title_button("Minimize window", "title-minimize"));
    GtkWidget* scroll = gtk_scrolled_window_new(nullptr, nullptr);
    gtk_container_add(GTK_CONTAINER(scroll), gtk_label_new("Something to read"));
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
    gtk_box_pack_start(GTK_BOX(box), bar, FALSE, FALSE, 0);
    gtk_box_pack_start(GTK_BOX(box), scroll, TRUE, TRUE, 0);
    gtk_container_add(GTK_CONTAINER(window), box);
    gtk_widget_show_all(window);
    windows[number] = window;
    return window;
}

void destroy(int number) {
    gtk_widget_destroy(windows[number]);
    windows.erase(number);
}

}  // namespace

int main(int, char** arguments) {
    bench::begin();
    hdy_init();
    return bench::run_windows({open, destroy}, arguments);
}
