// SPDX-License-Identifier: MIT
// time_start PROGRAM [ARGUMENT...]: starts a program and tells how long it took, and how much processor time,
// until it ended; with "--panel" before it, until it has shown a window as wide as the screen.
#include <support/measure.hpp>

#include <X11/Xlib.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

void wait_for_panel() {
    Display* const display = XOpenDisplay(nullptr);
    if (!display) std::exit(1);
    XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
    for (;;) {
        XEvent event;
        XNextEvent(display, &event);
        if (event.type != MapNotify) continue;
        XWindowAttributes facts{};
        XGetWindowAttributes(display, event.xmap.window, &facts);
        if (facts.width >= DisplayWidth(display, DefaultScreen(display)) * 9 / 10) return;
    }
}

}  // namespace

int main(int, char** arguments) {
    const bool is_panel = !std::strcmp(arguments[1], "--panel");
    char** const program = arguments + (is_panel ? 2 : 1);
    const double start = bench::wall_us();
    const pid_t process = fork();
    if (process == 0) {
        if (is_panel && (!std::freopen("/dev/null", "w", stdout) || !std::freopen("/dev/null", "w", stderr)))
            _exit(1);
        execvp(program[0], program);
        _exit(127);
    }
    if (is_panel) {
        wait_for_panel();
        kill(process, SIGKILL);
    }
    int status = 0;
    rusage used{};
    wait4(process, &status, 0, &used);
    if (!is_panel && status != 0) return 1;
    bench::print("wall_us", bench::wall_us() - start);
    const auto microseconds = [](const timeval& time) {
        return double(time.tv_sec) * 1e6 + double(time.tv_usec);
    };
    bench::print("cpu_us", microseconds(used.ru_utime) + microseconds(used.ru_stime));
}
