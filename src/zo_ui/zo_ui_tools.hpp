// SPDX-License-Identifier: MIT
// Translation, visuals, links, the clipboard and the redraw ticker. Only on the loop's thread.
#pragma once

#include <zo_core/zo_export.hpp>

#include <gtk/gtk.h>
#include <functional>
#include <string>

// The same as zo_lang_get_string. Any thread.
ZO_EXPORT std::string zo_ui_get_translate(std::string key);

// Gives a widget that is not realised yet a visual with an alpha channel, where its screen has one. The
// second form is a handler for "screen-changed".
ZO_EXPORT void zo_ui_gtk_fix_visual_rgba(GtkWidget* widget);
ZO_EXPORT void zo_ui_gtk_fix_visual_rgba_on_screen_changed(GtkWidget* widget, GdkScreen* previous,
                                                           void* data);

// A handler for "activate-link" that leaves the link to GTK: always false.
ZO_EXPORT bool zo_ui_on_link_activated_default_open(GtkLabel* label, char* uri, void* data);

// Asks for the clipboard's text and calls back once, perhaps before returning; the text is UTF-8, valid
// during the call, and null when there is none. A second request before the answer takes the first one's
// place, whose callable is then dropped.
ZO_EXPORT void zo_ui_get_clipboard_text(GtkClipboard* clipboard,
                                        std::function<void(GtkClipboard*, const char*)> callback);

// Redraws the registered widgets `fps` times a second, until the process ends; each call starts one more
// ticker. 0 and below are ignored. A widget is registered once and leaves when it is destroyed.
ZO_EXPORT void zo_ui_set_fps(int fps);
ZO_EXPORT void zo_ui_add_fps_widget(GtkWidget* widget);
