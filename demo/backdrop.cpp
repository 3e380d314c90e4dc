// SPDX-License-Identifier: MIT
#include "backdrop.hpp"

#include <zo_ui/zo_ui.hpp>

namespace {

bool draw(GtkWidget* widget, cairo_t* cairo) {
    const double width = gtk_widget_get_allocated_width(widget);
    const double height = gtk_widget_get_allocated_height(widget);
    cairo_pattern_t* ground = cairo_pattern_create_linear(0, 0, width * 0.4, height);
    cairo_pattern_add_color_stop_rgb(ground, 0.0, 0.33, 0.49, 0.53);
    cairo_pattern_add_color_stop_rgb(ground, 0.55, 0.53, 0.64, 0.62);
    cairo_pattern_add_color_stop_rgb(ground, 1.0, 0.83, 0.79, 0.68);
    cairo_set_source(cairo, ground);
    cairo_paint(cairo);
    cairo_pattern_destroy(ground);
    for (int hill = 0; hill < 3; ++hill) {
        const double base = height * (0.72 + 0.1 * hill);
        cairo_move_to(cairo, 0, height);
        cairo_line_to(cairo, 0, base);
        cairo_curve_to(cairo, width * (0.2 + 0.1 * hill), base - height * 0.16, width * (0.45 - 0.08 * hill),
                       base + height * 0.1, width * 0.7, base - height * 0.05);
        cairo_curve_to(cairo, width * 0.85, base - height * 0.14, width * 0.95, base, width,
                       base - height * 0.02);
        cairo_line_to(cairo, width, height);
        cairo_set_source_rgba(cairo, 0.10, 0.26, 0.30, 0.16 + 0.06 * hill);
        cairo_fill(cairo);
    }
    return true;
}

}  // namespace

GtkWidget* demo::show_backdrop() {
    GtkWidget* window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_window_set_type_hint(GTK_WINDOW(window), GDK_WINDOW_TYPE_HINT_DESKTOP);
    gtk_window_set_decorated(GTK_WINDOW(window), FALSE);
    gtk_window_set_accept_focus(GTK_WINDOW(window), FALSE);
    gtk_window_set_default_size(GTK_WINDOW(window), zo_ui_screen_width(), zo_ui_screen_height());
    gtk_window_move(GTK_WINDOW(window), zo_ui_screen_x(), zo_ui_screen_y());
    gtk_widget_set_app_paintable(window, TRUE);
    zo_ui_connect_on_draw_signal(window, draw);
    gtk_widget_show_all(window);
    return window;
}
