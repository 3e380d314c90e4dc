// SPDX-License-Identifier: MIT
#include <zo_ui/platform/linux/pointer_p.hpp>

#include <zo_ui/platform/linux/connection_p.hpp>

// A missing display is fatal in optimised builds too; the C library's report is declared only like this.
#undef NDEBUG
#include <cassert>
#include <cstdio>

bool GetCursorPos(int* x, int* y) {
    zo::platform::own_connection own;
    Display* display = own.display();
    if (!display) __assert_fail("display", "src/zo_ui/platform/linux", 314, "bool GetCursorPos(int*, int*)");
    for (int screen = 0; screen < XScreenCount(display); ++screen) {
        Window root = 0, child = 0;
        int root_x = 0, root_y = 0, window_x = 0, window_y = 0;
        unsigned int mask = 0;
        if (!XQueryPointer(display, XRootWindow(display, screen), &root, &child, &root_x, &root_y, &window_x,
                           &window_y, &mask))
            continue;
        if (x) *x = root_x;
        if (y) *y = root_y;
        return true;
    }
    std::fputs("No mouse found.\n", stderr);
    // The connection stays on purpose; test "PointerOnNoScreen".
    own.leave_open();
    return false;
}
