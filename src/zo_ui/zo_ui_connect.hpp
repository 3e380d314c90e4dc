// SPDX-License-Identifier: MIT
/// @file
/// Signal connectors: each keeps a callable alive as long as its widget and calls it for one GTK signal.
///
/// The callable is kept until the widget emits "destroy"; there is no other way to disconnect. It may destroy
/// its own widget, and connect others, while it runs. An empty callable is a programming error: when the
/// signal comes, `std::bad_function_call` leaves the handler. True means connected.
///
/// @thread the loop's, for the call and for the callable
/// @owner the widget stays the caller's; the callable is kept as long as it lives
/// @state a widget has one callable in each list: a second connect returns false, and the first stays
#pragma once

#include <zo_core/zo_export.hpp>

#include <gtk/gtk.h>
#include <functional>
#include <string>

/// Calls `callback` with `button` when it is clicked ("clicked").
ZO_EXPORT bool zo_ui_connect_button_click_signal(GtkWidget* button, std::function<void(GtkWidget*)> callback);

/// Calls `callback` with the toggle button `button` when it is clicked ("clicked"), also by the application
/// with `gtk_button_clicked`.
ZO_EXPORT bool zo_ui_connect_toogle_click_signal(GtkWidget* button,
                                                 std::function<void(GtkToggleButton*)> callback);

/// Calls `callback` with `combo` when another row is chosen ("changed").
ZO_EXPORT bool zo_ui_connect_combobox_selection_change_signal(GtkWidget* combo,
                                                              std::function<void(GtkComboBox*)> callback);

/// Calls `callback` with the switch `button` when it goes on or off ("notify::active").
ZO_EXPORT bool zo_ui_connect_switch_button_change_signal(GtkWidget* button,
                                                         std::function<void(GtkSwitch*)> callback);

/// Calls `callback` with `editable`, such as an entry, when its text changes ("changed").
ZO_EXPORT bool zo_ui_connect_editable_text_change_signal(GtkWidget* editable,
                                                         std::function<void(GtkEditable*)> callback);

/// Calls `callback` with the scale button `scale` and its value when that changes ("value-changed").
ZO_EXPORT bool zo_ui_connect_scale_value_change_signal(GtkWidget* scale,
                                                       std::function<void(GtkScaleButton*, double)> callback);

/// Calls `callback` with the menu entry `item` when it is chosen ("activate").
ZO_EXPORT bool zo_ui_connect_menuitem_click_signal(GtkWidget* item,
                                                   std::function<void(GtkMenuItem*)> callback);

/// Calls `callback` with `label` and the URI, UTF-8, when a link in it is activated ("activate-link"). The
/// callable returns true when it dealt with the link; false lets GTK open it.
ZO_EXPORT bool zo_ui_connect_label_link_activate(GtkWidget* label,
                                                 std::function<bool(GtkLabel*, std::string&)> callback);

/// Calls `callback` with `widget` and the context to draw with ("draw"). The callable returns true to keep
/// GTK's own drawing away.
ZO_EXPORT bool zo_ui_connect_on_draw_signal(GtkWidget* widget,
                                            std::function<bool(GtkWidget*, cairo_t*)> callback);

/// @{
/// Calls `callback` with `widget` and the event when a mouse button is pressed ("button-press-event"). What
/// the callable returns stops the event unless it is 0. Both functions share one list.
ZO_EXPORT bool zo_ui_connect_event_click_signal(GtkWidget* widget,
                                                std::function<int(GtkWidget*, GdkEventButton*)> callback);
ZO_EXPORT bool zo_ui_connect_event_button_press_signal(
    GtkWidget* widget, std::function<int(GtkWidget*, GdkEventButton*)> callback);
/// @}

/// Calls `callback` with `widget` and the event when a mouse button is released ("button-release-event").
/// What the callable returns stops the event unless it is 0.
ZO_EXPORT bool zo_ui_connect_event_button_release_signal(
    GtkWidget* widget, std::function<int(GtkWidget*, GdkEventButton*)> callback);

/// Calls `callback` once when `widget` is destroyed ("destroy"), and drops it. An empty one is allowed here.
/// @state a second connect changes nothing, and the first stays
ZO_EXPORT void zo_ui_connect_widget_destroy(GtkWidget* widget, std::function<void()> callback);

/// Writes the sizes of the first five lists to standard output, a line each.
ZO_EXPORT void zo_ui_output_listeners_stats();
