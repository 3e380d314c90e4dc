// SPDX-License-Identifier: MIT
#include "support/ui.hpp"

namespace {

TEST(Tools, TranslatesAsTheCoreDoes) {
    EXPECT_EQ(zo_ui_get_translate("tooltip_menu"), zo_lang_get_string("tooltip_menu"));
    EXPECT_EQ(zo_ui_get_translate("no such key"), "no such key");
}

TEST(Tools, LeavesLinksToGtk) {
    GtkWidget* label = GTK_WIDGET(g_object_ref_sink(gtk_label_new("x")));
    char uri[] = "zo:x";
    EXPECT_FALSE(zo_ui_on_link_activated_default_open(GTK_LABEL(label), uri, nullptr));
    gtk_widget_destroy(label);
    g_object_unref(label);
}

TEST(Tools, GivesTheScreensAlphaVisual) {
    for (const bool by_signal : {false, true}) {
        GtkWidget* window = gtk_window_new(GTK_WINDOW_POPUP);
        GdkVisual* alpha = gdk_screen_get_rgba_visual(gtk_widget_get_screen(window));
        ASSERT_NE(alpha, nullptr);
        if (by_signal)
            zo_ui_gtk_fix_visual_rgba_on_screen_changed(window, nullptr, nullptr);
        else
            zo_ui_gtk_fix_visual_rgba(window);
        EXPECT_EQ(gtk_widget_get_visual(window), alpha);
        gtk_widget_destroy(window);
    }
}

}  // namespace
