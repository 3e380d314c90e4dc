// SPDX-License-Identifier: MIT
// Properties of any type, format and content on the windows of another client and on the root, read by the
// desktop queries, which have to answer what plain Xlib answers on the other client's connection.
#include "fuzz/target.hpp"

#include <fuzzer/FuzzedDataProvider.h>
#include <zo_ui/platform/linux.hpp>

#include <X11/Xatom.h>
#include <X11/Xmu/WinUtil.h>
#include <X11/Xutil.h>

#include <clocale>
#include <map>
#include <optional>

namespace {

Display* other = nullptr;  // the other client's connection

constexpr const char* names[] = {"WM_NAME",  "WM_CLASS",        "_NET_WM_PID",  "_NET_ACTIVE_WINDOW",
                                 "WM_STATE", "_NET_SUPPORTED",  "_NET_WM_NAME", "WM_CLIENT_MACHINE",
                                 "WM_HINTS", "_NET_CLIENT_LIST"};

Atom atom(const char* name) { return XInternAtom(other, name, False); }

void put_property(FuzzedDataProvider& bytes, Window window) {
    constexpr const char* types[] = {"STRING", "UTF8_STRING", "COMPOUND_TEXT", "CARDINAL",
                                     "WINDOW", "ATOM",        "WM_STATE"};
    constexpr int formats[] = {8, 16, 32};
    const char* const name = bytes.PickValueInArray(names);
    const char* const type = bytes.PickValueInArray(types);
    const int format = bytes.PickValueInArray(formats);
    std::string text = bytes.ConsumeRandomLengthString(300);
    text.resize(text.size() / sizeof(long) * sizeof(long));
    const auto* const data = reinterpret_cast<const unsigned char*>(text.data());
    const int unit = format == 32 ? static_cast<int>(sizeof(long)) : format / 8;
    XChangeProperty(other, window, atom(name), atom(type), format, PropModeReplace, data,
                    static_cast<int>(text.size()) / unit);
}

// What a query is to give, by Xlib alone.
using two_strings = std::pair<std::string, std::string>;

std::optional<two_strings> plain_class(Window window) {
    XClassHint hint{};
    if (!XGetClassHint(other, window, &hint)) return {};
    const two_strings result(hint.res_name, hint.res_class);
    XFree(hint.res_name);
    XFree(hint.res_class);
    return result;
}

std::optional<std::string> plain_name(Window window) {
    XTextProperty text{};
    if (!XGetWMName(other, window, &text)) return {};
    char** list = nullptr;
    int count = 0;
    std::optional<std::string> result;
    if (XmbTextPropertyToTextList(other, &text, &list, &count) == Success)
        result = list && count > 0 ? list[0] : "";
    if (list) XFreeStringList(list);
    if (text.value) XFree(text.value);
    return result;
}

int plain_pid(Window window) {
    Atom type = None;
    int format = 0;
    unsigned long count = 0, left = 0;
    unsigned char* data = nullptr;
    if (XGetWindowProperty(other, window, atom("_NET_WM_PID"), 0, 1, False, XA_CARDINAL, &type, &format,
                           &count, &left, &data) != Success)
        return 0;
    const bool there = data && type == XA_CARDINAL && format == 32 && count > 0;
    const int pid = there ? static_cast<int>(*reinterpret_cast<const long*>(data)) : 0;
    if (data) XFree(data);
    return pid;
}

Window plain_named(Window window) {
    const Window client = window ? XmuClientWindow(other, window) : 0;
    return client != window ? client : 0;
}

template <typename T>
void expect(const char* query, const T& answer, const T& wanted) {
    fuzz::check(answer == wanted, [&] { return std::string(query) + " answers something else than Xlib"; });
}

Display* own() {
    static Display* const display = open_display();
    return display;
}

// `top` is the window's ancestor below the root; 0 for what is no window.
void ask_everything(Window window, Window top) {
    std::string name = "before", res_name = "before", res_class = "before";
    const auto wanted_name = plain_name(window);
    expect("get_window_name", get_window_name(own(), window, name), wanted_name.has_value());
    expect("get_window_name", name, wanted_name.value_or("before"));
    const auto wanted_class = plain_class(window);
    expect("get_window_class", get_window_class(own(), window, res_name, res_class),
           wanted_class.has_value());
    expect("get_window_class", two_strings(res_name, res_class),
           wanted_class.value_or(two_strings("before", "before")));
    expect("getWindowPid", getWindowPid(own(), window), plain_pid(window));
    expect("get_named_window", get_named_window(own(), window), plain_named(window));
    expect("get_top_window", get_top_window(own(), window), top);
}

// With the focus below `top`.
void ask_for_the_active_window(Window top) {
    const Window active = plain_named(top);
    expect("getActiveWindow", getActiveWindow(own()), active);
    expect("getActiveWindow", getActiveWindow(), active);
    unsigned long window = 77;
    int pid = 77;
    std::string name, res_name, res_class;
    const auto wanted_name = plain_name(active);
    const auto wanted_class = plain_class(active);
    const bool read = wanted_name && wanted_class;
    const int wanted_pid = read ? plain_pid(active) : 0;
    expect("getActiveWindowInfo", getActiveWindowInfo(window, name, res_name, res_class, pid),
           wanted_pid > 0);
    expect("getActiveWindowInfo", window, wanted_pid > 0 ? active : 0UL);
    expect("getActiveWindowInfo", pid, wanted_pid);
    expect("getActiveWindowInfo", name, wanted_name.value_or(""));
    if (read) expect("getActiveWindowInfo", two_strings(res_name, res_class), *wanted_class);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    std::setlocale(LC_ALL, "C.UTF-8");
    other = XOpenDisplay(nullptr);
    fuzz::check(other && own(), [] { return std::string("no display"); });
    XSetErrorHandler([](Display* display, XErrorEvent*) {
        // Of this client's own requests there may be any.
        fuzz::check(display == other, [] { return std::string("an X error of the library's own request"); });
        return 0;
    });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider bytes(data, size);
    const Window root = DefaultRootWindow(other);
    const Window outer = XCreateSimpleWindow(other, root, 0, 0, 50, 50, 0, 0, 0);
    const Window inner = XCreateSimpleWindow(other, outer, 0, 0, 20, 20, 0, 0, 0);
    XMapWindow(other, inner);
    XMapWindow(other, outer);
    XSync(other, False);
    while (bytes.remaining_bytes() > 0) put_property(bytes, bytes.PickValueInArray({root, outer, inner}));
    XSetInputFocus(other, inner, RevertToPointerRoot, CurrentTime);
    XSync(other, False);
    const std::map<Window, Window> tops{{root, 0},      {outer, outer}, {inner, outer},
                                        {Window{0}, 0}, {Window{1}, 0}, {inner + 77, 0}};
    for (const auto& [window, top] : tops) ask_everything(window, top);
    ask_for_the_active_window(outer);
    for (const char* name : names) XDeleteProperty(other, root, atom(name));
    XDestroyWindow(other, outer);
    XSync(other, True);
    ask_everything(inner, 0);
    return 0;
}
