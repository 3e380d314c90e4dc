// SPDX-License-Identifier: MIT
// time_idle WINDOWS ICONS NOTIFICATIONS PROGRAM [ARGUMENT...]: starts a program, a daemon that is to show as
// many notifications perhaps, and waits until so many windows are on screen and so many icons in the tray.
// Tells how often its threads were woken in 20 s once it has come to rest, and how often the processor was
// taken from them.
#include <desktop/child.hpp>
#include <desktop/child_windows.hpp>
#include <idle/switches.hpp>
#include <idle/tray.hpp>
#include <notifications/daemon.hpp>
#include <support/measure.hpp>

#include <unistd.h>
#include <csignal>
#include <cstdlib>

namespace {

constexpr int start_limit = 60;  // seconds, as the next
constexpr int settling = 25;     // the toolkit has timers that run once, 15 s after it was started
constexpr int watched = 20;

void run(int windows, int icons, int notifications, char** program) {
    bench::child process(program, true);
    const bench::screen_watch screen;
    const bench::session_bus bus;
    if (notifications) bench::notification_daemon(process, bus).show(notifications);
    const auto is_complete = [&] {
        return screen.windows_of(process.id()) >= windows && bench::icons_of(bus, process.id()) >= icons;
    };
    process.must_reach("complete desktop", start_limit, is_complete);
    sleep(settling);
    process.must_reach("complete desktop any more", 0, is_complete);
    const bench::switches before(process.id());
    sleep(watched);
    const bench::switches after(process.id());
    process.must_reach("complete desktop at the end", 0, is_complete);
    bench::print("wakeups", after.voluntary_since(before));
    bench::print("preempted", after.involuntary_since(before));
}

}  // namespace

int main(int, char** arguments) {
    const auto number = [&](int index) { return std::atoi(arguments[index]); };
    return bench::measured([&] { run(number(1), number(2), number(3), arguments + 4); });
}
