// SPDX-License-Identifier: MIT
// Building the built-in title bar.
#include <zo_ui/zo_window/window_p.hpp>

#include <zo_ui/toolkit/icon_button_p.hpp>
#include <zo_ui/toolkit/long_text_p.hpp>
#include <zo_ui/toolkit/style_p.hpp>
#include <zo_ui/toolkit/trampolines_p.hpp>
#include <zo_ui/zo_ui_tools.hpp>

namespace {

using zo::title_button;
using zo::window_settings;

constexpr int bar_width = 300;
constexpr int bar_height = 15;

// In the order of packing: what is packed at the end stands right to left.
constexpr zo::window_title_row rows[] = {
    {&window_settings::enable_title_exit, title_button::exit, "title-exit", "tooltip_close_app", false},
    {&window_settings::enable_title_hint, title_button::hint, "title-hint", "tooltip_how_to", false},
    {&window_settings::enable_title_save_to_photo, title_button::photo, "title-shoot",
     "tooltip_save_window_photo", false},
    {nullptr, {}, "title-text", nullptr, false},
    {&window_settings::enable_title_close, title_button::close, "title-close", "tooltip_close_window", true},
    {&window_settings::enable_title_minimize, title_button::minimize, "title-minimize",
     "tooltip_minimize_window", true},
    {&window_settings::enable_title_menu, title_button::menu, "title-menu", "tooltip_menu", true},
    {&window_settings::enable_title_back, title_button::back, "title-back", "tooltip_back", true},
};

}  // namespace

void _zo_window::build_title_bar(const zo::window_settings& settings) {
    widgets_.title_box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    zo::add_class(widgets_.title_box, "window-title");
    gtk_widget_set_size_request(widgets_.title_box, bar_width, bar_height);
    for (const zo::window_title_row& row : rows) {
        if (!row.enabled)
            pack_title_label(row.style_class, settings.title);
        else if (settings.*row.enabled)
            pack_title_button(row);
    }
    widgets_.title_event_box = gtk_event_box_new();
    zo::add_class(widgets_.title_event_box, "title-event-box");
    gtk_widget_add_events(widgets_.title_event_box,
                          GDK_POINTER_MOTION_MASK | GDK_BUTTON_PRESS_MASK | GDK_BUTTON_RELEASE_MASK);
    gtk_container_add(GTK_CONTAINER(widgets_.title_event_box), widgets_.title_box);
    gtk_box_pack_start(GTK_BOX(widgets_.wrapper), widgets_.title_event_box, FALSE, FALSE, 0);
}

void _zo_window::pack_title_label(const char* style_class, const std::string& title) {
    widgets_.title_label = gtk_label_new(nullptr);
    zo::add_class(widgets_.title_label, style_class);
    gtk_box_set_center_widget(GTK_BOX(widgets_.title_box), widgets_.title_label);
    show_title(title);
}

// A title makes its window as wide as it is, unless it would be wider than the desktop: the tooltip tells it
// then.
void _zo_window::show_title(const std::string& title) {
    GtkWidget* const widget = widgets_.title_label;
    auto* const label = GTK_LABEL(widget);
    if (gtk_label_get_ellipsize(label) != PANGO_ELLIPSIZE_NONE) {
        gtk_label_set_ellipsize(label, PANGO_ELLIPSIZE_NONE);
        gtk_label_set_max_width_chars(label, -1);
        gtk_widget_set_tooltip_text(widget, nullptr);
    }
    const std::string text = zo::readable(title);
    gtk_label_set_text(label, text.c_str());
    zo::keep_on_desktop(widget, 1);
    if (gtk_label_get_ellipsize(label) != PANGO_ELLIPSIZE_NONE)
        gtk_widget_set_tooltip_text(widget, zo::as_tooltip(text).c_str());
}

void _zo_window::pack_title_button(const zo::window_title_row& row) {
    GtkWidget* button = zo::icon_button16_new(row.style_class, zo_ui_get_translate(row.tooltip_key));
    g_signal_connect(button, "clicked", G_CALLBACK(zo::trampoline<void(GtkWidget*)>::call),
                     click_handler_of(row.button).get());
    const auto pack = row.at_end ? gtk_box_pack_end : gtk_box_pack_start;
    pack(GTK_BOX(widgets_.title_box), button, FALSE, FALSE, 0);
    widgets_.button(row.button) = button;
}
