// SPDX-License-Identifier: MIT
#include "controls.hpp"

#include "texts.hpp"

#include <zo_ui/zo_ui.hpp>

#include <memory>
#include <utility>

namespace {

constexpr int row_gap = 6;

// Ticks as long as its widget lives.
struct ticker {
    bool alive = true;
    unsigned long timeout = 0;
    unsigned long milliseconds;
    std::function<void()> refresh;
};

void tick(const std::shared_ptr<ticker>& running) {
    if (!running->alive) return;
    running->refresh();
    running->timeout =
        zo_system_service_timeout([running] { tick(running); }, running->milliseconds, "demo", __LINE__);
}

// Those whose widgets live. Never destroyed: widgets may outlive main.
std::vector<std::shared_ptr<ticker>>& tickers() {
    static auto& all = *new std::vector<std::shared_ptr<ticker>>;
    return all;
}

GtkWidget* value_label_new() {
    GtkWidget* label = gtk_label_new("");
    gtk_label_set_xalign(GTK_LABEL(label), 0);
    gtk_label_set_ellipsize(GTK_LABEL(label), PANGO_ELLIPSIZE_END);
    gtk_label_set_selectable(GTK_LABEL(label), TRUE);
    gtk_widget_set_can_focus(label, FALSE);
    gtk_widget_set_hexpand(label, TRUE);
    demo::add_class(label, "gallery-value");
    return label;
}

void wrap_label(GtkWidget* child) {
    if (!GTK_IS_LABEL(child)) return;
    gtk_label_set_line_wrap(GTK_LABEL(child), TRUE);
    gtk_label_set_justify(GTK_LABEL(child), GTK_JUSTIFY_CENTER);
}

}  // namespace

void demo::add_class(GtkWidget* widget, const char* style_class) {
    gtk_style_context_add_class(gtk_widget_get_style_context(widget), style_class);
}

void demo::append(GtkWidget* box, GtkWidget* child) {
    gtk_box_pack_start(GTK_BOX(box), child, FALSE, FALSE, 0);
}

GtkWidget* demo::text_label(const std::string& markup) {
    GtkWidget* label = gtk_label_new(nullptr);
    gtk_label_set_markup(GTK_LABEL(label), markup.c_str());
    gtk_label_set_xalign(GTK_LABEL(label), 0);
    return label;
}

GtkWidget* demo::heading_new(const char* text) {
    GtkWidget* label = gtk_label_new(text);
    gtk_label_set_xalign(GTK_LABEL(label), 0);
    add_class(label, "gallery-heading");
    return label;
}

GtkWidget* demo::note_new(const char* text) {
    GtkWidget* label = gtk_label_new(text);
    gtk_label_set_xalign(GTK_LABEL(label), 0);
    gtk_label_set_line_wrap(GTK_LABEL(label), TRUE);
    gtk_label_set_max_width_chars(GTK_LABEL(label), 1);  // as wide as its column, not as its text
    add_class(label, "dim-label");
    return label;
}

GtkWidget* demo::buttons_new(const std::vector<button_text>& buttons, int columns) {
    GtkWidget* grid = gtk_grid_new();
    gtk_grid_set_column_homogeneous(GTK_GRID(grid), TRUE);
    gtk_grid_set_column_spacing(GTK_GRID(grid), row_gap);
    gtk_grid_set_row_spacing(GTK_GRID(grid), row_gap);
    int i = 0;
    for (const button_text& entry : buttons) {
        GtkWidget* button = zo_ui_button_new_with_label(entry.label);
        gtk_widget_set_name(button, entry.name);
        gtk_widget_set_hexpand(button, TRUE);
        wrap_label(gtk_bin_get_child(GTK_BIN(button)));
        zo_ui_connect_button_click_signal(button, [pressed = entry.pressed](GtkWidget*) { pressed(); });
        gtk_grid_attach(GTK_GRID(grid), button, i % columns, i / columns, 1, 1);
        ++i;
    }
    return grid;
}

GtkWidget* demo::row_new(const char* label, GtkWidget* control) {
    GtkWidget* row = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 12);
    GtkWidget* text = gtk_label_new(label);
    gtk_label_set_xalign(GTK_LABEL(text), 0);
    gtk_label_set_line_wrap(GTK_LABEL(text), TRUE);
    atk_object_set_name(gtk_widget_get_accessible(control), label);
    gtk_widget_set_valign(control, GTK_ALIGN_CENTER);
    gtk_box_pack_start(GTK_BOX(row), text, TRUE, TRUE, 0);
    gtk_box_pack_end(GTK_BOX(row), control, FALSE, FALSE, 0);
    return row;
}

