// SPDX-License-Identifier: MIT
// daemon_notifications COUNT PROGRAM: starts the notification daemon, has it show as many notifications and
// close them again, and tells what that cost the daemon.
#include <notifications/burst.hpp>

#include <support/measure.hpp>

#include <gio/gio.h>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace {

constexpr int quiet_ms = 300;  // so long without any work is the end of it
constexpr int daemon_limit_ms = 60000;

double daemon_cpu_us(GPid daemon) {
    double nanoseconds = 0;
    std::ifstream("/proc/" + std::to_string(daemon) + "/schedstat") >> nanoseconds;
    return nanoseconds / 1e3;
}

void wait_until_idle(GPid daemon) {
    double before = -1;
    for (int waited = 0; waited < daemon_limit_ms; waited += quiet_ms) {
        const double now = daemon_cpu_us(daemon);
        if (now == before) return;
        before = now;
        g_usleep(quiet_ms * 1000);
    }
}

GVariant* call(GDBusConnection* bus, const char* method, GVariant* arguments) {
    GError* error = nullptr;
    GVariant* const answer =
        g_dbus_connection_call_sync(bus, "org.freedesktop.Notifications", "/org/freedesktop/Notifications",
                                    "org.freedesktop.Notifications", method, arguments, nullptr,
                                    G_DBUS_CALL_FLAGS_NONE, -1, nullptr, &error);
    if (answer) return answer;
    std::fprintf(stderr, "%s\n", error->message);
    std::exit(1);
}

guint32 notify(GDBusConnection* bus, int number) {
    GVariantBuilder actions;
    GVariantBuilder hints;
    g_variant_builder_init(&actions, G_VARIANT_TYPE("as"));
    g_variant_builder_init(&hints, G_VARIANT_TYPE("a{sv}"));
    GVariant* const answer =
        call(bus, "Notify",
             g_variant_new("(susssasa{sv}i)", "bench", 0U, "", bench::notification_title(number).c_str(),
                           bench::notification_text(number).c_str(), &actions, &hints, 0));
    guint32 id = 0;
    g_variant_get(answer, "(u)", &id);
    g_variant_unref(answer);
    return id;
}

GPid start(char* program) {
    char* arguments[] = {program, nullptr};
    GPid daemon = 0;
    const auto flags = static_cast<GSpawnFlags>(G_SPAWN_SEARCH_PATH | G_SPAWN_DO_NOT_REAP_CHILD |
                                                G_SPAWN_STDOUT_TO_DEV_NULL | G_SPAWN_STDERR_TO_DEV_NULL);
    if (!g_spawn_async(nullptr, arguments, nullptr, flags, nullptr, nullptr, &daemon, nullptr)) std::exit(1);
    return daemon;
}

void wait_for_daemon() {
    GMainLoop* const loop = g_main_loop_new(nullptr, FALSE);
    const auto on_name = [](GDBusConnection*, const char*, const char*, gpointer waiting) {
        g_main_loop_quit(static_cast<GMainLoop*>(waiting));
    };
    g_bus_watch_name(G_BUS_TYPE_SESSION, "org.freedesktop.Notifications", G_BUS_NAME_WATCHER_FLAGS_NONE,
                     on_name, nullptr, loop, nullptr);
    g_main_loop_run(loop);
    g_main_loop_unref(loop);
}

}  // namespace

int main(int, char** arguments) {
    const int count = std::atoi(arguments[1]);
    const GPid daemon = start(arguments[2]);
    wait_for_daemon();
    wait_until_idle(daemon);
    GDBusConnection* const bus = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
    const double start_us = daemon_cpu_us(daemon);
    std::vector<guint32> ids;
    for (int i = 0; i < count; ++i) ids.push_back(notify(bus, i));
    wait_until_idle(daemon);
    const double shown_us = daemon_cpu_us(daemon);
    for (const guint32 id : ids) g_variant_unref(call(bus, "CloseNotification", g_variant_new("(u)", id)));
    wait_until_idle(daemon);
    bench::print("show_cpu_us", (shown_us - start_us) / count);
    bench::print("close_cpu_us", (daemon_cpu_us(daemon) - shown_us) / count);
    kill(daemon, SIGTERM);
}
