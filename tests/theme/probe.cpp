// SPDX-License-Identifier: MIT
// What GTK makes of a theme, as lines of fields between tabs, for script/theme-lint:
//     theme_probe FOLDER THEME [--rtl] [--ink] [--pictures FOLDER]
//         rule    the selector of a widget that is there
//         ink     widget, states, colour, ground, pixels
//         box     widget, x, y, width, height, then left and right of its margin, border and padding
//         text    widget, what the text covers: x, y, width, height; and the same of its box's parent
#include "support/loop.hpp"
#include "theme/ink.hpp"
#include "theme/scene.hpp"
#include "theme/states.hpp"
#include "theme/walk.hpp"

#include <cstdio>
#include <cstring>
#include <iostream>

namespace {

struct options {
    bool rtl = false;
    bool ink = false;
    const char* pictures = nullptr;
};

void set_up(const options& chosen) {
    GtkSettings* settings = gtk_settings_get_default();
    // Without rims of letters, and with every style at its end at once.
    g_object_set(settings, "gtk-xft-antialias", chosen.pictures ? 1 : 0, "gtk-enable-animations", FALSE,
                 "gtk-theme-name", "Adwaita", nullptr);
    gtk_widget_set_default_direction(chosen.rtl ? GTK_TEXT_DIR_RTL : GTK_TEXT_DIR_LTR);
}

void print_ink(const std::vector<theme::situation>& all, const std::vector<theme::picture>& written,
               const std::vector<theme::picture>& blank) {
    for (std::size_t i = 0; i < all.size(); ++i) {
        const int scale = gtk_widget_get_scale_factor(all[i].widget);
        for (const theme::ink& found : theme::inks(written[i], blank[i], scale))
            std::printf("ink\t%s\t%s\t#%06x\t#%06x\t%d\n", theme::describe(all[i].widget).c_str(),
                        all[i].states.c_str(), found.colour, found.ground, found.pixels);
    }
}

void measure_ink() {
    const std::vector<theme::situation> all = theme::situations(theme::stages());
    const std::vector<theme::picture> written = theme::drawn(all);
    const theme::without_ink nothing;
    print_ink(all, written, theme::drawn(all));
}

void print_text(GtkWidget* toplevel, GtkWidget* label) {
    int x = 0;
    int y = 0;
    gtk_label_get_layout_offsets(GTK_LABEL(label), &x, &y);
    GtkAllocation own{};
    gtk_widget_get_allocation(label, &own);
    PangoRectangle covered{};
    pango_layout_get_pixel_extents(gtk_label_get_layout(GTK_LABEL(label)), &covered, nullptr);
    int left = 0;
    int top = 0;
    gtk_widget_translate_coordinates(label, toplevel, x - own.x + covered.x, y - own.y + covered.y, &left,
                                     &top);
    GtkWidget* const parent = gtk_widget_get_parent(label);
    int parent_left = 0;
    int parent_top = 0;
    gtk_widget_translate_coordinates(parent, toplevel, 0, 0, &parent_left, &parent_top);
    std::printf("text\t%s\t%d\t%d\t%d\t%d\t%d\t%d\t%d\t%d\n", theme::describe(label).c_str(), left, top,
                covered.width, covered.height, parent_left, parent_top,
                gtk_widget_get_allocated_width(parent), gtk_widget_get_allocated_height(parent));
}

void print_box(GtkWidget* toplevel, GtkWidget* widget) {
    int x = 0;
    int y = 0;
    gtk_widget_translate_coordinates(widget, toplevel, 0, 0, &x, &y);
    GtkStyleContext* context = gtk_widget_get_style_context(widget);
    const GtkStateFlags state = gtk_style_context_get_state(context);
    GtkBorder margin{};
    GtkBorder border{};
    GtkBorder padding{};
    gtk_style_context_get_margin(context, state, &margin);
    gtk_style_context_get_border(context, state, &border);
    gtk_style_context_get_padding(context, state, &padding);
    std::printf("box\t%s\t%d\t%d\t%d\t%d\t%d\t%d\t%d\t%d\t%d\t%d\n", theme::describe(widget).c_str(), x, y,
                gtk_widget_get_allocated_width(widget), gtk_widget_get_allocated_height(widget), margin.left,
                margin.right, border.left, border.right, padding.left, padding.right);
}

void print_layout() {
    for (GtkWidget* toplevel : theme::stages())
        for (GtkWidget* widget : theme::mapped_widgets(toplevel)) {
            std::printf("rule\t%s\n", theme::selector_of(widget).c_str());
            // Where a popover stands is no matter of the theme.
            if (gtk_widget_get_ancestor(widget, GTK_TYPE_POPOVER)) continue;
            print_box(toplevel, widget);
            if (GTK_IS_LABEL(widget)) print_text(toplevel, widget);
        }
}

void save_pictures(const std::string& folder) {
    int number = 0;
    for (GtkWidget* toplevel : theme::stages()) {
        theme::lay_out(toplevel);
        const theme::picture seen = theme::draw(toplevel, toplevel, CAIRO_ANTIALIAS_DEFAULT);
        auto* data = reinterpret_cast<unsigned char*>(const_cast<std::uint32_t*>(seen.pixels.data()));
        cairo_surface_t* surface = cairo_image_surface_create_for_data(data, CAIRO_FORMAT_RGB24, seen.width,
                                                                       seen.height, seen.width * 4);
        cairo_surface_write_to_png(surface, (folder + "/" + std::to_string(number++) + ".png").c_str());
        cairo_surface_destroy(surface);
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3 || !gtk_init_check(&argc, &argv)) return 64;
    options chosen;
    for (int i = 3; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--rtl")) chosen.rtl = true;
        if (!std::strcmp(argv[i], "--ink")) chosen.ink = true;
        if (!std::strcmp(argv[i], "--pictures") && i + 1 < argc) chosen.pictures = argv[++i];
    }
    zo_ui_init();
    set_up(chosen);
    zo_theme_set_theme_path(argv[1]);
    GError* error = nullptr;
    zo_theme_use_theme(argv[2], error);
    if (error) {
        std::cerr << "theme_probe: " << error->message << '\n';
        return 1;
    }
    const theme::scene scene = theme::build_scene();
    if (!scene.complete) {
        std::cerr << "theme_probe: the windows do not come\n";
        return 1;
    }
    print_layout();
    if (chosen.pictures) save_pictures(chosen.pictures);
    if (chosen.ink) measure_ink();
    std::fflush(stdout);
    zo_system_service_end();
    return 0;
}
