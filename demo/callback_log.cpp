// SPDX-License-Identifier: MIT
#include "callback_log.hpp"

#include "code_view.hpp"
#include "controls.hpp"

#include <algorithm>

namespace {

constexpr int names = 86;  // pixels, the column of the windows

std::string line_of(const std::string& window, const std::string& what) { return window + "\t" + what; }

}  // namespace

demo::callback_log::callback_log() : buffer_(gtk_text_buffer_new(nullptr)) {
    GtkTextIter end;
    gtk_text_buffer_get_end_iter(buffer_, &end);
    end_ = gtk_text_buffer_create_mark(buffer_, "end", &end, FALSE);
    gtk_text_buffer_create_tag(buffer_, "window", "weight", PANGO_WEIGHT_BOLD, nullptr);
}

demo::callback_log::~callback_log() {
    if (view_) g_object_remove_weak_pointer(G_OBJECT(view_), reinterpret_cast<gpointer*>(&view_));
    g_object_unref(buffer_);
}

void demo::callback_log::add(const std::string& window, const std::string& what) {
    lines_.push_back(line_of(window, what));
    GtkTextIter end;
    gtk_text_buffer_get_end_iter(buffer_, &end);
    if (lines_.size() > 1) gtk_text_buffer_insert(buffer_, &end, "\n", -1);
    gtk_text_buffer_insert_with_tags_by_name(buffer_, &end, window.c_str(), -1, "window", nullptr);
    const std::size_t line = what.find('\n');  // the view shows the first line of what has several
    const std::string shown = line == std::string::npos ? what : what.substr(0, line) + " …";
    gtk_text_buffer_insert(buffer_, &end, ("\t" + shown).c_str(), -1);
    if (view_) gtk_text_view_scroll_mark_onscreen(GTK_TEXT_VIEW(view_), end_);
    refresh_soon();
}

GtkWidget* demo::callback_log::view_new() {
    GtkWidget* view = gtk_text_view_new_with_buffer(buffer_);
    if (view_) g_object_remove_weak_pointer(G_OBJECT(view_), reinterpret_cast<gpointer*>(&view_));
    view_ = view;
    g_object_add_weak_pointer(G_OBJECT(view_), reinterpret_cast<gpointer*>(&view_));
    gtk_widget_set_name(view, "log");
    gtk_style_context_add_class(gtk_widget_get_style_context(view), "gallery-log");
    gtk_widget_set_direction(view, GTK_TEXT_DIR_LTR);
    follow_theme_colour(gtk_text_tag_table_lookup(gtk_text_buffer_get_tag_table(buffer_), "window"), view,
                        "zo_accent");
    auto* text = GTK_TEXT_VIEW(view);
    gtk_text_view_set_editable(text, FALSE);
    gtk_text_view_set_cursor_visible(text, FALSE);
    gtk_text_view_set_left_margin(text, 10);
    gtk_text_view_set_top_margin(text, 8);
    gtk_text_view_set_bottom_margin(text, 8);
    gtk_text_view_set_pixels_above_lines(text, 2);
    gtk_text_view_set_wrap_mode(text, GTK_WRAP_WORD_CHAR);
    gtk_text_view_set_indent(text, -names);
    PangoTabArray* tabs = pango_tab_array_new_with_positions(1, TRUE, PANGO_TAB_LEFT, names);
    gtk_text_view_set_tabs(text, tabs);
    pango_tab_array_free(tabs);
    g_signal_connect_after(view, "size-allocate",
                           G_CALLBACK(+[](GtkTextView* shown, GdkRectangle*, GtkTextMark* end) {
                               gtk_text_view_scroll_mark_onscreen(shown, end);
                           }),
                           end_);
    GtkWidget* scroll = gtk_scrolled_window_new(nullptr, nullptr);
    gtk_scrolled_window_set_shadow_type(GTK_SCROLLED_WINDOW(scroll), GTK_SHADOW_IN);
    gtk_scrolled_window_set_policy(GTK_SCROLLED_WINDOW(scroll), GTK_POLICY_NEVER, GTK_POLICY_AUTOMATIC);
    gtk_scrolled_window_set_overlay_scrolling(GTK_SCROLLED_WINDOW(scroll), FALSE);
    gtk_widget_set_direction(scroll, GTK_TEXT_DIR_LTR);
    gtk_container_add(GTK_CONTAINER(scroll), view);
    return scroll;
}

void demo::callback_log::clear() {
    lines_.clear();
    gtk_text_buffer_set_text(buffer_, "", -1);
}

bool demo::callback_log::contains(const std::string& window, const std::string& what) const {
    return contains_since(0, window, what);
}

bool demo::callback_log::contains_since(std::size_t first, const std::string& window,
                                        const std::string& what) const {
    return std::find(lines_.begin() + static_cast<std::ptrdiff_t>(first), lines_.end(),
                     line_of(window, what)) != lines_.end();
}
