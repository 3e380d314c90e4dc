// SPDX-License-Identifier: MIT
// Finding the active window, by the input focus rather than by what the window manager announces.
#include <zo_ui/platform/linux.hpp>

#include <zo_ui/platform/linux/connection_p.hpp>

#include <X11/Xmu/WinUtil.h>

using zo::platform::error_trap;
using zo::platform::own_connection;
using zo::platform::x_memory;

Window get_focus_window(Display* display) {
    if (!display) return 0;
    // This request has no errors.
    Window focus = 0;
    int revert_to = 0;
    XGetInputFocus(display, &focus, &revert_to);
    return focus;
}

Window get_top_window(Display* display, Window window) {
    // The focus may be on nothing, on whatever root the pointer is on, or on a root: no top there, and none
    // to ask for.
    if (!display || window == 0 || window == PointerRoot || zo::platform::is_root(display, window)) return 0;
    const error_trap trap(display);
    while (window != 0) {
        Window root = 0;
        Window parent = 0;
        Window* children = nullptr;
        unsigned int count = 0;
        if (!XQueryTree(display, window, &root, &parent, &children, &count)) return 0;
        const x_memory<Window> owned(children);
        if (parent == root) return window;
        window = parent;
    }
    return 0;
}

Window get_named_window(Display* display, Window window) {
    if (!display || window == 0 || window == PointerRoot) return 0;
    const error_trap trap(display);
    const Window client = XmuClientWindow(display, window);
    // One that carries the state itself names none; test "AWindowThatItselfCarriesTheStateNamesNone".
    return client != window ? client : 0;
}

Window getActiveWindow(Display* display) {
    const Window top = get_top_window(display, get_focus_window(display));
    return top != 0 ? get_named_window(display, top) : 0;
}

Window getActiveWindow() {
    const own_connection own;
    return getActiveWindow(own.display());
}

bool getActiveWindowInfo(unsigned long& window, std::string& title, std::string& res_name,
                         std::string& res_class, int& pid) {
    window = 0;
    pid = 0;
    const own_connection own;
    const Window active = getActiveWindow(own.display());
    if (active == 0) return false;
    if (!get_window_name(own.display(), active, title)) return false;
    if (!get_window_class(own.display(), active, res_name, res_class)) return false;
    pid = getWindowPid(own.display(), active);
    if (pid <= 0) return false;
    window = active;
    return true;
}
