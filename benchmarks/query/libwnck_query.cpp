// SPDX-License-Identifier: MIT
// With a handle of its own, which knows nothing of the screen before; GDK's connection stays.
#define WNCK_I_KNOW_THIS_IS_UNSTABLE
#include "query.hpp"

#include <gdk/gdk.h>
#include <libwnck/libwnck.h>

namespace {

bench::facts ask() {
    static const bool opened = gdk_init_check(nullptr, nullptr);
    bench::facts found;
    if (!opened) return found;
    WnckHandle* handle = wnck_handle_new(WNCK_CLIENT_TYPE_APPLICATION);
    WnckScreen* screen = wnck_handle_get_default_screen(handle);
    wnck_screen_force_update(screen);
    if (WnckWindow* window = wnck_screen_get_active_window(screen))
        found = {wnck_window_get_name(window), wnck_window_get_class_instance_name(window),
                 wnck_window_get_class_group_name(window), wnck_window_get_pid(window)};
    g_object_unref(handle);
    return found;
}

}  // namespace

int main(int argc, char** argv) { return bench::run_query(argc, argv, ask); }
