// SPDX-License-Identifier: MIT
/// @file
/// Translation, visuals, links, the clipboard and the redraw ticker.
///
/// @thread the loop's
/// @owner widgets stay the caller's
#pragma once

#include <zo_core/zo_export.hpp>

#include <gtk/gtk.h>
#include <functional>
#include <string>

/// The text for `key` in the user's language: the same as zo_lang_get_string().
/// @thread any
ZO_EXPORT std::string zo_ui_get_translate(std::string key);

/// Gives `widget` a visual with an alpha channel, where its screen has one.
/// @state for a widget that is realised already, too late
ZO_EXPORT void zo_ui_gtk_fix_visual_rgba(GtkWidget* widget);

/// A handler for "screen-changed" that does the same for `widget`; `previous` and `data` are not used.
ZO_EXPORT void zo_ui_gtk_fix_visual_rgba_on_screen_changed(GtkWidget* widget, GdkScreen* previous,
                                                           void* data);

/// A handler for "activate-link" that leaves the link to GTK: always false. `label`, `uri` and `data` are not
/// used.
ZO_EXPORT bool zo_ui_on_link_activated_default_open(GtkLabel* label, char* uri, void* data);

/// Asks for the text of `clipboard` and calls `callback` once, perhaps before returning; the text is UTF-8,
/// valid during the call, and null when there is none.
/// @state a second request before the answer takes the first one's place, whose callable is then dropped
ZO_EXPORT void zo_ui_get_clipboard_text(GtkClipboard* clipboard,
                                        std::function<void(GtkClipboard*, const char*)> callback);

/// Redraws the widgets of zo_ui_add_fps_widget() `fps` times a second, until the process ends; each call
/// starts one more ticker. 0 and below are ignored.
ZO_EXPORT void zo_ui_set_fps(int fps);

/// Registers `widget` to be redrawn by the ticker. It leaves when it is destroyed.
/// @state a widget that is registered already stays so, once
ZO_EXPORT void zo_ui_add_fps_widget(GtkWidget* widget);
