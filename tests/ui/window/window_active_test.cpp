// SPDX-License-Identifier: MIT
// The one window of the process that carries the class "active".
#include "support/desktop.hpp"
#include "ui/window/tree_support.hpp"

namespace {

void focus(GtkWidget* toplevel) {
    gdk_window_focus(gtk_widget_get_window(toplevel), GDK_CURRENT_TIME);
    EXPECT_TRUE(test::turn_until([&] { return gtk_window_is_active(GTK_WINDOW(toplevel)); }));
}

bool is_active(GtkWidget* toplevel) { return test::has_class(toplevel, "active"); }

TEST(WindowActive, IsTheManagedWindowThatGotTheFocusLast) {
    test::scoped_window first("first");
    test::scoped_window second("second");
    GtkWidget* one = first.show();
    GtkWidget* two = second.show();
    for (int round = 0; round < 2; ++round) {
        focus(one);
        EXPECT_TRUE(is_active(one));
        EXPECT_FALSE(is_active(two));
        focus(two);
        EXPECT_FALSE(is_active(one));
        EXPECT_TRUE(is_active(two));
    }
}

TEST(WindowActive, StaysSoWithoutTheFocus) {
    test::scoped_window window("w");
    GtkWidget* toplevel = window.show();
    focus(toplevel);
    GtkWidget* other = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_widget_show_all(other);
    EXPECT_TRUE(test::turn_until([&] { return test::is_on_screen(other); }));
    focus(other);
    EXPECT_TRUE(test::turn_until([&] { return !gtk_window_is_active(GTK_WINDOW(toplevel)); }));
    EXPECT_TRUE(is_active(toplevel));
    gtk_widget_destroy(other);
}

TEST(WindowActive, IsNoWindowThatIsNotManaged) {
    test::scoped_window managed("managed");
    test::scoped_window free("free");
    zo_window_set_managed_window(free, false);
    GtkWidget* one = managed.show();
    GtkWidget* two = free.show();
    focus(one);
    focus(two);
    EXPECT_TRUE(is_active(one));
    EXPECT_FALSE(is_active(two));
}

TEST(WindowActive, MayBeTakenAwayAndOpenedAnew) {
    test::scoped_window first("first");
    test::scoped_window second("second");
    focus(first.show());
    GtkWidget* two = second.show();
    zo_window_close(first);
    test::run_tasks();
    focus(two);
    EXPECT_TRUE(is_active(two));
    GtkWidget* one = first.open();
    EXPECT_FALSE(is_active(one));
    zo_window_show(first);
    EXPECT_TRUE(test::turn_until([&] { return test::is_on_screen(one); }));
    focus(one);
    EXPECT_TRUE(is_active(one));
    EXPECT_FALSE(is_active(two));
}

TEST(WindowActive, KeepsItsClassWhenTheWindowsOwnChanges) {
    test::scoped_window window("w");
    GtkWidget* toplevel = window.show();
    focus(toplevel);
    for (const char* own : {"other", "active", "third", "managed", "zo-window", ""}) {
        zo_window_set_class(window, own);
        test::run_tasks();
        for (const char* fixed : {"active", "managed", "zo-window"})
            EXPECT_TRUE(test::has_class(toplevel, fixed)) << fixed << " as " << own;
    }
}

TEST(WindowActive, IsNotMarkedByAClassOfItsName) {
    test::scoped_window window("w");
    zo_window_set_class(window, "active");
    GtkWidget* toplevel = window.open();
    zo_window_set_class(window, "other");
    test::run_tasks();
    EXPECT_FALSE(is_active(toplevel));
}

// The library makes the toplevel itself its focus widget. GTK takes the focus that moves on from there to
// another widget for one that left the window.
TEST(WindowActive, KeepsTheKeyboardWhenTheFocusMovesInside) {
    test::scoped_window window("w");
    GtkWidget* toplevel = window.open();
    GtkWidget* entries[] = {gtk_entry_new(), gtk_entry_new()};
    for (GtkWidget* entry : entries) {
        gtk_widget_show(entry);
        zo_window_add_content_child(window, entry, false, false, 0, false);
    }
    zo_window_show(window);
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(toplevel); }));
    test::settle_desktop();
    focus(toplevel);
    for (int round = 0; round < 2; ++round) {
        zo_window_activate(window);
        test::run_tasks();
        test::settle_desktop();
        EXPECT_EQ(gtk_window_get_focus(GTK_WINDOW(toplevel)), toplevel);
        test::click(entries[0]);
        EXPECT_TRUE(test::turn_until([&] { return gtk_widget_is_focus(entries[0]); }));
        EXPECT_TRUE(gtk_window_is_active(GTK_WINDOW(toplevel)));
        EXPECT_TRUE(gtk_widget_has_focus(entries[0]));
        test::type_key("Tab");
        EXPECT_TRUE(test::turn_until([&] { return gtk_widget_has_focus(entries[1]); }));
    }
    // The real end of the focus is seen all the same.
    GtkWidget* other = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_widget_show_all(other);
    EXPECT_TRUE(test::turn_until([&] { return test::is_on_screen(other); }));
    focus(other);
    EXPECT_TRUE(test::turn_until([&] { return !gtk_window_is_active(GTK_WINDOW(toplevel)); }));
    EXPECT_FALSE(gtk_widget_has_focus(entries[1]));
    gtk_widget_destroy(other);
}

}  // namespace
