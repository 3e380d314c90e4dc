// SPDX-License-Identifier: MIT
// What the toolkit's private parts promise each other.
#include "support/ui.hpp"

#include <zo_ui/toolkit/process_state_p.hpp>
#include <zo_ui/toolkit/style_p.hpp>
#include <zo_ui/toolkit/trampolines_p.hpp>

namespace {

bool no_alpha = false;

TEST(Trampolines, WithoutAListenerGiveTheNeutralValue) {
    GdkEventButton event{};
    char uri[] = "zo:x";
    EXPECT_EQ(zo::trampoline<bool(GtkWidget*, cairo_t*)>::call(nullptr, nullptr, nullptr), FALSE);
    EXPECT_EQ(zo::trampoline<bool(GtkLabel*, std::string&)>::call(nullptr, uri, nullptr), FALSE);
    EXPECT_EQ((zo::trampoline<int(GtkWidget*, GdkEventButton*)>::call(nullptr, &event, nullptr)), 0);
    zo::trampoline<void(GtkWidget*)>::call(nullptr, nullptr);
    zo::trampoline<void(GtkToggleButton*)>::call(nullptr, nullptr);
    zo::trampoline<void(GtkComboBox*)>::call(nullptr, nullptr);
    zo::trampoline<void(GtkEditable*)>::call(nullptr, nullptr);
    zo::trampoline<void(GtkMenuItem*)>::call(nullptr, nullptr);
    zo::trampoline<void(GtkScaleButton*, double)>::call(nullptr, 0.5, nullptr);
    zo::trampoline<void(GtkSwitch*)>::call(nullptr, nullptr, nullptr);
}

// Only after its call does the entry leave the list.
TEST(WidgetDestroyList, StillHasTheWidgetWhileItsCallableRuns) {
    GtkWidget* box = GTK_WIDGET(g_object_ref_sink(gtk_event_box_new()));
    auto& list = zo::toolkit().widget_destroy_list;
    const std::size_t before = list.size();
    int calls = 0;
    zo_ui_connect_widget_destroy(box, [&] {
        ++calls;
        EXPECT_NE(list.find(box), nullptr);
        EXPECT_EQ(list.size(), before + 1);
    });
    EXPECT_EQ(list.size(), before + 1);
    gtk_widget_destroy(box);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(list.find(box), nullptr);
    EXPECT_EQ(list.size(), before);
    g_object_unref(box);
}

TEST(AlphaVisual, OfAScreenWithoutOneLeavesTheWidgetAsItIs) {
    GtkWidget* window = gtk_window_new(GTK_WINDOW_POPUP);
    GdkScreen* screen = gtk_widget_get_screen(window);
    GdkVisual* plain = gdk_screen_get_system_visual(screen);
    gtk_widget_set_visual(window, plain);
    no_alpha = true;
    zo_ui_gtk_fix_visual_rgba(window);
    EXPECT_EQ(gtk_widget_get_visual(window), plain);
    zo_ui_gtk_fix_visual_rgba_on_screen_changed(window, nullptr, nullptr);
    EXPECT_EQ(gtk_widget_get_visual(window), plain);
    no_alpha = false;
    zo_ui_gtk_fix_visual_rgba(window);
    EXPECT_NE(gtk_widget_get_visual(window), plain);
    gtk_widget_destroy(window);
}

TEST(Tooltip, IsTheNameThatAssistiveProgramsRead) {
    GtkWidget* button = GTK_WIDGET(g_object_ref_sink(gtk_button_new()));
    for (const auto& [markup, name] :
         {std::pair("Save &amp; <b>close</b>", "Save & close"), std::pair("Back", "Back")}) {
        zo::set_tooltip(button, markup);
        EXPECT_STREQ(atk_object_get_name(gtk_widget_get_accessible(button)), name);
    }
    gtk_widget_destroy(button);
    g_object_unref(button);
}

}  // namespace

// Stands in for GTK's own, since every X server of a test offers such a visual.
extern "C" GdkVisual* gdk_screen_get_rgba_visual(GdkScreen* screen) {
    if (no_alpha) return nullptr;
    GList* all = gdk_screen_list_visuals(screen);
    GdkVisual* found = nullptr;
    for (GList* item = all; item && !found; item = item->next)
        if (gdk_visual_get_depth(GDK_VISUAL(item->data)) == 32) found = GDK_VISUAL(item->data);
    g_list_free(all);
    return found;
}
