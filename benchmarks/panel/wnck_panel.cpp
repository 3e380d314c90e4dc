// SPDX-License-Identifier: MIT
// wnck_panel WINDOWS: a panel with the task list of libwnck. It lists the windows of the desktop, so there
// are as many.
#include <desktop/clients.hpp>
#include <desktop/desktop.hpp>
#include <panel/titles.hpp>

#define WNCK_I_KNOW_THIS_IS_UNSTABLE
#include <libwnck/libwnck.h>

#include <cstdlib>

namespace {

GtkWidget* panel_new(WnckHandle* handle) {
    GtkWidget* panel = gtk_window_new(GTK_WINDOW_POPUP);
    GtkWidget* list = wnck_tasklist_new_with_handle(handle);
    wnck_tasklist_set_grouping(WNCK_TASKLIST(list), WNCK_TASKLIST_NEVER_GROUP);
    gtk_container_add(GTK_CONTAINER(panel), list);
    gtk_widget_set_size_request(panel, 1920, 34);
    gtk_widget_show_all(panel);
    bench::turn_until_drawn(panel);
    return panel;
}

}  // namespace

int main(int, char** arguments) {
    const int count = std::atoi(arguments[1]);
    const bench::clients clients(bench::title);
    bench::begin();
    clients.map(count);
    WnckHandle* const handle = wnck_handle_new(WNCK_CLIENT_TYPE_PAGER);
    WnckScreen* const screen = wnck_handle_get_default_screen(handle);
    wnck_screen_force_update(screen);
    GtkWidget* panel = nullptr;
    {
        const bench::step step("show", count);
        panel = panel_new(handle);
    }
    {
        const bench::step step("join", bench::joining);
        const auto wanted = static_cast<guint>(count + bench::joining);
        clients.map(bench::joining);
        bench::turn_until([&] { return g_list_length(wnck_screen_get_windows(screen)) >= wanted; });
        bench::frame(panel);
    }
    bench::leave();
}
