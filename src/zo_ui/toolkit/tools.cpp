// SPDX-License-Identifier: MIT
#include <zo_ui/zo_ui_tools.hpp>

#include <zo_core/zo_lang.hpp>
#include <zo_ui/toolkit/process_state_p.hpp>

#include <utility>

using zo::toolkit;

namespace {

// The slot is empty before the call, so that the callable may make the next request.
void on_clipboard_text(GtkClipboard* clipboard, const char* text, gpointer) {
    const auto callback = std::exchange(toolkit().clipboard_request, nullptr);
    if (callback) callback(clipboard, text);
}

}  // namespace

std::string zo_ui_get_translate(std::string key) { return zo_lang_get_string(std::move(key)); }

void zo_ui_gtk_fix_visual_rgba(GtkWidget* widget) {
    if (GdkVisual* visual = gdk_screen_get_rgba_visual(gtk_widget_get_screen(widget)))
        gtk_widget_set_visual(widget, visual);
}

void zo_ui_gtk_fix_visual_rgba_on_screen_changed(GtkWidget* widget, GdkScreen*, void*) {
    zo_ui_gtk_fix_visual_rgba(widget);
}

bool zo_ui_on_link_activated_default_open(GtkLabel*, char*, void*) { return false; }

void zo_ui_get_clipboard_text(GtkClipboard* clipboard,
                              std::function<void(GtkClipboard*, const char*)> callback) {
    // The callable of an unanswered request goes before the answer to this one can come, with what it does
    // then.
    { const auto old = std::exchange(toolkit().clipboard_request, std::move(callback)); }
    gtk_clipboard_request_text(clipboard, on_clipboard_text, nullptr);
}
