// SPDX-License-Identifier: MIT
// Signal connectors: each keeps a callable alive as long as its widget and calls it for one GTK signal.
//
// Only on the loop's thread. The callable is kept until the widget emits "destroy"; there is no other way to
// disconnect. It may destroy its own widget, and connect others, while it runs. A widget has one callable in
// each list: a second connect returns false, and the first stays. An empty callable is a programming error:
// when the signal comes, std::bad_function_call leaves the handler.
#pragma once

#include <zo_core/zo_export.hpp>

#include <gtk/gtk.h>
#include <functional>
#include <string>

// "clicked"
ZO_EXPORT bool zo_ui_connect_button_click_signal(GtkWidget* button, std::function<void(GtkWidget*)> callback);
// "clicked" of a toggle button: also called when the application toggles it with gtk_button_clicked
ZO_EXPORT bool zo_ui_connect_toogle_click_signal(GtkWidget* button,
                                                 std::function<void(GtkToggleButton*)> callback);
// "changed"
ZO_EXPORT bool zo_ui_connect_combobox_selection_change_signal(GtkWidget* combo,
                                                              std::function<void(GtkComboBox*)> callback);
// "notify::active"
ZO_EXPORT bool zo_ui_connect_switch_button_change_signal(GtkWidget* button,
                                                         std::function<void(GtkSwitch*)> callback);
// "changed"
ZO_EXPORT bool zo_ui_connect_editable_text_change_signal(GtkWidget* editable,
                                                         std::function<void(GtkEditable*)> callback);
// "value-changed"
ZO_EXPORT bool zo_ui_connect_scale_value_change_signal(GtkWidget* scale,
                                                       std::function<void(GtkScaleButton*, double)> callback);
// "activate"
ZO_EXPORT bool zo_ui_connect_menuitem_click_signal(GtkWidget* item,
                                                   std::function<void(GtkMenuItem*)> callback);
// "activate-link": gets the URI, UTF-8; true when it dealt with the link, false lets GTK open it
ZO_EXPORT bool zo_ui_connect_label_link_activate(GtkWidget* label,
                                                 std::function<bool(GtkLabel*, std::string&)> callback);
// "draw": true keeps GTK's own drawing away
ZO_EXPORT bool zo_ui_connect_on_draw_signal(GtkWidget* widget,
                                            std::function<bool(GtkWidget*, cairo_t*)> callback);
// "button-press-event", both in one list; non-zero stops the event
ZO_EXPORT bool zo_ui_connect_event_click_signal(GtkWidget* widget,
                                                std::function<int(GtkWidget*, GdkEventButton*)> callback);
ZO_EXPORT bool zo_ui_connect_event_button_press_signal(
    GtkWidget* widget, std::function<int(GtkWidget*, GdkEventButton*)> callback);
// "button-release-event"; non-zero stops the event
ZO_EXPORT bool zo_ui_connect_event_button_release_signal(
    GtkWidget* widget, std::function<int(GtkWidget*, GdkEventButton*)> callback);
// "destroy": the callable runs once and is dropped; an empty one is allowed
ZO_EXPORT void zo_ui_connect_widget_destroy(GtkWidget* widget, std::function<void()> callback);

// Writes the sizes of the first five lists to standard output, a line each.
ZO_EXPORT void zo_ui_output_listeners_stats();
