// SPDX-License-Identifier: MIT
// A panel that was not closed before its manager was destroyed stays usable.
#include "ui/window_manager/panel.hpp"

namespace {

GtkWidget* box_new() { return gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0); }

TEST(ManagerAfterDestroy, ThePanelTakesAndGivesWidgets) {
    const test::scoped_panel panel;
    panel.show();
    GtkWidget* left = box_new();
    GtkWidget* right = box_new();
    GtkWidget* toolbar = box_new();
    EXPECT_TRUE(zo_window_manager_add_widget_left(panel, left));
    EXPECT_TRUE(zo_window_manager_add_widget_right(panel, right));
    EXPECT_TRUE(zo_window_manager_add_toolbar(panel, GTK_BOX(toolbar)));
    panel.run(zo_window_manager_destroy);
    EXPECT_TRUE(zo_window_manager_remove_widget_left(panel, left));
    EXPECT_TRUE(zo_window_manager_remove_widget_right(panel, right));
    EXPECT_TRUE(zo_window_manager_remove_toolbar(panel, GTK_BOX(toolbar)));
    GtkWidget* late = box_new();
    GtkWidget* late_toolbar = box_new();
    EXPECT_TRUE(zo_window_manager_add_widget_left(panel, gtk_label_new("late")));
    EXPECT_TRUE(zo_window_manager_add_widget_right(panel, late));
    EXPECT_EQ(gtk_widget_get_parent(gtk_widget_get_parent(late)), test::part("manager-taskbox-right"));
    EXPECT_TRUE(zo_window_manager_add_toolbar(panel, GTK_BOX(late_toolbar)));
    EXPECT_EQ(gtk_widget_get_parent(late_toolbar), test::find_name(test::panel(), "manager-wrapper"));
    gtk_widget_destroy(test::panel());
    EXPECT_FALSE(zo_window_manager_add_widget_left(panel, nullptr));
    GtkWidget* refused = GTK_WIDGET(g_object_ref_sink(box_new()));
    EXPECT_FALSE(zo_window_manager_add_widget_right(panel, refused));
    EXPECT_FALSE(zo_window_manager_add_toolbar(panel, GTK_BOX(refused)));
    g_object_unref(refused);
    // A box in a box is no widget of a panel that is gone.
    GtkWidget* outer = GTK_WIDGET(g_object_ref_sink(box_new()));
    GtkWidget* inner = box_new();
    gtk_container_add(GTK_CONTAINER(outer), inner);
    EXPECT_FALSE(zo_window_manager_remove_widget_left(panel, inner));
    EXPECT_FALSE(zo_window_manager_remove_widget_right(panel, inner));
    EXPECT_EQ(gtk_widget_get_parent(inner), outer);
    g_object_unref(outer);
}

TEST(ManagerAfterDestroy, ThePanelSlidesAndLocks) {
    test::move_pointer(zo_ui_screen_x() + 500, zo_ui_screen_y() + 500);
    const test::scoped_panel panel;
    panel.show();
    panel.run(zo_window_manager_destroy);
    EXPECT_TRUE(test::is_retracted());
    panel.run(zo_window_manager_extend);
    EXPECT_TRUE(test::is_extended());
    panel.run(zo_window_manager_retract);
    EXPECT_TRUE(test::is_retracted());
    panel.keep_extended(true);
    EXPECT_TRUE(test::part("lock-locked"));
    test::move_pointer(zo_ui_screen_x() + 500, zo_ui_screen_y());
    EXPECT_TRUE(test::is_extended());
    test::move_pointer(zo_ui_screen_x() + 500, zo_ui_screen_y() + 500);
    EXPECT_TRUE(test::is_extended());
    gtk_widget_destroy(test::panel());
    panel.run(zo_window_manager_extend);
    panel.keep_extended(false);
    EXPECT_FALSE(zo_window_manager_get_keep_extended(panel));
}

// Wherever it was.
TEST(ManagerAfterDestroy, APanelThatIsGoneSlidesNoMore) {
    test::move_pointer(zo_ui_screen_x() + 500, zo_ui_screen_y() + 500);
    for (const bool extended : {true, false}) {
        const test::scoped_panel panel;
        panel.keep_extended(extended);
        panel.show();
        EXPECT_TRUE(extended ? test::is_extended() : test::is_retracted());
        panel.run(zo_window_manager_destroy);
        gtk_widget_destroy(test::panel());
        panel.run(zo_window_manager_extend);
        panel.run(zo_window_manager_retract);
        EXPECT_FALSE(test::panel());
    }
}

}  // namespace
