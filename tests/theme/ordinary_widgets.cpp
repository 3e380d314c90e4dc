// SPDX-License-Identifier: MIT
// The widgets that applications put into windows.
#include "theme/scene.hpp"
#include "theme/states.hpp"

#include <initializer_list>

namespace {

GtkWidget* dressed(GtkWidget* widget, std::initializer_list<const char*> classes) {
    for (const char* name : classes) gtk_style_context_add_class(gtk_widget_get_style_context(widget), name);
    return widget;
}

GtkWidget* column(std::initializer_list<GtkWidget*> widgets) {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_VERTICAL, 6);
    for (GtkWidget* widget : widgets) gtk_box_pack_start(GTK_BOX(box), widget, FALSE, FALSE, 0);
    return box;
}

GtkWidget* row(std::initializer_list<GtkWidget*> widgets) {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 6);
    for (GtkWidget* widget : widgets) theme::pack(box, widget);
    return box;
}

GtkWidget* labels() {
    GtkWidget* link = gtk_label_new(nullptr);
    gtk_label_set_markup(GTK_LABEL(link),
                         "Read <a href=\"https://example.org\">the plan of the day</a> first");
    GtkWidget* chosen = gtk_label_new("Chosen text of a label");
    gtk_label_set_selectable(GTK_LABEL(chosen), TRUE);
    g_object_set_data(G_OBJECT(chosen), theme::chosen_length, GINT_TO_POINTER(6));
    GtkWidget* plain = gtk_label_new("A line of text");
    gtk_widget_set_name(plain, "plain");
    return column({plain, dressed(gtk_label_new("A dim line"), {"dim-label"}), link, chosen,
                   gtk_image_new_from_icon_name("edit-find-symbolic", GTK_ICON_SIZE_BUTTON)});
}

GtkWidget* buttons() {
    GtkWidget* disabled = zo_ui_button_new_with_label("Disabled");
    gtk_widget_set_sensitive(disabled, FALSE);
    return column(
        {row({zo_ui_button_new_with_label("Plain"), gtk_toggle_button_new_with_label("Toggle"), disabled}),
         row({dressed(gtk_button_new_with_label("Save"), {"suggested-action"}),
              dressed(gtk_button_new_with_label("Delete"), {"destructive-action"}),
              dressed(gtk_button_new_with_label("Flat"), {"flat"})}),
         row({zo_ui_button16_new("icon-add"), zo_ui_button24_new("icon-search"),
              zo_ui_button32_new("icon-warning"), zo_ui_button24_new("icon-next"),
              zo_ui_button24_new("icon-settings"),
              gtk_button_new_from_icon_name("edit-copy-symbolic", GTK_ICON_SIZE_BUTTON),
              gtk_link_button_new_with_label("https://example.org", "A link")})});
}

GtkWidget* fields() {
    GtkWidget* filled = gtk_entry_new();
    gtk_entry_set_text(GTK_ENTRY(filled), "Written and chosen");
    gtk_entry_set_icon_from_icon_name(GTK_ENTRY(filled), GTK_ENTRY_ICON_SECONDARY, "edit-clear-symbolic");
    g_object_set_data(G_OBJECT(filled), theme::chosen_length, GINT_TO_POINTER(7));
    GtkWidget* hinted = gtk_entry_new();
    gtk_entry_set_placeholder_text(GTK_ENTRY(hinted), "Placeholder");
    GtkWidget* number = gtk_spin_button_new_with_range(0, 100, 1);
    GtkWidget* search = gtk_search_entry_new();
    GtkWidget* editable = gtk_combo_box_text_new_with_entry();
    GtkWidget* text = gtk_text_view_new();
    gtk_text_buffer_set_text(gtk_text_view_get_buffer(GTK_TEXT_VIEW(text)), "Several words\nof a longer text",
                             -1);
    gtk_widget_set_size_request(text, -1, 50);
    return column({filled, hinted, search, number, editable, text});
}

GtkWidget* switches() {
    GtkWidget* on = gtk_switch_new();
    gtk_switch_set_active(GTK_SWITCH(on), TRUE);
    GtkWidget* check = gtk_check_button_new_with_label("Checked");
    gtk_toggle_button_set_active(GTK_TOGGLE_BUTTON(check), TRUE);
    GtkWidget* between = gtk_check_button_new_with_label("In between");
    gtk_toggle_button_set_inconsistent(GTK_TOGGLE_BUTTON(between), TRUE);
    GtkWidget* radio = gtk_radio_button_new_with_label(nullptr, "This");
    GtkWidget* other = gtk_radio_button_new_with_label_from_widget(GTK_RADIO_BUTTON(radio), "That");
    GtkWidget* choice = gtk_combo_box_text_new();
    gtk_combo_box_text_append_text(GTK_COMBO_BOX_TEXT(choice), "One of several");
    gtk_combo_box_set_active(GTK_COMBO_BOX(choice), 0);
    return column({row({on, gtk_switch_new(), choice}), row({check, between}), row({radio, other})});
}

