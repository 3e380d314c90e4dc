// SPDX-License-Identifier: MIT
// Settings: flips the flags of the other windows while they are open, and opens them again.
#include "workshop.hpp"

namespace {

struct flag {
    const char* label;
    bool (*get)(zo_window_ptr);
    bool (*set)(zo_window_ptr, bool);
};

constexpr flag flags[] = {
    {"Built-in title", zo_window_get_use_built_in_title, zo_window_set_use_built_in_title},
    {"Back button", zo_window_get_enable_title_back, zo_window_set_enable_title_back},
    {"Hint button", zo_window_get_enable_title_hint, zo_window_set_enable_title_hint},
    {"Menu button", zo_window_get_enable_title_menu, zo_window_set_enable_title_menu},
    {"Minimize button", zo_window_get_enable_title_minimize, zo_window_set_enable_title_minimize},
    {"Drag by the title", zo_window_get_drag_enabled, zo_window_set_drag_enabled},
    {"Keep above", zo_window_get_keep_above, zo_window_set_keep_above},
    {"In the task bar", [](zo_window_ptr w) { return !zo_window_get_skip_taskbar_hint(w); },
     [](zo_window_ptr w, bool on) { return zo_window_set_skip_taskbar_hint(w, !on); }},
    {"Advertisement strip", zo_window_get_enable_content_ads, zo_window_set_enable_content_ads},
    {"Scrolling content", zo_window_get_use_scroll, zo_window_set_use_scroll},
};

struct panel {
    demo::workshop* shop;
    zo_window_ptr subject;
    std::vector<GtkSwitch*> switches;  // empty while the window is closed
    bool following = false;            // the switches are being set, not used
};

void follow_subject(panel& p) {
    p.following = true;
    for (std::size_t i = 0; i < p.switches.size(); ++i)
        gtk_switch_set_active(p.switches[i], flags[i].get(p.subject));
    p.following = false;
}

GtkWidget* row_of(const char* label, GtkWidget* control) {
    GtkWidget* row = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 12);
    GtkWidget* text = demo::text_label(label);
    atk_object_set_name(gtk_widget_get_accessible(control), label);
    gtk_widget_set_valign(control, GTK_ALIGN_CENTER);
    gtk_box_pack_start(GTK_BOX(row), text, TRUE, TRUE, 0);
    gtk_box_pack_end(GTK_BOX(row), control, FALSE, FALSE, 0);
    return row;
}

GtkWidget* subject_chooser(panel& p) {
    GtkWidget* chooser = gtk_combo_box_text_new();
    gtk_combo_box_text_append_text(GTK_COMBO_BOX_TEXT(chooser), "Notes");
    gtk_combo_box_text_append_text(GTK_COMBO_BOX_TEXT(chooser), "Studio");
    gtk_combo_box_set_active(GTK_COMBO_BOX(chooser), p.subject == p.shop->notes ? 0 : 1);
    zo_ui_connect_combobox_selection_change_signal(chooser, [&p](GtkComboBox* changed) {
        p.subject = gtk_combo_box_get_active(changed) == 0 ? p.shop->notes : p.shop->studio;
        follow_subject(p);
    });
    return chooser;
}

GtkWidget* flag_list(panel& p) {
    GtkWidget* list = gtk_box_new(GTK_ORIENTATION_VERTICAL, 7);
    for (const flag& entry : flags) {
        GtkWidget* button = gtk_switch_new();
        gtk_widget_set_name(button, entry.label);
        p.switches.push_back(GTK_SWITCH(button));
        zo_ui_connect_switch_button_change_signal(button, [&p, &entry](GtkSwitch* changed) {
            if (p.following) return;
            entry.set(p.subject, gtk_switch_get_active(changed));
            p.shop->log.add("settings",
                            std::string(entry.label) + (gtk_switch_get_active(changed) ? ": on" : ": off"));
        });
        gtk_box_pack_start(GTK_BOX(list), row_of(entry.label, button), FALSE, FALSE, 0);
    }
    zo_ui_connect_widget_destroy(list, [&p] { p.switches.clear(); });
    follow_subject(p);
    return list;
}

GtkWidget* title_entry(panel& p) {
    GtkWidget* entry = gtk_entry_new();
    gtk_entry_set_width_chars(GTK_ENTRY(entry), 14);
    gtk_entry_set_placeholder_text(GTK_ENTRY(entry), "New title");
    gtk_widget_set_name(entry, "title-entry");
    zo_ui_connect_editable_text_change_signal(entry, [&p](GtkEditable* changed) {
        const std::string text = gtk_entry_get_text(GTK_ENTRY(changed));
        if (!text.empty()) zo_window_set_title(p.subject, text);
    });
    return entry;
}

GtkWidget* toolbar_switch(panel& p) {
    GtkWidget* button = gtk_switch_new();
    gtk_widget_set_name(button, "toolbar");
    gtk_switch_set_active(GTK_SWITCH(button), p.shop->toolbar != nullptr);
    zo_ui_connect_switch_button_change_signal(
        button, [&p](GtkSwitch* changed) { demo::show_toolbar(*p.shop, gtk_switch_get_active(changed)); });
    return button;
}

GtkWidget* veto_switch(panel& p) {
    GtkWidget* button = gtk_switch_new();
    gtk_widget_set_name(button, "refuse-to-close");
    gtk_switch_set_active(GTK_SWITCH(button), p.shop->ask_before_closing);
    zo_ui_connect_switch_button_change_signal(
        button, [&p](GtkSwitch* changed) { p.shop->ask_before_closing = gtk_switch_get_active(changed); });
    return button;
}

void build_content(panel& p, const zo_window_ptr& window) {
    const auto add = [&window](GtkWidget* child, int padding) {
        zo_window_add_content_child(window, child, false, false, padding, false);
    };
    add(row_of("<b>Window</b>", subject_chooser(p)), 0);
    add(row_of("Title", title_entry(p)), 8);
    add(flag_list(p), 4);
    add(row_of("Refuse to close", veto_switch(p)), 3);
    add(row_of("Toolbar on the panel", toolbar_switch(p)), 3);
    GtkWidget* apply = zo_ui_button_new_with_label("Open it again");
    gtk_widget_set_name(apply, "open-again");
    gtk_style_context_add_class(gtk_widget_get_style_context(apply), "suggested-action");
    zo_ui_connect_button_click_signal(apply, [&p](GtkWidget*) { demo::reopen(*p.shop, p.subject); });
    add(apply, 10);
}

}  // namespace

void demo::make_settings_window(workshop& shop) {
    const auto p = std::make_shared<panel>(panel{&shop, shop.notes, {}});
    shop.settings = zo_window_new("settings");
    zo_window_set_title(shop.settings, "Settings");
    log_life_cycle(shop, shop.settings, "settings");
    zo_window_set_window_open_callback(shop.settings, [p](zo_window_ptr window) {
        build_content(*p, window);
        p->shop->log.add("settings", "open");
    });
    // The panel holds the windows it changes: it lets go with its own.
    zo_window_set_window_destroy_callback(shop.settings, [p](zo_window_ptr) {
        p->subject.reset();
        p->shop->log.add("settings", "destroy");
    });
}
