// SPDX-License-Identifier: MIT
#include <zo_ui/platform/linux/connection_p.hpp>

#include <zo_ui/platform/linux.hpp>

Display* open_display() { return XOpenDisplay(nullptr); }

namespace zo::platform {

own_connection::own_connection() : display_(open_display()), trap_(display_, trapped::everything) {}

own_connection::~own_connection() {
    if (display_) XCloseDisplay(display_);
}

bool is_root(Display* display, Window window) {
    for (int screen = 0; screen < ScreenCount(display); ++screen)
        if (window == RootWindow(display, screen)) return true;
    return false;
}

}  // namespace zo::platform
