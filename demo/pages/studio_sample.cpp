// SPDX-License-Identifier: MIT
// The studio: a sample window with every title button, a tool menu, and a
// picture worth a photo.
#include "controls.hpp"
#include "texts.hpp"
#include "workshop.hpp"

#include <cmath>
#include <cstdio>

using demo::_;
using demo::N_;

namespace {

constexpr int canvas_width = 360;
constexpr int canvas_height = 250;

struct studio {
    demo::workshop* shop;
    GtkWidget* canvas =
        nullptr;  // these two are null while the window is closed
    GtkWidget* status = nullptr;
    double hue = 0.0;
    int petals = 9;
};

struct colour {
    double red, green, blue;
};

colour colour_at(double hue, double saturation, double value) {
    double red = 0;
    double green = 0;
    double blue = 0;
    gtk_hsv_to_rgb(hue - std::floor(hue), saturation, value, &red, &green,
                   &blue);
    return {red, green, blue};
}

void petal(cairo_t* cairo, double length, double width) {
    cairo_move_to(cairo, 0, 0);
    cairo_curve_to(cairo, length * 0.3, -width, length * 0.8, -width,
                   length, 0);
    cairo_curve_to(cairo, length * 0.8, width, length * 0.3, width, 0, 0);
}

bool draw(const studio& room, GtkWidget* widget, cairo_t* cairo) {
    const double width = gtk_widget_get_allocated_width(widget);
    const double height = gtk_widget_get_allocated_height(widget);
    const colour ground = colour_at(room.hue + 0.52, 0.62, 0.22);
    cairo_set_source_rgb(cairo, ground.red, ground.green, ground.blue);
    cairo_paint(cairo);
    cairo_translate(cairo, width / 2, height / 2);
    for (int ring = 3; ring >= 1; --ring)
        for (int i = 0; i < room.petals; ++i) {
            cairo_save(cairo);
            cairo_rotate(cairo,
                         2 * G_PI * (i + 0.5 * ring) / room.petals);
            petal(cairo, height * 0.155 * ring, height * 0.05 * ring);
            const colour c = colour_at(room.hue + 0.07 * ring + 0.02,
                                       0.78 - 0.16 * ring, 0.98);
            cairo_set_source_rgba(cairo, c.red, c.green, c.blue, 0.78);
            cairo_fill(cairo);
            cairo_restore(cairo);
        }
    cairo_arc(cairo, 0, 0, height * 0.035, 0, 2 * G_PI);
    cairo_set_source_rgb(cairo, ground.red, ground.green, ground.blue);
    cairo_fill(cairo);
    return false;
}

void say(studio& room, const std::string& text) {
    if (room.status)
        gtk_label_set_text(GTK_LABEL(room.status), text.c_str());
}

void redraw(studio& room) {
    if (room.canvas) gtk_widget_queue_draw(room.canvas);
}

// The widgets hold the room: a destroyed window lets its callbacks go
// before them.
void build_content(const std::shared_ptr<studio>& held,
                   const zo_window_ptr& window) {
    studio& room = *held;
    room.canvas = gtk_drawing_area_new();
    gtk_widget_set_size_request(room.canvas, canvas_width, canvas_height);
    zo_ui_connect_on_draw_signal(
        room.canvas, [&room](GtkWidget* widget, cairo_t* cairo) {
            return draw(room, widget, cairo);
        });
    room.status = demo::text_label(
        _("Pick a tool from the menu in the title bar."));
    gtk_label_set_ellipsize(GTK_LABEL(room.status), PANGO_ELLIPSIZE_END);
    zo_ui_connect_widget_destroy(
        room.canvas, [held] { held->canvas = held->status = nullptr; });
    zo_window_add_content_child(window, room.canvas, true, true, 0,
                                false);
    zo_window_add_content_child(window, room.status, false, false, 10,
                                false);
}

void fill_tool_menu(const std::shared_ptr<studio>& room, GtkGrid* grid) {
    struct tool {
        const char* name;
        const char* label;
        void (*use)(studio&);
    };
    static constexpr tool tools[] = {
        {"next-colour", N_("Next colour"),
         [](studio& r) { r.hue += 0.11; }},
        {"more-petals", N_("More petals"),
         [](studio& r) { r.petals += 2; }},
        {"fewer-petals", N_("Fewer petals"),
         [](studio& r) { r.petals = std::max(r.petals - 2, 3); }},
        {"start-again", N_("Start again"),
         [](studio& r) { r.hue = 0, r.petals = 9; }},
    };
    int row = 0;
    for (const tool& entry : tools) {
        GtkWidget* button = gtk_button_new_with_label(_(entry.label));
        gtk_widget_set_name(button, entry.name);
        gtk_widget_set_hexpand(button, TRUE);
        zo_ui_connect_button_click_signal(
            button, [room, &entry](GtkWidget*) {
                entry.use(*room);
                redraw(*room);
                room->shop->log.add("studio",
                                    std::string("menu: ") + entry.name);
                say(*room, _(entry.label));
            });
        gtk_grid_attach(grid, button, 0, row++, 1, 1);
    }
}

void save_photo(studio& room, GdkPixbuf* photo) {
    const std::string file =
        room.shop->photo_folder + "/zo-demo-photo.png";
    GError* error = nullptr;
    gdk_pixbuf_save(photo, file.c_str(), "png", &error, nullptr);
    if (error) std::remove(file.c_str());  // half a picture is none
    room.shop->log.add("studio",
                       error ? "photo: failed" : "photo: saved");
    say(room, error ? error->message
                    : _("The picture was saved as zo-demo-photo.png."));
    g_clear_error(&error);
}

// begin: title_bar
// Each button of the title bar asks the application.
void connect_title_bar(const zo_window_ptr& window,
                       const std::shared_ptr<studio>& room) {
    zo_window_set_menu_create_handler(
        window, [room](zo_window_ptr, GtkGrid* grid) {
            fill_tool_menu(room, grid);
        });
    zo_window_set_save_to_photo_handler(
        window, [room](zo_window_ptr, GdkPixbuf* photo) {
            save_photo(*room, photo);
        });
    zo_window_set_window_go_back_callback(window, [room](zo_window_ptr) {
        room->hue -= 0.11;
        redraw(*room);
        room->shop->log.add("studio", "back");
        say(*room, _("One colour back."));
    });
    zo_window_set_window_hint_request_callback(
        window, [room](zo_window_ptr) {
            room->shop->log.add("studio", "hint");
            say(*room, _("In the title bar: leave, help, photo; back, "
                         "menu, hide, close."));
        });
    zo_window_set_window_exit_app_request_callback(
        window, [room](zo_window_ptr) {
            room->shop->log.add("studio", "exit");
            demo::quit(*room->shop);
        });
}
// end: title_bar

}  // namespace

void demo::make_studio_window(workshop& shop) {
    const auto room = std::make_shared<studio>(studio{&shop});
    const zo_window_ptr window = shop.studio = zo_window_new("studio");
    zo_window_set_title(window, _("Studio"));
    for (const auto enable : {zo_window_set_enable_title_back,
                              zo_window_set_enable_title_exit,
                              zo_window_set_enable_title_menu,
                              zo_window_set_enable_title_hint,
                              zo_window_set_enable_title_save_to_photo})
        enable(window, true);
    log_life_cycle(shop, window, "studio");
    zo_window_set_window_open_callback(window, [room](zo_window_ptr w) {
        build_content(room, w);
        room->shop->log.add("studio", "open");
    });
    connect_title_bar(window, room);
}
