// SPDX-License-Identifier: MIT
// It has no function for the class: Xlib's is used, on its connection.
#include "query.hpp"

extern "C" {
#include <xdo.h>
}
#include <X11/Xutil.h>

namespace {

bench::facts ask() {
    bench::facts found;
    xdo_t* xdo = xdo_new(nullptr);
    if (!xdo) return found;
    Window window = 0;
    unsigned char* name = nullptr;
    int length = 0, type = 0;
    XClassHint hint{};
    if (xdo_get_active_window(xdo, &window) == XDO_SUCCESS &&
        xdo_get_window_name(xdo, window, &name, &length, &type) == XDO_SUCCESS &&
        XGetClassHint(xdo->xdpy, window, &hint)) {
        found = {{reinterpret_cast<char*>(name), static_cast<std::size_t>(length)},
                 hint.res_name,
                 hint.res_class,
                 xdo_get_pid_window(xdo, window)};
        XFree(hint.res_name);
        XFree(hint.res_class);
    }
    XFree(name);
    xdo_free(xdo);
    return found;
}

}  // namespace

int main(int argc, char** argv) { return bench::run_query(argc, argv, ask); }
