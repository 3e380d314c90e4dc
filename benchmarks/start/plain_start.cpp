// SPDX-License-Identifier: MIT
// One window with a line of text, and no panel: what any program of the toolkit takes.
#include <desktop/desktop.hpp>

int main() {
    bench::begin();
    GtkWidget* window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_container_add(GTK_CONTAINER(window), gtk_label_new("Something to read"));
    gtk_widget_show_all(window);
    bench::turn_until_drawn(window);
    bench::leave();
}
