// SPDX-License-Identifier: MIT
// The toplevel that the flags and texts make.
#include "ui/window/tree_support.hpp"

namespace {

TEST(WindowToplevel, IsAnUndecoratedDialogByDefault) {
    test::scoped_window window("w");
    GtkWidget* toplevel = window.open();
    auto* gtk_window = GTK_WINDOW(toplevel);
    EXPECT_EQ(gtk_window_get_window_type(gtk_window), GTK_WINDOW_TOPLEVEL);
    EXPECT_EQ(gtk_window_get_type_hint(gtk_window), GDK_WINDOW_TYPE_HINT_DIALOG);
    EXPECT_FALSE(gtk_window_get_decorated(gtk_window));
    EXPECT_FALSE(gtk_window_get_resizable(gtk_window));
    EXPECT_TRUE(gtk_window_get_skip_taskbar_hint(gtk_window));
    EXPECT_TRUE(gtk_window_get_skip_pager_hint(gtk_window));
    EXPECT_TRUE(gtk_widget_get_can_focus(toplevel));
    GtkWindowPosition position = GTK_WIN_POS_NONE;
    g_object_get(toplevel, "window-position", &position, nullptr);
    EXPECT_EQ(position, GTK_WIN_POS_CENTER);
}

TEST(WindowToplevel, FollowsEachFlag) {
    test::scoped_window window("w");
    zo_window_set_use_system_decoration(window, true);
    zo_window_set_resizable(window, true);
    zo_window_set_skip_taskbar_hint(window, false);
    auto* toplevel = GTK_WINDOW(window.open());
    EXPECT_TRUE(gtk_window_get_decorated(toplevel));
    EXPECT_TRUE(gtk_window_get_resizable(toplevel));
    EXPECT_FALSE(gtk_window_get_skip_taskbar_hint(toplevel));
    EXPECT_TRUE(gtk_window_get_skip_pager_hint(toplevel));
    EXPECT_NE(test::find_class(GTK_WIDGET(toplevel), "window-title"), nullptr);
    zo_window_close(window);
    zo_window_set_skip_pager(window, false);
    EXPECT_FALSE(gtk_window_get_skip_pager_hint(GTK_WINDOW(window.open())));
}

TEST(WindowToplevel, WithoutATitleBarIsDecoratedByTheDesktop) {
    test::scoped_window window("w");
    zo_window_set_use_built_in_title(window, false);
    zo_window_set_use_system_decoration(window, false);
    EXPECT_TRUE(gtk_window_get_decorated(GTK_WINDOW(window.open())));
    EXPECT_FALSE(zo_window_get_use_system_decoration(window));
    EXPECT_FALSE(zo_window_get_use_built_in_title(window));
}

TEST(WindowToplevel, CarriesTheClassesOfItsKind) {
    test::scoped_window window("w");
    zo_window_set_class(window, "own");
    GtkWidget* toplevel = window.open();
    EXPECT_TRUE(test::has_class(toplevel, "zo-window"));
    EXPECT_TRUE(test::has_class(toplevel, "managed"));
    EXPECT_TRUE(test::has_class(toplevel, "own"));
    EXPECT_FALSE(test::has_class(toplevel, "popup"));
    EXPECT_FALSE(test::has_class(toplevel, "global-window"));
    EXPECT_FALSE(test::has_class(toplevel, "active"));
}

TEST(WindowToplevel, ThatIsNotManagedHasNoClassForIt) {
    test::scoped_window window("w");
    zo_window_set_managed_window(window, false);
    GtkWidget* toplevel = window.open();
    EXPECT_FALSE(test::has_class(toplevel, "managed"));
    EXPECT_FALSE(test::has_class(toplevel, "popup"));
    EXPECT_TRUE(test::has_class(toplevel, "global-window"));
}

TEST(WindowToplevel, OfAnEmptyClassHasOnlyTheFixedOnes) {
    test::scoped_window window("w");
    zo_window_set_class(window, "");
    GtkWidget* toplevel = window.open();
    GList* classes = gtk_style_context_list_classes(gtk_widget_get_style_context(toplevel));
    std::vector<std::string> names;
    for (GList* item = classes; item; item = item->next) names.push_back(static_cast<char*>(item->data));
    g_list_free(classes);
    EXPECT_EQ(std::count(names.begin(), names.end(), ""), 0);
    EXPECT_EQ(std::count(names.begin(), names.end(), "global-window"), 0);
    EXPECT_EQ(std::count(names.begin(), names.end(), "zo-window"), 1);
}

TEST(WindowToplevel, TakesItsNameFromTheId) {
    test::scoped_window window("notes");
    GtkWidget* toplevel = window.open();
    EXPECT_STREQ(gtk_widget_get_name(toplevel), "notes");
    EXPECT_NE(test::find_name(toplevel, "messageboxnotes"), nullptr);
}

TEST(WindowToplevel, WithoutAnIdKeepsGtksName) {
    test::scoped_window window("");
    window.open();
    const auto all = test::toplevels("zo-window");
    ASSERT_EQ(all.size(), 1u);
    EXPECT_STREQ(gtk_widget_get_name(all[0]), "GtkWindow");
    EXPECT_NE(test::find_name(all[0], "messagebox"), nullptr);
}

TEST(WindowToplevel, TakesItsTitleFromTheText) {
    test::scoped_window window("w");
    zo_window_set_title(window, "Notes");
    EXPECT_STREQ(gtk_window_get_title(GTK_WINDOW(window.open())), "Notes");
    zo_window_close(window);
    zo_window_set_title(window, "");
    EXPECT_EQ(gtk_window_get_title(GTK_WINDOW(window.open())), nullptr);
}

TEST(WindowToplevel, HasAnAlphaChannelUnlessToldNotTo) {
    test::scoped_window window("w");
    GtkWidget* toplevel = window.open();
    GdkVisual* rgba = gdk_screen_get_rgba_visual(gtk_widget_get_screen(toplevel));
    ASSERT_NE(rgba, nullptr);
    EXPECT_EQ(gtk_widget_get_visual(toplevel), rgba);
    EXPECT_TRUE(test::has_handler(toplevel, "screen-changed"));
    zo_window_close(window);
    zo_window_set_use_rgba_visual(window, false);
    toplevel = window.open();
    EXPECT_EQ(gtk_widget_get_visual(toplevel), gdk_screen_get_system_visual(gtk_widget_get_screen(toplevel)));
    EXPECT_NE(gtk_widget_get_visual(toplevel), rgba);
    EXPECT_FALSE(test::has_handler(toplevel, "screen-changed"));
}

// What GTK emits for a window that moves to another screen.
TEST(WindowToplevel, LooksForAnAlphaChannelOnEveryNewScreen) {
    test::scoped_window window("w");
    GtkWidget* toplevel = window.open();
    GdkScreen* screen = gtk_widget_get_screen(toplevel);
    gtk_widget_set_visual(toplevel, gdk_screen_get_system_visual(screen));
    g_signal_emit_by_name(toplevel, "screen-changed", screen);
    EXPECT_EQ(gtk_widget_get_visual(toplevel), gdk_screen_get_rgba_visual(screen));
}

}  // namespace