GtkWidget* bars() {
    GtkWidget* scale = gtk_scale_new_with_range(GTK_ORIENTATION_HORIZONTAL, 0, 10, 1);
    gtk_range_set_value(GTK_RANGE(scale), 4);
    gtk_scale_add_mark(GTK_SCALE(scale), 6, GTK_POS_BOTTOM, "mark");
    GtkWidget* progress = gtk_progress_bar_new();
    gtk_progress_bar_set_fraction(GTK_PROGRESS_BAR(progress), 0.6);
    gtk_progress_bar_set_show_text(GTK_PROGRESS_BAR(progress), TRUE);
    GtkWidget* level = gtk_level_bar_new_for_interval(0, 1);
    gtk_level_bar_set_value(GTK_LEVEL_BAR(level), 0.7);
    return column({scale, progress, level, gtk_separator_new(GTK_ORIENTATION_HORIZONTAL)});
}

GtkWidget* list() {
    GtkWidget* rows = gtk_list_box_new();
    for (const char* text : {"A row", "The chosen row", "One more row"})
        gtk_container_add(GTK_CONTAINER(rows), gtk_label_new(text));
    gtk_list_box_select_row(GTK_LIST_BOX(rows), gtk_list_box_get_row_at_index(GTK_LIST_BOX(rows), 1));
    return rows;
}

GtkWidget* table() {
    GtkListStore* store = gtk_list_store_new(1, G_TYPE_STRING);
    for (const char* text : {"first", "second", "third"})
        gtk_list_store_insert_with_values(store, nullptr, -1, 0, text, -1);
    GtkWidget* view = gtk_tree_view_new_with_model(GTK_TREE_MODEL(store));
    g_object_unref(store);
    gtk_tree_view_insert_column_with_attributes(GTK_TREE_VIEW(view), -1, "Heading",
                                                gtk_cell_renderer_text_new(), "text", 0, nullptr);
    GtkTreePath* second = gtk_tree_path_new_from_indices(1, -1);
    gtk_tree_selection_select_path(gtk_tree_view_get_selection(GTK_TREE_VIEW(view)), second);
    gtk_tree_path_free(second);
    return view;
}

GtkWidget* containers() {
    GtkWidget* book = gtk_notebook_new();
    for (const char* text : {"Front", "Behind"})
        gtk_notebook_append_page(GTK_NOTEBOOK(book), gtk_label_new("On a page"), gtk_label_new(text));
    GtkWidget* folded = gtk_expander_new("More of it");
    GtkWidget* unfolded = gtk_expander_new("Less of it");
    gtk_expander_set_expanded(GTK_EXPANDER(unfolded), TRUE);
    gtk_container_add(GTK_CONTAINER(unfolded), gtk_label_new("What was folded"));
    GtkWidget* frame = gtk_frame_new("Framed");
    gtk_container_add(GTK_CONTAINER(frame), gtk_label_new("In the frame"));
    GtkWidget* linked = row({gtk_button_new_with_label("Left"), gtk_button_new_with_label("Right")});
    gtk_box_set_spacing(GTK_BOX(linked), 0);
    return column({book, folded, unfolded, frame, dressed(linked, {"linked"})});
}

}  // namespace

void theme::pack(GtkWidget* box, GtkWidget* widget) {
    if (gtk_orientable_get_orientation(GTK_ORIENTABLE(box)) == GTK_ORIENTATION_HORIZONTAL)
        gtk_widget_set_valign(widget, GTK_ALIGN_CENTER);
    gtk_box_pack_start(GTK_BOX(box), widget, FALSE, FALSE, 0);
}

GtkWidget* theme::popover_new(GtkWidget* beside) {
    GtkWidget* popover = gtk_popover_new(beside);
    gtk_popover_set_modal(GTK_POPOVER(popover), FALSE);
    gtk_container_add(GTK_CONTAINER(popover),
                      column({gtk_label_new("In a popover"), gtk_button_new_with_label("Done")}));
    gtk_widget_show_all(gtk_bin_get_child(GTK_BIN(popover)));
    return popover;
}

GtkWidget* theme::ordinary_widgets() {
    GtkWidget* columns = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 18);
    for (GtkWidget* part : {column({labels(), buttons(), switches(), bars()}),
                            column({fields(), list(), table()}), column({containers(), gtk_calendar_new()})})
        gtk_box_pack_start(GTK_BOX(columns), part, FALSE, FALSE, 0);
    gtk_widget_show_all(columns);
    return columns;
}