GtkWidget* demo::toggle_new(const char* name, const char* label, bool on, std::function<void(bool)> flipped) {
    GtkWidget* control = gtk_switch_new();
    gtk_widget_set_name(control, name);
    gtk_switch_set_active(GTK_SWITCH(control), on);
    zo_ui_connect_switch_button_change_signal(
        control, [flipped](GtkSwitch* changed) { flipped(gtk_switch_get_active(changed)); });
    return row_new(label, control);
}

GtkWidget* demo::entry_new(const char* name, const std::string& text,
                           std::function<void(std::string)> edited) {
    GtkWidget* entry = gtk_entry_new();
    gtk_widget_set_name(entry, name);
    gtk_entry_set_width_chars(GTK_ENTRY(entry), 20);
    gtk_entry_set_text(GTK_ENTRY(entry), text.c_str());
    zo_ui_connect_editable_text_change_signal(
        entry, [edited](GtkEditable* changed) { edited(gtk_entry_get_text(GTK_ENTRY(changed))); });
    return entry;
}

GtkWidget* demo::number_new(const char* name, int from, int to, int value, std::function<void(int)> changed) {
    GtkWidget* number = gtk_spin_button_new_with_range(from, to, 1);
    gtk_widget_set_name(number, name);
    gtk_spin_button_set_value(GTK_SPIN_BUTTON(number), value);
    zo_ui_connect_editable_text_change_signal(number, [changed](GtkEditable* edited) {
        changed(static_cast<int>(g_ascii_strtoll(gtk_entry_get_text(GTK_ENTRY(edited)), nullptr, 10)));
    });
    return number;
}

GtkWidget* demo::choice_new(const std::vector<button_text>& choices, std::size_t chosen) {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    add_class(box, "linked");
    GtkRadioButton* group = nullptr;
    for (std::size_t i = 0; i < choices.size(); ++i) {
        GtkWidget* button = gtk_radio_button_new_with_label_from_widget(group, choices[i].label);
        group = GTK_RADIO_BUTTON(button);
        gtk_widget_set_name(button, choices[i].name);
        gtk_toggle_button_set_mode(GTK_TOGGLE_BUTTON(button), FALSE);  // looks like a button
        gtk_toggle_button_set_active(GTK_TOGGLE_BUTTON(button), i == chosen);
        zo_ui_connect_toogle_click_signal(button, [pressed = choices[i].pressed](GtkToggleButton* changed) {
            if (gtk_toggle_button_get_active(changed)) pressed();
        });
        append(box, button);
    }
    return box;
}

GtkWidget* demo::facts_new(std::vector<fact> facts) {
    GtkWidget* grid = gtk_grid_new();
    gtk_grid_set_column_spacing(GTK_GRID(grid), 16);
    gtk_grid_set_row_spacing(GTK_GRID(grid), 4);
    add_class(grid, "gallery-facts");
    std::vector<GtkLabel*> values;
    int row = 0;
    for (const fact& entry : facts) {
        GtkWidget* label = text_label("");
        gtk_label_set_text(GTK_LABEL(label), entry.label);
        add_class(label, "dim-label");
        GtkWidget* value = value_label_new();
        values.push_back(GTK_LABEL(value));
        gtk_grid_attach(GTK_GRID(grid), label, 0, row, 1, 1);
        gtk_grid_attach(GTK_GRID(grid), value, 1, row, 1, 1);
        ++row;
    }
    constexpr unsigned long half_a_second = 500;
    keep_fresh(grid, half_a_second, [facts = std::move(facts), values] {
        for (std::size_t i = 0; i < facts.size(); ++i) {
            const std::string text = facts[i].value();
            const char* shown = text.empty() ? "–" : text.c_str();
            if (g_strcmp0(gtk_label_get_text(values[i]), shown) != 0) gtk_label_set_text(values[i], shown);
        }
    });
    return grid;
}

void demo::keep_fresh(GtkWidget* widget, unsigned long milliseconds, std::function<void()> refresh) {
    const auto running = std::make_shared<ticker>();
    running->milliseconds = milliseconds;
    running->refresh = std::move(refresh);
    zo_ui_connect_widget_destroy(widget, [running] {
        running->alive = false;
        std::erase(tickers(), running);
        zo_system_service_timeout_clear(running->timeout);
        running->refresh = nullptr;
    });
    tickers().push_back(running);
    tick(running);
}

void demo::refresh_soon() {
    static bool posted = false;
    if (std::exchange(posted, true)) return;
    zo_system_service_exec(
        [] {
            posted = false;
            for (const std::shared_ptr<ticker>& each : std::vector(tickers()))
                if (each->alive) each->refresh();
        },
        "demo", __LINE__);
}
