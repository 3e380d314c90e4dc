// SPDX-License-Identifier: MIT
// Properties of any type, format and content on the windows of another client and on the root, read by the
// desktop queries.
#include "fuzz/target.hpp"

#include <fuzzer/FuzzedDataProvider.h>
#include <zo_ui/platform/linux.hpp>

#include <X11/Xlib.h>
#include <vector>

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
    std::vector<unsigned long> items;
    std::string text = bytes.ConsumeRandomLengthString(300);
    text.resize(text.size() / sizeof(long) * sizeof(long));
    const auto* const data = reinterpret_cast<const unsigned char*>(text.data());
    const int unit = format == 32 ? static_cast<int>(sizeof(long)) : format / 8;
    XChangeProperty(other, window, atom(name), atom(type), format, PropModeReplace, data,
                    static_cast<int>(text.size()) / unit);
}

void ask_everything(Window window) {
    static Display* const own = open_display();
    std::string name, res_name, res_class;
    get_window_name(own, window, name);
    get_window_class(own, window, res_name, res_class);
    getWindowPid(own, window);
    get_named_window(own, window);
    get_top_window(own, window);
    getActiveWindow(own);
    unsigned long active = 0;
    int pid = 0;
    getActiveWindowInfo(active, name, res_name, res_class, pid);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });  // of this client's own requests
    other = XOpenDisplay(nullptr);
    fuzz::check(other, [] { return std::string("no display"); });
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
    for (const Window window : {root, outer, inner, Window{0}, Window{1}, inner + 77}) ask_everything(window);
    for (const char* name : names) XDeleteProperty(other, root, atom(name));
    XDestroyWindow(other, outer);
    XSync(other, True);
    ask_everything(inner);
    return 0;
}
