// SPDX-License-Identifier: MIT
// time_start PROGRAM [ARGUMENT...]: starts a program and tells how long it took, and how much processor time,
// until it ended; with "--panel" before it, until it has shown a window as wide as the screen.
#include <desktop/child.hpp>
#include <desktop/child_windows.hpp>
#include <support/measure.hpp>

#include <csignal>
#include <cstring>

namespace {

constexpr int limit = 60;  // seconds

// Hears of every window that is mapped from now on.
class panel_watch {
  public:
    panel_watch() : display_(screen_.display()) {
        XSelectInput(display_, DefaultRootWindow(display_), SubstructureNotifyMask);
        XSync(display_, False);
    }

    int descriptor() const { return ConnectionNumber(display_); }

    bool has_seen_panel() const {
        while (XPending(display_)) {
            XEvent event;
            XNextEvent(display_, &event);
            if (event.type == MapNotify && is_wide(event.xmap.window)) return true;
        }
        return false;
    }

  private:
    bool is_wide(Window window) const {
        XWindowAttributes facts{};
        return XGetWindowAttributes(display_, window, &facts) &&
               facts.width >= DisplayWidth(display_, DefaultScreen(display_)) * 9 / 10;
    }

    bench::screen_watch screen_;
    Display* display_;
};

double microseconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_usec);
}

void tell(double wall_us, const rusage& used) {
    bench::print("wall_us", wall_us);
    bench::print("cpu_us", microseconds(used.ru_utime) + microseconds(used.ru_stime));
}

void run(char** program) {
    const double start = bench::wall_us();
    bench::child process(program, false);
    const rusage used = process.end(0);
    tell(bench::wall_us() - start, used);
}

// Hears of windows before there is any: of one that was mapped earlier nothing would come.
void run_panel(char** program) {
    const panel_watch watch;
    const double start = bench::wall_us();
    bench::child process(program, true);
    process.must_reach(
        "panel", limit, [&] { return watch.has_seen_panel(); }, watch.descriptor());
    const double shown = bench::wall_us();
    tell(shown - start, process.end(SIGKILL));
}

}  // namespace

int main(int, char** arguments) {
    const bool is_panel = !std::strcmp(arguments[1], "--panel");
    return bench::measured([&] { is_panel ? run_panel(arguments + 2) : run(arguments + 1); });
}
