// SPDX-License-Identifier: MIT
// Acting on windows of other programs, and the print-out that shows it.
#include <zo_ui/platform/linux.hpp>

#include <zo_ui/platform/linux/connection_p.hpp>

#include <unistd.h>

#include <chrono>
#include <iostream>
#include <thread>

using zo::platform::error_trap;
using zo::platform::own_connection;

int setActiveWindow(Display* display, Window window) {
    if (!display) return 0;
    const error_trap trap(display);
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.send_event = True;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(display, "_NET_ACTIVE_WINDOW", False);
    event.xclient.format = 32;
    if (event.xclient.message_type == None) return 0;
    return XSendEvent(display, DefaultRootWindow(display), False,
                      SubstructureRedirectMask | SubstructureNotifyMask, &event);
}

bool setActiveWindow(unsigned long window) {
    const own_connection own;
    if (!own.display()) return false;
    setActiveWindow(own.display(), window);
    return true;
}

bool HideWindow(unsigned long window) {
    const own_connection own;
    if (!own.display()) return false;
    XUnmapWindow(own.display(), window);
    return true;
}

void testX11ActiveWindow() {
    unsigned long window = 0;
    std::string title, res_name, res_class;
    int pid = 0;
    if (!getActiveWindowInfo(window, title, res_name, res_class, pid)) {
        std::cout << "could not retrieve active window info\n" << std::flush;
        return;
    }
    std::cout << "window    id: " + std::to_string(window) + "\nwindow   pid: " + std::to_string(pid) + " " +
                     std::to_string(getpid()) + "\nWindow title: " + title + "\nres     name: " + res_name +
                     "\nres    class: " + res_class + "\n"
              << std::flush;
    if (res_class != "Firefox") return;
    std::this_thread::sleep_for(std::chrono::seconds(3));
    setActiveWindow(window);
}
