// SPDX-License-Identifier: MIT
#include "code_regions.hpp"
#include "controls.hpp"
#include "page.hpp"
#include "texts.hpp"

#include <cmath>

using demo::_;

namespace {

// begin: redraws
// A widget that the ticker redraws as long as it lives. It draws by the
// clock: more frames make it smoother, not faster.
GtkWidget* pendulum_new(const std::shared_ptr<int>& frames) {
    GtkWidget* canvas = gtk_drawing_area_new();
    zo_ui_connect_on_draw_signal(canvas, [frames](GtkWidget* widget,
                                                  cairo_t* cairo) {
        ++*frames;
        const double width = gtk_widget_get_allocated_width(widget);
        const double height = gtk_widget_get_allocated_height(widget);
        const double seconds =
            static_cast<double>(g_get_monotonic_time()) / G_USEC_PER_SEC;
        const double angle = 0.9 * std::sin(seconds * 2.4);
        const double length = height * 0.7;
        const double x = width / 2 + length * std::sin(angle);
        const double y = height * 0.08 + length * std::cos(angle);
        GdkRGBA colour;
        gtk_style_context_get_color(gtk_widget_get_style_context(widget),
                                    GTK_STATE_FLAG_NORMAL, &colour);
        gdk_cairo_set_source_rgba(cairo, &colour);
        cairo_set_line_width(cairo, 3);
        cairo_move_to(cairo, width / 2, height * 0.08);
        cairo_line_to(cairo, x, y);
        cairo_stroke(cairo);
        cairo_arc(cairo, x, y, height * 0.08, 0, 2 * G_PI);
        cairo_fill(cairo);
        return false;
    });
    zo_ui_add_fps_widget(canvas);
    return canvas;
}

// Starts one more ticker, until the process ends.
void start_ticker(demo::workshop& shop, int rate) {
    zo_ui_set_fps(rate);
    shop.log.add("redraws", "a ticker of " + std::to_string(rate));
}
// end: redraws

void fill(demo::workshop& shop, GtkWidget* controls) {
    const auto frames = std::make_shared<int>(0);
    GtkWidget* canvas = pendulum_new(frames);
    gtk_widget_set_size_request(canvas, -1, 180);
    demo::add_class(canvas, "gallery-canvas");
    GtkWidget* card = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
    demo::add_class(card, "gallery-card");
    demo::append(card, canvas);
    demo::append(controls, card);
    demo::append(controls, demo::heading_new(
                               _("Start a ticker, redraws a second")));
    demo::append(
        controls,
        demo::buttons_new(
            {{"fps-5", "5", [&shop] { start_ticker(shop, 5); }},
             {"fps-30", "30", [&shop] { start_ticker(shop, 30); }},
             {"fps-60", "60", [&shop] { start_ticker(shop, 60); }}}));
    demo::append(controls,
                 demo::facts_new({{_("Frames drawn"), [frames] {
                                       return std::to_string(*frames);
                                   }}}));
    demo::append(
        controls,
        demo::note_new(
            _("Tickers add up, and stay until the demo ends. The widget "
              "leaves them when it is destroyed.")));
}

}  // namespace

const demo::page demo::redraws_page{
    "redraws",     N_("Look"),
    N_("Redraws"), N_("What moves is drawn again at a steady rate."),
    code::redraws, fill,
};
