// SPDX-License-Identifier: MIT
// A window manager that starts when windows were shown and hidden already.
#include "support/desktop.hpp"
#include "support/ui.hpp"

#include <gdk/gdkx.h>
#include <zo_ui/platform/linux.hpp>

#include <csignal>

namespace {

class manager_process {
  public:
    manager_process() {
        const char* arguments[] = {"openbox", "--sm-disable", nullptr};
        EXPECT_TRUE(g_spawn_async(nullptr, const_cast<char**>(arguments), nullptr,
                                  static_cast<GSpawnFlags>(G_SPAWN_SEARCH_PATH | G_SPAWN_STDOUT_TO_DEV_NULL |
                                                           G_SPAWN_STDERR_TO_DEV_NULL),
                                  nullptr, nullptr, &pid_, nullptr));
        EXPECT_TRUE(test::turn_until([] {
            return test::run_command({"xprop", "-root", "_NET_SUPPORTING_WM_CHECK"}).find("# 0x") !=
                   std::string::npos;
        }));
    }
    ~manager_process() {
        kill(pid_, SIGTERM);
        g_spawn_close_pid(pid_);
    }
    manager_process(const manager_process&) = delete;
    manager_process& operator=(const manager_process&) = delete;

  private:
    GPid pid_ = 0;
};

TEST(WindowLateManager, WhatItWithdrawsStaysAway) {
    test::scoped_window window("w");
    GtkWidget* toplevel = window.show();
    for (int i = 0; i < 3; ++i) {
        zo_window_hide(window);
        zo_window_show(window);
    }
    test::run_tasks();
    const manager_process manager;
    EXPECT_TRUE(test::x_property_becomes(toplevel, "WM_STATE", "Normal"));
    EXPECT_TRUE(HideWindow(GDK_WINDOW_XID(gtk_widget_get_window(toplevel))));
    EXPECT_TRUE(test::x_property_becomes(toplevel, "WM_STATE", "Normal", false));
    // The window manager maps in order: what was asked for before this is done.
    test::scoped_window later("later");
    EXPECT_TRUE(test::x_property_becomes(later.show(), "WM_STATE", "Normal"));
    EXPECT_EQ(test::x_property(toplevel, "WM_STATE").find("Normal"), std::string::npos);
}

}  // namespace
