// SPDX-License-Identifier: MIT
// What a window's program says about it: class, name and process.
#include <zo_ui/platform/linux.hpp>

#include <zo_ui/platform/linux/connection_p.hpp>

#include <X11/Xatom.h>
#include <X11/Xutil.h>

#include <cstdint>

using zo::platform::error_trap;
using zo::platform::x_memory;

namespace {

struct string_list_free {
    void operator()(char** list) const { XFreeStringList(list); }
};

}  // namespace

bool get_window_class(Display* display, Window window, std::string& res_name, std::string& res_class) {
    const x_memory<XClassHint> hint(XAllocClassHint());
    if (!display || !hint) return false;
    const error_trap trap(display);
    if (!XGetClassHint(display, window, hint.get())) return false;
    const x_memory<char> name(hint->res_name);
    const x_memory<char> class_name(hint->res_class);
    res_name = name.get();
    res_class = class_name.get();
    return true;
}

bool get_window_name(Display* display, Window window, std::string& name) {
    if (!display) return false;
    const error_trap trap(display);
    XTextProperty property{};
    if (!XGetWMName(display, window, &property)) return false;
    const x_memory<unsigned char> value(property.value);
    char** strings = nullptr;
    int count = 0;
    const int result = XmbTextPropertyToTextList(display, &property, &strings, &count);
    // A result above 0 counts characters that the locale lacks; there is a list then, too.
    const std::unique_ptr<char*, string_list_free> list(strings);
    if (result != Success) return false;
    name = list && count > 0 ? strings[0] : "";
    return true;
}

int getWindowPid(Display* display, Window window) {
    if (!display) return 0;
    const error_trap trap(display);
    const Atom atom = XInternAtom(display, "_NET_WM_PID", True);
    if (atom == None) return 0;
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* data = nullptr;
    if (XGetWindowProperty(display, window, atom, 0, 1, False, XA_CARDINAL, &type, &format, &count, &rest,
                           &data) != Success)
        return 0;
    const x_memory<unsigned char> value(data);
    if (!value || type != XA_CARDINAL || format != 32 || count < 1) return 0;
    // Xlib hands out items of format 32 as longs, whatever the size of a long.
    return static_cast<int>(static_cast<std::uint32_t>(*reinterpret_cast<const unsigned long*>(value.get())));
}
