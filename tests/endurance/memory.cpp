// SPDX-License-Identifier: MIT
#include "endurance/memory.hpp"

#include <X11/Xlib.h>
#include <gdk/gdkx.h>
#include <malloc.h>

// After Xlib, whose types it uses without saying so.
#include <X11/extensions/XRes.h>

#include <algorithm>
#include <numeric>

namespace {

constexpr std::size_t ends = 3;  // points whose mean stands for the first and for the last ones

double mean(std::vector<endurance::point>::const_iterator from, std::size_t count) {
    const auto to = from + static_cast<long>(count);
    return std::accumulate(from, to, 0.0, [](double sum, const auto& one) { return sum + one.bytes; }) /
           static_cast<double>(count);
}

}  // namespace

double endurance::heap() {
    malloc_trim(0);
    return static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd);
}

double endurance::slope(const std::vector<point>& points) {
    const auto n = static_cast<double>(points.size());
    double x = 0, y = 0, xx = 0, xy = 0;
    for (const point& one : points) {
        x += one.items;
        y += one.bytes;
        xx += one.items * one.items;
        xy += one.items * one.bytes;
    }
    return (n * xy - x * y) / (n * xx - x * x);
}

double endurance::growth(const std::vector<point>& points) {
    return mean(points.end() - ends, ends) - mean(points.begin(), ends);
}

endurance::x_resources endurance::count_x_resources() {
    Display* const display = gdk_x11_get_default_xdisplay();
    XSync(display, False);
    const Window own = GDK_WINDOW_XID(gdk_display_get_default_group(gdk_display_get_default()));
    x_resources counted;
    int count = 0;
    XResType* types = nullptr;
    XResQueryClientResources(display, own, &count, &types);
    for (int i = 0; i < count; ++i) {
        char* const name = XGetAtomName(display, types[i].resource_type);
        counted[name ? name : "?"] += types[i].count;
        XFree(name);
    }
    if (types) XFree(types);
    XResQueryClientPixmapBytes(display, own, &counted["bytes of pixmaps"]);
    return counted;
}

std::string endurance::text_of(const x_resources& counted) {
    std::string text;
    for (const auto& [name, count] : counted)
        text += (text.empty() ? "" : ", ") + name + " " + std::to_string(count);
    return text;
}
