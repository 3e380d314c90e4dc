// SPDX-License-Identifier: MIT
#include <desktop/clients.hpp>

#include <desktop/manager.hpp>

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <sys/wait.h>
#include <unistd.h>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

void check(bool works) {
    if (works) return;
    std::perror("clients");
    std::exit(1);
}

void set_title(Display* display, Window window, const std::string& title) {
    XStoreName(display, window, title.c_str());
    XChangeProperty(display, window, XInternAtom(display, "_NET_WM_NAME", False),
                    XInternAtom(display, "UTF8_STRING", False), 8, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(title.data()), static_cast<int>(title.size()));
}

std::size_t managed(Display* display) { return bench::windows_told(display, "_NET_CLIENT_LIST").size(); }

void map_more(Display* display, std::vector<Window>& windows, int count,
              const std::function<std::string(int)>& title) {
    const int first = static_cast<int>(windows.size());
    const std::size_t before = managed(display);
    for (int i = first; i < first + count; ++i) {
        const Window window = XCreateSimpleWindow(display, DefaultRootWindow(display), i % 40 * 20,
                                                  100 + i % 20 * 20, 60, 40, 0, 0, 0);
        XSizeHints hints{};
        hints.flags = USPosition | USSize;  // nobody has to find a free place for hundreds
        XSetWMNormalHints(display, window, &hints);
        set_title(display, window, title(i));
        XMapWindow(display, window);
        windows.push_back(window);
    }
    for (int waited = 0; managed(display) < before + static_cast<std::size_t>(count); ++waited) {
        check(waited < 60000);
        usleep(1000);
    }
}

[[noreturn]] void serve(const std::function<std::string(int)>& title, int commands, int answers) {
    Display* const display = XOpenDisplay(nullptr);
    check(display);
    std::vector<Window> windows;
    const char done = 1;
    int next = 0;
    while (read(commands, &next, sizeof next) == static_cast<ssize_t>(sizeof next)) {
        map_more(display, windows, next, title);
        check(write(answers, &done, 1) == 1);
    }
    _exit(0);
}

}  // namespace

bench::clients::clients(const std::function<std::string(int)>& title) {
    int to[2]{};
    int from[2]{};
    check(pipe(to) == 0 && pipe(from) == 0);
    process_ = fork();
    if (process_ == 0) {
        close(to[1]);
        close(from[0]);
        serve(title, to[0], from[1]);
    }
    close(to[0]);
    close(from[1]);
    commands_ = to[1];
    answers_ = from[0];
}

bench::clients::~clients() {
    close(commands_);
    close(answers_);
    waitpid(process_, nullptr, 0);
}

void bench::clients::map(int count) const {
    char done = 0;
    check(write(commands_, &count, sizeof count) == static_cast<ssize_t>(sizeof count));
    check(read(answers_, &done, 1) == 1);
}
