// SPDX-License-Identifier: MIT
#include <desktop/manager.hpp>

#include <X11/Xatom.h>

#include <cstdio>
#include <cstdlib>

std::vector<Window> bench::windows_told(Display* display, const char* property) {
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* data = nullptr;
    XGetWindowProperty(display, DefaultRootWindow(display), XInternAtom(display, property, False), 0, 1 << 16,
                       False, XA_WINDOW, &type, &format, &count, &rest, &data);
    const auto* first = reinterpret_cast<const Window*>(data);
    const std::vector<Window> result(first, first + count);
    if (data) XFree(data);
    return result;
}

void bench::ask_manager(Display* display, Window window, const char* message, long first) {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(display, message, False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = first;
    XSendEvent(display, DefaultRootWindow(display), False, SubstructureRedirectMask | SubstructureNotifyMask,
               &event);
}

void bench::wait_for_manager(Display* display) {
    if (windows_told(display, "_NET_SUPPORTING_WM_CHECK").empty()) return;
    const Window asking = XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0);
    XSelectInput(display, asking, PropertyChangeMask);
    ask_manager(display, asking, "_NET_REQUEST_FRAME_EXTENTS", 0);
    XEvent event;
    XWindowEvent(display, asking, PropertyChangeMask, &event);
    XDestroyWindow(display, asking);
}

void bench::wait_for_empty_desktop() {
    Display* const display = XOpenDisplay(nullptr);
    if (!display) {
        std::fprintf(stderr, "there is no display\n");
        std::exit(1);
    }
    XSelectInput(display, DefaultRootWindow(display), PropertyChangeMask);
    while (!windows_told(display, "_NET_CLIENT_LIST").empty()) {
        XEvent event;
        XWindowEvent(display, DefaultRootWindow(display), PropertyChangeMask, &event);
    }
    XCloseDisplay(display);
}
