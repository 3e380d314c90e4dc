// SPDX-License-Identifier: MIT
// Prints what is known of the desktop's active window, each time another one becomes it. A window manager
// announces that on the root window; without one nothing is announced.
#include <zo_ui/platform/linux.hpp>

#include <X11/Xlib.h>
#include <clocale>
#include <iostream>

namespace {

void print_active_window() {
    unsigned long window = 0;
    std::string title;
    std::string res_name;
    std::string res_class;
    int pid = 0;
    if (getActiveWindowInfo(window, title, res_name, res_class, pid))
        std::cout << std::hex << "0x" << window << std::dec << "  \"" << title << "\"  " << res_name << "."
                  << res_class << "  process " << pid << std::endl;
    else
        std::cout << "no window that tells its title, class and process" << std::endl;
}

}  // namespace

int main() {
    std::setlocale(LC_ALL, "");  // titles come in the locale's encoding
    Display* display = open_display();
    if (!display) {
        std::cerr << "active_window: no display\n";
        return 1;
    }
    const Atom active = XInternAtom(display, "_NET_ACTIVE_WINDOW", False);
    XSelectInput(display, DefaultRootWindow(display), PropertyChangeMask);
    print_active_window();
    for (XEvent event; XNextEvent(display, &event) == 0;)
        if (event.type == PropertyNotify && event.xproperty.atom == active) print_active_window();
}
