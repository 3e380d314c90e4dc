// SPDX-License-Identifier: MIT
// What is written or drawn in the colour of text, measured on pictures that GTK draws: with that colour, and
// with none. What differs is ink, what stays is its ground, whatever lies above one another there.
#pragma once

#include <gtk/gtk.h>

#include <cstdint>
#include <string>
#include <vector>

namespace theme {

struct picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};

// The part of a toplevel where `widget` stands, at the screen's scale.
picture draw(GtkWidget* toplevel, GtkWidget* widget, cairo_antialias_t rims = CAIRO_ANTIALIAS_NONE);

struct ink {
    std::uint32_t colour = 0;
    std::uint32_t ground = 0;
    int pixels = 0;
};

// The colours that fill a good part of what differs; the rims of letters and shapes are left out.
std::vector<ink> inks(const picture& written, const picture& blank, int scale);

// While this lives nothing is drawn in the colour of text.
class without_ink {
  public:
    without_ink();
    ~without_ink();
    without_ink(const without_ink&) = delete;
    without_ink& operator=(const without_ink&) = delete;

  private:
    GtkCssProvider* provider_;
};

}  // namespace theme
