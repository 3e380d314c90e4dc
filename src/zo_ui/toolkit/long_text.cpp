// SPDX-License-Identifier: MIT
#include <zo_ui/toolkit/long_text_p.hpp>
#include <zo_ui/zo_ui_screen.hpp>

#include <algorithm>
#include <cstring>

namespace {

constexpr std::size_t usual = 256;         // bytes, on which no desktop ends
constexpr std::size_t measurable = 20000;  // bytes, that are laid out only to see whether they fit
constexpr glong longest = 4000;            // characters; more take long to lay out
constexpr glong longest_tooltip = 1000;
// Marks and direction controls, one after the other: more show nothing, and Pango's wrapping takes a time
// that is quadratic in their number, of seconds for `longest`.
constexpr int most_without_width = 8;
constexpr int most_lines = 8;
constexpr int line_characters = 100;

bool is_line_break(gunichar c) {
    return c == '\n' || c == '\r' || c == '\v' || c == '\f' || c == 0x2028 || c == 0x2029;
}

int count_line_breaks(const char* text) {
    int count = 0;
    for (; *text; text = g_utf8_next_char(text)) count += is_line_break(g_utf8_get_char(text));
    return count;
}

// The first characters in one line.
std::string in_one_line(const char* text, glong characters) {
    std::string line;
    int without_width = 0;
    for (; *text && characters > 0; text = g_utf8_next_char(text)) {
        const gunichar c = g_utf8_get_char(text);
        without_width = g_unichar_iszerowidth(c) ? without_width + 1 : 0;
        if (without_width > most_without_width) continue;
        --characters;
        if (is_line_break(c))
            line += ' ';
        else
            line.append(text, static_cast<std::size_t>(g_utf8_next_char(text) - text));
    }
    return *text ? line + "…" : line;
}

std::string limited(const std::string& text, glong characters) {
    if (text.size() < usual) return text;
    const bool is_short = g_utf8_strlen(text.c_str(), -1) <= characters;
    return is_short && count_line_breaks(text.c_str()) < most_lines ? text
                                                                    : in_one_line(text.c_str(), characters);
}

// What wraps is as narrow as its longest word, which is broken if it is itself wider than the desktop.
int width_of(GtkWidget* label) {
    int narrowest = 0, width = 0;
    gtk_widget_get_preferred_width(label, &narrowest, &width);
    if (!gtk_label_get_line_wrap(GTK_LABEL(label))) return width;
    if (narrowest <= zo_ui_workarea_width()) return narrowest;
    gtk_label_set_line_wrap_mode(GTK_LABEL(label), PANGO_WRAP_WORD_CHAR);
    gtk_widget_get_preferred_width(label, &narrowest, nullptr);
    return narrowest;
}

// Before zo_ui_init() nobody knows how large the desktop is.
bool is_desktop_known() { return zo_ui_workarea_width() > 0 && zo_ui_workarea_height() > 0; }

bool fits(GtkWidget* label) {
    if (!is_desktop_known()) return true;
    const bool was_visible = gtk_widget_get_visible(label);
    gtk_widget_show(label);  // hidden ones measure nothing
    const int width = width_of(label);
    int height = 0;
    gtk_widget_get_preferred_height_for_width(label, width, nullptr, &height);
    gtk_widget_set_visible(label, was_visible);
    return width <= zo_ui_workarea_width() && height <= zo_ui_workarea_height();
}

void shorten(GtkLabel* label, int lines) {
    const std::string text = in_one_line(gtk_label_get_text(label), longest);
    gtk_label_set_text(label, text.c_str());
    gtk_label_set_ellipsize(label, PANGO_ELLIPSIZE_END);
    gtk_label_set_line_wrap_mode(label, PANGO_WRAP_WORD_CHAR);
    gtk_label_set_lines(label, lines);
    if (gtk_label_get_max_width_chars(label) < 0) gtk_label_set_max_width_chars(label, line_characters);
}

}  // namespace

std::string zo::as_title(const std::string& text) { return limited(text, longest); }

std::string zo::as_tooltip(const std::string& text) { return limited(text, longest_tooltip); }

void zo::keep_on_desktop(GtkWidget* widget, int lines) {
    auto* const label = GTK_LABEL(widget);
    const std::size_t size = std::strlen(gtk_label_get_text(label));
    if (size < usual || (size < measurable && fits(widget))) return;
    shorten(label, lines);
}
