// SPDX-License-Identifier: MIT
#include "support/loop.hpp"
#include "support/tray.hpp"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <csignal>
#include <cstdlib>
#include <filesystem>

namespace {

bool watcher_is_there() {
    const test::variant reply =
        test::bus_call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                       "NameHasOwner", g_variant_new("(s)", "org.kde.StatusNotifierWatcher"));
    gboolean there = FALSE;
    if (reply) g_variant_get(reply.get(), "(b)", &there);
    return there;
}

// The panel is its own watcher, and has to be there as the host, too: what is registered between the two it
// may not show.
bool host_is_there() {
    if (!watcher_is_there()) return false;
    const test::variant reply = test::bus_call(
        "org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher", "org.freedesktop.DBus.Properties", "Get",
        g_variant_new("(ss)", "org.kde.StatusNotifierWatcher", "IsStatusNotifierHostRegistered"));
    if (!reply) return false;
    GVariant* value = nullptr;
    g_variant_get(reply.get(), "(v)", &value);
    const bool there = g_variant_get_boolean(value);
    g_variant_unref(value);
    return there;
}

// One panel with one plugin, the tray.
void configure() {
    namespace files = std::filesystem;
    const files::path folder = files::path(g_get_user_config_dir()) / "xfce4/xfconf/xfce-perchannel-xml";
    files::create_directories(folder);
    files::copy_file(files::path(std::getenv("ZO_SOURCE_DIR")) / "tests/support/xfce4-panel.xml",
                     folder / "xfce4-panel.xml", files::copy_options::skip_existing);
}

}  // namespace

test::tray_host::tray_host() {
    configure();
    char program[] = "xfce4-panel";
    char option[] = "--disable-wm-check";
    char* words[] = {program, option, nullptr};
    const auto flags = static_cast<GSpawnFlags>(G_SPAWN_SEARCH_PATH | G_SPAWN_DO_NOT_REAP_CHILD |
                                                G_SPAWN_STDOUT_TO_DEV_NULL | G_SPAWN_STDERR_TO_DEV_NULL);
    EXPECT_TRUE(g_spawn_async(nullptr, words, nullptr, flags, nullptr, nullptr, &pid_, nullptr));
    EXPECT_TRUE(turn_until(host_is_there)) << "the tray host is not ready";
}

test::tray_host::~tray_host() { stop(); }

void test::tray_host::stop() { end(SIGTERM); }

void test::tray_host::crash() { end(SIGKILL); }

void test::tray_host::end(int signal) {
    if (!pid_) return;
    kill(pid_, signal);
    const bool ended = turn_until([&] { return waitpid(pid_, nullptr, WNOHANG) == pid_; });
    EXPECT_TRUE(ended) << "the tray host does not end";
    if (!ended) {
        kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
    }
    pid_ = 0;
    EXPECT_TRUE(turn_until([] { return !watcher_is_there(); }));
}
