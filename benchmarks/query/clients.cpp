// SPDX-License-Identifier: MIT
#include "clients.hpp"

#include <desktop/manager.hpp>

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

constexpr char name[] = "A window";
constexpr char res_name[] = "client";
constexpr char res_class[] = "Client";

Window make_client(Display* display) {
    const Window window =
        XCreateSimpleWindow(display, DefaultRootWindow(display), 40, 40, 300, 200, 0, 0, 0x336699);
    XChangeProperty(display, window, XA_WM_NAME, XInternAtom(display, "UTF8_STRING", False), 8,
                    PropModeReplace, reinterpret_cast<const unsigned char*>(name),
                    static_cast<int>(std::strlen(name)));
    char hint_name[sizeof res_name], hint_class[sizeof res_class];
    XClassHint hint{std::strcpy(hint_name, res_name), std::strcpy(hint_class, res_class)};
    XSetClassHint(display, window, &hint);
    const long pid = getpid();
    XChangeProperty(display, window, XInternAtom(display, "_NET_WM_PID", False), XA_CARDINAL, 32,
                    PropModeReplace, reinterpret_cast<const unsigned char*>(&pid), 1);
    XSelectInput(display, window, StructureNotifyMask | FocusChangeMask);
    XMapWindow(display, window);
    return window;
}

template <typename Condition>
void wait_until(Display* display, Condition holds) {
    for (XEvent event; !holds();)
        XWindowEvent(display, DefaultRootWindow(display), PropertyChangeMask, &event);
}

void wait_for_focus(Display* display, Window window) {
    XEvent event;
    do XWindowEvent(display, window, FocusChangeMask, &event);
    while (event.type != FocusIn);
}

Display* make_clients(std::size_t count) {
    Display* display = XOpenDisplay(nullptr);
    if (!display) return nullptr;
    XSelectInput(display, DefaultRootWindow(display), PropertyChangeMask);
    const auto are_managed = [display](std::size_t wanted) {
        return bench::windows_told(display, "_NET_CLIENT_LIST").size() == wanted;
    };
    bench::wait_for_empty_desktop();
    Window last = None;
    for (std::size_t i = 0; i < count; ++i) last = make_client(display);
    wait_until(display, [&] { return are_managed(count); });
    bench::ask_manager(display, last, "_NET_ACTIVE_WINDOW", 2);  // as a pager does, which is believed
    wait_for_focus(display, last);
    // The focus wanders while many windows come.
    for (int steady = 0; steady < 5;) {
        bench::wait_for_manager(display);
        steady = bench::windows_told(display, "_NET_ACTIVE_WINDOW") == std::vector{last} ? steady + 1 : 0;
    }
    return display;
}

void be_clients(int count, int ready, int end) {
    Display* display = make_clients(static_cast<std::size_t>(count));
    char byte = display ? 1 : 0;
    if (write(ready, &byte, 1) == 1) (void)!read(end, &byte, 1);
    if (display) XCloseDisplay(display);
    _exit(0);
}

}  // namespace

bench::clients::clients(int count) {
    int ready[2], end[2];
    if (pipe(ready) != 0 || pipe(end) != 0) std::exit(1);
    process_ = fork();
    if (process_ == 0) {
        close(end[1]);
        be_clients(count, ready[1], end[0]);
    }
    close(ready[1]);
    close(end[0]);
    pipe_ = end[1];
    char is_ready = 0;
    if (read(ready[0], &is_ready, 1) != 1 || !is_ready) std::exit(1);
    close(ready[0]);
}

bench::clients::~clients() {
    close(pipe_);
    waitpid(process_, nullptr, 0);
}

void bench::clients::check(const facts& found) const {
    if (found.name == name && found.res_name == res_name && found.res_class == res_class &&
        found.pid == process_)
        return;
    std::fprintf(stderr, "found \"%s\" \"%s\" \"%s\" %d\n", found.name.c_str(), found.res_name.c_str(),
                 found.res_class.c_str(), found.pid);
    std::exit(1);
}
