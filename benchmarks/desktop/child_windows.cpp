// SPDX-License-Identifier: MIT
#include <desktop/child_windows.hpp>

#include <X11/extensions/XRes.h>
#include <fcntl.h>
#include <stdexcept>

namespace {

constexpr int frames = 3;  // so deep a window manager may have put a window

int on_error(Display*, XErrorEvent*) { return 0; }

// Not every program says itself whose a window is; the server knows.
pid_t process_of(Display* display, Window window) {
    XResClientIdSpec asked{window, XRES_CLIENT_ID_PID_MASK};
    XResClientIdValue* told = nullptr;
    long count = 0;
    if (XResQueryClientIds(display, 1, &asked, &count, &told) != Success) return -1;
    const pid_t process = count == 1 ? XResGetClientPid(told) : -1;
    XResClientIdsDestroy(count, told);
    return process;
}

bool is_on_screen(Display* display, Window window) {
    XWindowAttributes facts{};
    return XGetWindowAttributes(display, window, &facts) && facts.map_state == IsViewable &&
           facts.c_class == InputOutput;
}

int shown_below(Display* display, Window parent, pid_t process, int depth) {
    Window root = None;
    Window above = None;
    Window* windows = nullptr;
    unsigned count = 0;
    int shown = 0;
    if (!XQueryTree(display, parent, &root, &above, &windows, &count)) return 0;
    for (unsigned i = 0; i < count; ++i) {
        if (!is_on_screen(display, windows[i])) continue;
        if (process_of(display, windows[i]) == process)
            ++shown;
        else if (depth > 1)
            shown += shown_below(display, windows[i], process, depth - 1);
    }
    if (windows) XFree(windows);
    return shown;
}

}  // namespace

bench::screen_watch::screen_watch() : display_(XOpenDisplay(nullptr)) {
    if (!display_) throw std::runtime_error("no X server");
    fcntl(ConnectionNumber(display_), F_SETFD, FD_CLOEXEC);
    XSetErrorHandler(on_error);
}

bench::screen_watch::~screen_watch() { XCloseDisplay(display_); }

int bench::screen_watch::windows_of(pid_t process) const {
    return shown_below(display_, DefaultRootWindow(display_), process, frames);
}
