// SPDX-License-Identifier: MIT
// A retracted panel reaches into a monitor that stands above its own: it takes no pointer away there.
#include "ui/window_manager/panel.hpp"
#include "ui/window_manager/two_monitors.hpp"

namespace {

bool prepare_monitors(int* argc, char*** argv) {
    return test::arrange_monitors("above") && test::prepare_ui(argc, argv);
}
const test::preparation monitors_ready{prepare_monitors};

TEST(ManagerMonitorAbove, WhatARetractedPanelCoversHasThePointer) {
    test::move_pointer(500, zo_ui_screen_y() + 400);
    const test::scoped_panel panel;
    panel.show();
    ASSERT_TRUE(test::is_retracted());
    const test::place p = test::place_of(test::panel());
    ASSERT_GT(p.y, 0);
    GtkWidget* under = gtk_window_new(GTK_WINDOW_POPUP);
    gtk_widget_set_size_request(under, 300, p.height - 2);
    gtk_window_move(GTK_WINDOW(under), p.x + 200, p.y);
    gtk_widget_show(under);
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(under); }));
    gdk_window_lower(gtk_widget_get_window(under));
    test::settle_desktop();
    int entered = 0;
    g_signal_connect_swapped(under, "enter-notify-event",
                             G_CALLBACK(+[](int* count) -> gboolean { return ++*count > 0; }), &entered);
    test::move_pointer(p.x + 300, p.y + 5);
    EXPECT_TRUE(test::turn_until([&] { return entered > 0; }));
    EXPECT_TRUE(test::is_retracted());
    gtk_widget_destroy(under);
}

}  // namespace
