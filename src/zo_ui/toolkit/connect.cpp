// SPDX-License-Identifier: MIT
#include <zo_ui/zo_ui_connect.hpp>

#include <zo_core/zo_diagnostics_p.hpp>
#include <zo_ui/toolkit/process_state_p.hpp>
#include <zo_ui/toolkit/trampolines_p.hpp>

using zo::toolkit;
using zo::toolkit_state;

namespace {

template <auto List>
void on_destroy_drop(GtkWidget* widget, gpointer) {
    const auto entry = (toolkit().*List).take(widget);
    if (entry)
        g_signal_handlers_disconnect_by_data(widget, entry.get());  // other "destroy" handlers may still emit
}

// The order of the two handlers of "destroy" and of the signal is that of connecting.
template <auto List, typename Signature>
bool connect(GtkWidget* widget, const char* signal, std::function<Signature> callback) {
    const auto entry = (toolkit().*List).add(widget, std::move(callback), G_CALLBACK(on_destroy_drop<List>));
    if (!entry) return false;
    g_signal_connect(widget, signal, G_CALLBACK(zo::trampoline<Signature>::call), entry.get());
    return true;
}

void on_destroy_call(GtkWidget* widget, gpointer) {
    auto& list = toolkit().widget_destroy_list;
    const auto entry = list.find(widget);
    if (entry && entry->call) entry->call();
    list.take(widget);
}

}  // namespace

bool zo_ui_connect_button_click_signal(GtkWidget* button, std::function<void(GtkWidget*)> callback) {
    return connect<&toolkit_state::button_click_list>(button, "clicked", std::move(callback));
}

bool zo_ui_connect_toogle_click_signal(GtkWidget* button, std::function<void(GtkToggleButton*)> callback) {
    return connect<&toolkit_state::toogle_change_list>(button, "clicked", std::move(callback));
}

bool zo_ui_connect_combobox_selection_change_signal(GtkWidget* combo,
                                                    std::function<void(GtkComboBox*)> callback) {
    return connect<&toolkit_state::combobox_change_list>(combo, "changed", std::move(callback));
}

bool zo_ui_connect_switch_button_change_signal(GtkWidget* button, std::function<void(GtkSwitch*)> callback) {
    return connect<&toolkit_state::switch_change_list>(button, "notify::active", std::move(callback));
}

bool zo_ui_connect_editable_text_change_signal(GtkWidget* editable,
                                               std::function<void(GtkEditable*)> callback) {
    return connect<&toolkit_state::editable_text_change>(editable, "changed", std::move(callback));
}

bool zo_ui_connect_scale_value_change_signal(GtkWidget* scale,
                                             std::function<void(GtkScaleButton*, double)> callback) {
    return connect<&toolkit_state::scale_change_list>(scale, "value-changed", std::move(callback));
}

bool zo_ui_connect_menuitem_click_signal(GtkWidget* item, std::function<void(GtkMenuItem*)> callback) {
    return connect<&toolkit_state::menuitem_click_list>(item, "activate", std::move(callback));
}

bool zo_ui_connect_label_link_activate(GtkWidget* label,
                                       std::function<bool(GtkLabel*, std::string&)> callback) {
    return connect<&toolkit_state::label_link_list>(label, "activate-link", std::move(callback));
}

bool zo_ui_connect_on_draw_signal(GtkWidget* widget, std::function<bool(GtkWidget*, cairo_t*)> callback) {
    return connect<&toolkit_state::draw_list>(widget, "draw", std::move(callback));
}

bool zo_ui_connect_event_click_signal(GtkWidget* widget,
                                      std::function<int(GtkWidget*, GdkEventButton*)> callback) {
    return connect<&toolkit_state::button_press_list>(widget, "button-press-event", std::move(callback));
}

// One list with the connector above on purpose: a widget is wired through one of them.
bool zo_ui_connect_event_button_press_signal(GtkWidget* widget,
                                             std::function<int(GtkWidget*, GdkEventButton*)> callback) {
    return connect<&toolkit_state::button_press_list>(widget, "button-press-event", std::move(callback));
}

bool zo_ui_connect_event_button_release_signal(GtkWidget* widget,
                                               std::function<int(GtkWidget*, GdkEventButton*)> callback) {
    return connect<&toolkit_state::button_release_list>(widget, "button-release-event", std::move(callback));
}

void zo_ui_connect_widget_destroy(GtkWidget* widget, std::function<void()> callback) {
    toolkit().widget_destroy_list.add(widget, std::move(callback), G_CALLBACK(on_destroy_call));
}

void zo_ui_output_listeners_stats() {
    const auto row = [](const char* name, std::size_t size) {
        zo::log_line(std::string(name) + "\t- " + std::to_string(size));
    };
    row("button_click_list", toolkit().button_click_list.size());
    row("toogle_change_list", toolkit().toogle_change_list.size());
    row("combobox_change_list", toolkit().combobox_change_list.size());
    row("switch_change_list", toolkit().switch_change_list.size());
    row("editable_text_change", toolkit().editable_text_change.size());
}
