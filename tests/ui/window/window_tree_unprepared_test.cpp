// SPDX-License-Identifier: MIT
// Windows and popups of a program that never called zo_ui_init: no screen is known, so nothing is bounded by
// it.
#define ZO_TEST_WITHOUT_UI_INIT
#include "support/desktop.hpp"
#include "ui/window/tree_support.hpp"

namespace {

TEST(UnpreparedWindow, HasNoMaximumSize) {
    test::scoped_window window("w");
    zo_window_set_resizable(window, true);
    GtkWidget* toplevel = window.show();
    const std::string hints = test::x_property(toplevel, "WM_NORMAL_HINTS");
    EXPECT_EQ(hints.find("maximum size"), std::string::npos) << hints;
}

TEST(UnpreparedWindow, TakesTheSizeOfItsContent) {
    test::scoped_window window("w");
    GtkWidget* toplevel = window.open();
    zo_window_add_content_child(window, test::block(640, 480), true, true, 0, false);
    zo_window_show(window);
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(toplevel); }));
    auto* scroll = GTK_SCROLLED_WINDOW(test::find_class(toplevel, "window-scroll"));
    EXPECT_EQ(gtk_scrolled_window_get_min_content_width(scroll), 640);
    EXPECT_EQ(gtk_scrolled_window_get_min_content_height(scroll), 480);
}

TEST(UnpreparedNotification, HasItsWholeContent) {
    const zo_notification_ptr notification = zo_notification_new();
    std::string content = "<b>bold</b>";
    for (int line = 0; line < 20; ++line) content += "\nA line of the content";
    zo_notification_set_content(notification, content);
    zo_notification_open_show(notification);
    test::run_tasks();
    auto* label = GTK_LABEL(test::find_class(test::toplevels("zo-notification").at(0), "content-text"));
    EXPECT_EQ(gtk_label_get_label(label), content);
    EXPECT_EQ(gtk_label_get_line_wrap_mode(label), PANGO_WRAP_WORD);
    zo_notification_destroy(notification);
    test::run_tasks();
}

// There is nothing to be centred on.
TEST(UnpreparedWindow, ThatWasMaximisedKeepsItsPlace) {
    test::scoped_window window("w");
    GtkWidget* toplevel = window.show();
    test::settle_desktop();
    int x = 0;
    int y = 0;
    gtk_window_get_position(GTK_WINDOW(toplevel), &x, &y);
    for (const int state : {164, 160}) {
        GdkEvent* event = gdk_event_new(GDK_WINDOW_STATE);
        event->window_state.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(toplevel)));
        event->window_state.changed_mask = GDK_WINDOW_STATE_MAXIMIZED;
        event->window_state.new_window_state = static_cast<GdkWindowState>(state);
        gtk_widget_event(toplevel, event);
        gdk_event_free(event);
    }
    test::settle_desktop();
    int now_x = 0;
    int now_y = 0;
    gtk_window_get_position(GTK_WINDOW(toplevel), &now_x, &now_y);
    EXPECT_EQ(now_x, x);
    EXPECT_EQ(now_y, y);
}

}  // namespace
