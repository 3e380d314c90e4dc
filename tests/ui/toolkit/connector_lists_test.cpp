// SPDX-License-Identifier: MIT
// The lists behind the connectors: which of them the statistics count, and that a widget leaves all of them.
#include "support/ui.hpp"

#include <memory>

namespace {

using sizes = std::vector<int>;

// Of the five lists, in the order in which they are written.
sizes listed() {
    const char* names[] = {"button_click_list", "toogle_change_list", "combobox_change_list",
                           "switch_change_list", "editable_text_change"};
    test::captured_output output;
    zo_ui_output_listeners_stats();
    const std::vector<std::string> lines = output.lines();
    EXPECT_EQ(lines.size(), std::size(names));
    sizes result;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string head = names[i] + std::string("\t- ");
        EXPECT_EQ(lines[i].substr(0, head.size()), head);
        result.push_back(std::stoi(lines[i].substr(head.size())));
    }
    return result;
}

GtkWidget* owned(GtkWidget* widget) { return GTK_WIDGET(g_object_ref_sink(widget)); }

void end(GtkWidget* widget) {
    gtk_widget_destroy(widget);
    g_object_unref(widget);
}

TEST(ConnectorLists, TheStatisticsCountEachOfFive) {
    const sizes none{0, 0, 0, 0, 0};
    EXPECT_EQ(listed(), none);
    GtkWidget* widgets[] = {owned(gtk_button_new()), owned(gtk_toggle_button_new()),
                            owned(gtk_combo_box_text_new()), owned(gtk_switch_new()), owned(gtk_entry_new())};
    zo_ui_connect_button_click_signal(widgets[0], [](GtkWidget*) {});
    EXPECT_EQ(listed(), (sizes{1, 0, 0, 0, 0}));
    zo_ui_connect_toogle_click_signal(widgets[1], [](GtkToggleButton*) {});
    EXPECT_EQ(listed(), (sizes{1, 1, 0, 0, 0}));
    zo_ui_connect_combobox_selection_change_signal(widgets[2], [](GtkComboBox*) {});
    EXPECT_EQ(listed(), (sizes{1, 1, 1, 0, 0}));
    zo_ui_connect_switch_button_change_signal(widgets[3], [](GtkSwitch*) {});
    EXPECT_EQ(listed(), (sizes{1, 1, 1, 1, 0}));
    zo_ui_connect_editable_text_change_signal(widgets[4], [](GtkEditable*) {});
    sizes expected{1, 1, 1, 1, 1};
    EXPECT_EQ(listed(), expected);
    for (std::size_t i = 0; i < expected.size(); ++i) {
        end(widgets[i]);
        expected[i] = 0;
        EXPECT_EQ(listed(), expected);
    }
}

TEST(ConnectorLists, TheOtherSevenAreNotCounted) {
    const auto stop = [](GtkWidget*, GdkEventButton*) { return 0; };
    GtkWidget* scale = owned(gtk_volume_button_new());
    GtkWidget* item = owned(gtk_menu_item_new());
    GtkWidget* label = owned(gtk_label_new("x"));
    GtkWidget* box = owned(gtk_event_box_new());
    zo_ui_connect_scale_value_change_signal(scale, [](GtkScaleButton*, double) {});
    zo_ui_connect_menuitem_click_signal(item, [](GtkMenuItem*) {});
    zo_ui_connect_label_link_activate(label, [](GtkLabel*, std::string&) { return true; });
    zo_ui_connect_on_draw_signal(box, [](GtkWidget*, cairo_t*) { return false; });
    zo_ui_connect_event_button_press_signal(box, stop);
    zo_ui_connect_event_button_release_signal(box, stop);
    zo_ui_connect_widget_destroy(box, [] {});
    EXPECT_EQ(listed(), (sizes{0, 0, 0, 0, 0}));
    for (GtkWidget* widget : {scale, item, label, box}) end(widget);
}

// A toggle button is in seven lists at once; "clicked" reaches the callables in the order of connecting.
TEST(ConnectorLists, AWidgetLeavesAllOfThemAtItsEnd) {
    GtkWidget* button = owned(gtk_toggle_button_new());
    const auto token = std::make_shared<int>(0);
    std::string called;
    const auto connect = [&] {
        const auto press = [token](GtkWidget*, GdkEventButton*) { return 0; };
        EXPECT_TRUE(zo_ui_connect_button_click_signal(button, [&, token](GtkWidget*) { called += "b"; }));
        EXPECT_TRUE(
            zo_ui_connect_toogle_click_signal(button, [&, token](GtkToggleButton*) { called += "t"; }));
        EXPECT_TRUE(zo_ui_connect_on_draw_signal(button, [token](GtkWidget*, cairo_t*) { return false; }));
        EXPECT_TRUE(zo_ui_connect_event_button_press_signal(button, press));
        EXPECT_TRUE(zo_ui_connect_event_button_release_signal(button, press));
        zo_ui_connect_widget_destroy(button, [token] {});
    };
    connect();
    EXPECT_EQ(token.use_count(), 7);
    EXPECT_EQ(listed(), (sizes{1, 1, 0, 0, 0}));
    gtk_button_clicked(GTK_BUTTON(button));
    EXPECT_EQ(called, "bt");
    gtk_widget_destroy(button);
    EXPECT_EQ(token.use_count(), 1);
    EXPECT_EQ(listed(), (sizes{0, 0, 0, 0, 0}));
    connect();
    EXPECT_EQ(token.use_count(), 7) << "none of the lists knows it any more";
    end(button);
    EXPECT_EQ(token.use_count(), 1);
}

TEST(ConnectorLists, CallablesGetTheirOwnWidgetAndItsValue) {
    GtkWidget* toggle = owned(gtk_switch_new());
    GtkWidget* combo = owned(gtk_combo_box_text_new());
    GtkWidget* scale = owned(gtk_volume_button_new());
    std::vector<void*> called;
    std::vector<double> values;
    zo_ui_connect_switch_button_change_signal(toggle, [&](GtkSwitch* got) { called.push_back(got); });
    zo_ui_connect_combobox_selection_change_signal(combo, [&](GtkComboBox* got) { called.push_back(got); });
    zo_ui_connect_scale_value_change_signal(scale, [&](GtkScaleButton* got, double value) {
        called.push_back(got);
        values.push_back(value);
    });
    gtk_switch_set_active(GTK_SWITCH(toggle), TRUE);
    gtk_combo_box_text_append_text(GTK_COMBO_BOX_TEXT(combo), "a");
    gtk_combo_box_set_active(GTK_COMBO_BOX(combo), 0);
    gtk_scale_button_set_value(GTK_SCALE_BUTTON(scale), 0.25);
    gtk_scale_button_set_value(GTK_SCALE_BUTTON(scale), 0.75);
    EXPECT_EQ(called, (std::vector<void*>{toggle, combo, scale, scale}));
    EXPECT_EQ(values, (std::vector<double>{0.25, 0.75}));
    for (GtkWidget* widget : {toggle, combo, scale}) end(widget);
}

}  // namespace
