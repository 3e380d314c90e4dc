// SPDX-License-Identifier: MIT
// What a window's program says about it: class, name and process.
#include <zo_ui/platform/linux/window_facts_p.hpp>

#include <zo_ui/platform/linux.hpp>
#include <zo_ui/platform/linux/connection_p.hpp>

#include <X11/Xatom.h>
#include <X11/Xutil.h>

#include <cstdint>
#include <cstdio>
#include <cstring>

namespace zo::platform {
namespace {

// As much as XGetWMName and XGetClassHint read.
constexpr unsigned int longest_name = 1000000;
constexpr unsigned int longest_class = BUFSIZ;

struct string_list_free {
    void operator()(char** list) const { XFreeStringList(list); }
};

}  // namespace

name_request::name_request(Display* display, Window window)
    : display_(display), property_(display, window, XA_WM_NAME, AnyPropertyType, longest_name) {}

bool name_request::answer(std::string& name) {
    x_property property = property_.answer();
    if (property.type == None) return false;
    const error_trap trap(display_);
    // Of items that are no bytes Xlib only wants to know whether there are any.
    const XTextProperty text{reinterpret_cast<unsigned char*>(property.bytes.data()), property.type,
                             property.format, property.bytes.size()};
    char** strings = nullptr;
    int count = 0;
    const int result = XmbTextPropertyToTextList(display_, &text, &strings, &count);
    // A result above 0 counts characters that the locale lacks; there is a list then, too.
    const std::unique_ptr<char*, string_list_free> list(strings);
    if (result != Success) return false;
    name = list && count > 0 ? strings[0] : "";
    return true;
}

class_request::class_request(Display* display, Window window)
    : property_(display, window, XA_WM_CLASS, XA_STRING, longest_class) {}

bool class_request::answer(std::string& res_name, std::string& res_class) {
    const x_property property = property_.answer();
    if (property.type != XA_STRING || property.format != 8) return false;
    // Two strings, each with a null character after it, if the program has kept to that.
    const std::string& both = property.bytes;
    res_name = both.c_str();
    res_class = res_name.size() < both.size() ? both.c_str() + res_name.size() + 1 : "";
    return true;
}

pid_request::pid_request(Display* display, Window window, const known_atoms& atoms)
    : property_(display, window, atoms.net_wm_pid, XA_CARDINAL, 1) {}

int pid_request::answer() {
    const x_property property = property_.answer();
    std::uint32_t pid = 0;
    if (property.type != XA_CARDINAL || property.format != 32 || property.bytes.size() < sizeof pid) return 0;
    std::memcpy(&pid, property.bytes.data(), sizeof pid);
    return static_cast<int>(pid);
}

}  // namespace zo::platform

using namespace zo::platform;

bool get_window_class(Display* display, Window window, std::string& res_name, std::string& res_class) {
    return display && class_request(display, window).answer(res_name, res_class);
}

bool get_window_name(Display* display, Window window, std::string& name) {
    return display && name_request(display, window).answer(name);
}

int getWindowPid(Display* display, Window window) {
    return display ? pid_request(display, window, known_atoms(display)).answer() : 0;
}
