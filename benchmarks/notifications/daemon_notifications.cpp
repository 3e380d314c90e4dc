// SPDX-License-Identifier: MIT
// daemon_notifications COUNT PROGRAM: starts the notification daemon, has it show as many notifications and
// close them again, and tells what that cost the daemon.
#include <desktop/child_windows.hpp>
#include <notifications/daemon.hpp>
#include <support/measure.hpp>

#include <unistd.h>
#include <csignal>
#include <cstdlib>
#include <vector>

namespace {

constexpr int quiet_us = 300000;  // so long without any work is the end of it
constexpr int rest_limit = 120;
constexpr int closing_limit = 60;

void wait_until_idle(bench::child& daemon, const char* when) {
    daemon.must_reach(std::string("rest ") + when, rest_limit, [&] {
        const double before = daemon.cpu_us();
        const bool slept = daemon.is_asleep();
        usleep(quiet_us);
        return slept && daemon.is_asleep() && daemon.cpu_us() == before;
    });
}

// Counts what the daemon says it has closed.
class closed_notifications {
  public:
    explicit closed_notifications(const bench::session_bus& bus) : bus_(bus) {
        const bench::service& served = bench::notification_daemon::served;
        const auto note = [](GDBusConnection*, const char*, const char*, const char*, const char*, GVariant*,
                             gpointer count) { ++*static_cast<int*>(count); };
        id_ = g_dbus_connection_signal_subscribe(bus.connection(), served.name, served.name,
                                                 "NotificationClosed", nullptr, nullptr,
                                                 G_DBUS_SIGNAL_FLAGS_NONE, note, &count_, nullptr);
    }
    ~closed_notifications() { g_dbus_connection_signal_unsubscribe(bus_.connection(), id_); }
    closed_notifications(const closed_notifications&) = delete;
    closed_notifications& operator=(const closed_notifications&) = delete;

    int count() const {
        while (g_main_context_iteration(nullptr, FALSE)) {
        }
        return count_;
    }

  private:
    const bench::session_bus& bus_;
    guint id_ = 0;
    int count_ = 0;
};

void run(int count, char** program) {
    bench::child process(program, true);
    const bench::screen_watch screen;
    const bench::session_bus bus;
    const bench::notification_daemon daemon(process, bus);
    const closed_notifications closed(bus);
    wait_until_idle(process, "after it started");
    const int windows = screen.windows_of(process.id());
    const double start_us = process.cpu_us();
    const std::vector<guint32> ids = daemon.show(count);
    wait_until_idle(process, "with all notifications on screen");
    const double shown_us = process.cpu_us();
    const int shown = screen.windows_of(process.id()) - windows;
    process.must_reach("window with a notification", 0, [&] { return shown > 0; });
    daemon.close(ids);
    process.must_reach("end of all notifications", closing_limit, [&] { return closed.count() >= count; });
    wait_until_idle(process, "after closing");
    const double closed_us = process.cpu_us();
    process.must_reach("empty screen", 0, [&] { return screen.windows_of(process.id()) == windows; });
    process.end(SIGTERM);
    bench::print("windows", shown);
    bench::print("show_cpu_us", (shown_us - start_us) / count);
    bench::print("close_cpu_us", (closed_us - shown_us) / count);
}

}  // namespace

int main(int, char** arguments) {
    return bench::measured([&] { run(std::atoi(arguments[1]), arguments + 2); });
}
