// SPDX-License-Identifier: MIT
#include "theme/ink.hpp"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <utility>

namespace {

constexpr int least_pixels = 6;
constexpr double least_share = 0.03;

int distance(std::uint32_t one, std::uint32_t other) {
    int result = 0;
    for (const int shift : {0, 8, 16})
        result += std::abs(static_cast<int>(one >> shift & 0xff) - static_cast<int>(other >> shift & 0xff));
    return result;
}

// How far each pixel is from its ground.
std::vector<int> distances(const theme::picture& written, const theme::picture& blank) {
    std::vector<int> result(written.pixels.size());
    for (std::size_t i = 0; i < result.size(); ++i) result[i] = distance(written.pixels[i], blank.pixels[i]);
    return result;
}

// Rims of letters and shapes, whose pixels are partly covered, lie beside what is covered more.
bool is_rim(const std::vector<int>& distances, int width, std::size_t pixel) {
    const int x = static_cast<int>(pixel) % width;
    const int y = static_cast<int>(pixel) / width;
    const int height = static_cast<int>(distances.size()) / width;
    for (int j = std::max(y - 1, 0); j <= std::min(y + 1, height - 1); ++j)
        for (int i = std::max(x - 1, 0); i <= std::min(x + 1, width - 1); ++i)
            if (distances[static_cast<std::size_t>(j * width + i)] > distances[pixel] + 6) return true;
    return false;
}

}  // namespace

theme::picture theme::draw(GtkWidget* toplevel, GtkWidget* widget, cairo_antialias_t rims) {
    int x = 0;
    int y = 0;
    gtk_widget_translate_coordinates(widget, toplevel, 0, 0, &x, &y);
    const int scale = gtk_widget_get_scale_factor(toplevel);
    picture result{
        gtk_widget_get_allocated_width(widget) * scale, gtk_widget_get_allocated_height(widget) * scale, {}};
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, result.width, result.height);
    cairo_surface_set_device_scale(surface, scale, scale);
    cairo_t* cr = cairo_create(surface);
    cairo_set_antialias(cr, rims);
    cairo_translate(cr, -x, -y);
    gtk_widget_draw(toplevel, cr);
    cairo_destroy(cr);
    cairo_surface_flush(surface);
    const unsigned char* row = cairo_image_surface_get_data(surface);
    for (int i = 0; i < result.height; ++i, row += cairo_image_surface_get_stride(surface)) {
        const auto* pixels = reinterpret_cast<const std::uint32_t*>(row);
        for (int j = 0; j < result.width; ++j) result.pixels.push_back(pixels[j] & 0xffffff);
    }
    cairo_surface_destroy(surface);
    return result;
}

std::vector<theme::ink> theme::inks(const picture& written, const picture& blank, int scale) {
    std::map<std::pair<std::uint32_t, std::uint32_t>, int> counts;
    const std::vector<int> depths = distances(written, blank);
    int full = 0;
    for (std::size_t i = 0; i < depths.size(); ++i) {
        if (depths[i] == 0 || is_rim(depths, written.width, i)) continue;
        ++counts[{written.pixels[i], blank.pixels[i]}];
        ++full;
    }
    std::vector<ink> result;
    const double least = std::max<double>(least_pixels * scale * scale, least_share * full);
    for (const auto& [pair, count] : counts)
        if (count >= least) result.push_back({pair.first, pair.second, count});
    return result;
}

theme::without_ink::without_ink() : provider_(gtk_css_provider_new()) {
    gtk_css_provider_load_from_data(provider_,
                                    "@define-color placeholder_text_color transparent; "
                                    "* { color: transparent; caret-color: transparent; text-shadow: none; "
                                    "-gtk-icon-shadow: none; text-decoration-color: transparent; }",
                                    -1, nullptr);
    gtk_style_context_add_provider_for_screen(gdk_screen_get_default(), GTK_STYLE_PROVIDER(provider_),
                                              GTK_STYLE_PROVIDER_PRIORITY_USER + 100);
}

theme::without_ink::~without_ink() {
    gtk_style_context_remove_provider_for_screen(gdk_screen_get_default(), GTK_STYLE_PROVIDER(provider_));
    g_object_unref(provider_);
}
