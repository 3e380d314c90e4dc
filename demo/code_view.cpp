// SPDX-License-Identifier: MIT
#include "code_view.hpp"

#include "controls.hpp"
#include "texts.hpp"

#include <zo_ui/zo_ui.hpp>

#include <regex>
#include <string>

using demo::_;

namespace {

struct kind {
    const char* tag;
    const char* colour;  // of the theme
    const char* pattern;
};

// In the order of precedence: what an earlier pattern matched is left alone by the later ones.
constexpr kind kinds[] = {
    {"comment", "zo_fg_dim", R"(//[^\n]*)"},
    {"string", "zo_focus", R"re("(\\.|[^"\\])*")re"},
    {"interface", "zo_accent", R"(\b(zo_\w+|getActive\w+|setActive\w+))"},
    {"keyword", "zo_link_visited",
     R"(\b(const|constexpr|auto|struct|return|if|else|for|while|void|bool|int|true|false|nullptr|using)\b)"},
};

void mark(GtkTextBuffer* buffer, const std::string& code) {
    std::string left = code;
    for (const kind& k : kinds) {
        const std::regex pattern(k.pattern);
        for (std::sregex_iterator at(left.begin(), left.end(), pattern), none; at != none; ++at) {
            // The buffer counts characters, the expression bytes.
            const auto chars = [&](std::ptrdiff_t bytes) {
                return static_cast<int>(g_utf8_strlen(code.c_str(), static_cast<gssize>(bytes)));
            };
            GtkTextIter begin;
            GtkTextIter end;
            gtk_text_buffer_get_iter_at_offset(buffer, &begin, chars(at->position()));
            gtk_text_buffer_get_iter_at_offset(buffer, &end, chars(at->position() + at->length()));
            gtk_text_buffer_apply_tag_by_name(buffer, k.tag, &begin, &end);
        }
        std::string rest;
        std::ptrdiff_t done = 0;
        for (std::sregex_iterator at(left.begin(), left.end(), pattern), none; at != none; ++at) {
            rest.append(left, static_cast<std::size_t>(done),
                        static_cast<std::size_t>(at->position() - done));
            rest.append(static_cast<std::size_t>(at->length()), ' ');
            done = at->position() + at->length();
        }
        left = rest.append(left, static_cast<std::size_t>(done));
    }
}

GtkWidget* view_new(const char* code) {
    GtkWidget* view = gtk_text_view_new();
    gtk_widget_set_name(view, "code");
    gtk_widget_set_direction(view, GTK_TEXT_DIR_LTR);
    auto* text = GTK_TEXT_VIEW(view);
    gtk_text_view_set_monospace(text, TRUE);
    gtk_text_view_set_editable(text, FALSE);
    gtk_text_view_set_cursor_visible(text, FALSE);
    gtk_text_view_set_left_margin(text, 12);
    gtk_text_view_set_right_margin(text, 12);
    gtk_text_view_set_top_margin(text, 10);
    gtk_text_view_set_bottom_margin(text, 10);
    gtk_text_view_set_pixels_below_lines(text, 2);
    GtkTextBuffer* buffer = gtk_text_view_get_buffer(text);
    gtk_text_buffer_set_text(buffer, code, -1);
    for (const kind& k : kinds)
        demo::follow_theme_colour(gtk_text_buffer_create_tag(buffer, k.tag, nullptr), view, k.colour);
    mark(buffer, code);
    demo::add_class(view, "gallery-code");
    return view;
}

GtkWidget* head_new(const demo::code_region& code) {
    GtkWidget* head = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 8);
    GtkWidget* name = gtk_label_new(code.file);
    gtk_label_set_ellipsize(GTK_LABEL(name), PANGO_ELLIPSIZE_START);
    demo::add_class(name, "gallery-file");
    GtkWidget* copy = zo_ui_button24_new("icon-copy");
    gtk_widget_set_name(copy, "copy-code");
    gtk_widget_set_tooltip_text(copy, _("Copy the code"));
    gtk_widget_set_valign(copy, GTK_ALIGN_CENTER);
    zo_ui_connect_button_click_signal(copy, [text = code.text](GtkWidget* button) {
        gtk_clipboard_set_text(gtk_widget_get_clipboard(button, GDK_SELECTION_CLIPBOARD), text, -1);
    });
    gtk_box_pack_start(GTK_BOX(head), name, FALSE, FALSE, 0);
    gtk_box_pack_end(GTK_BOX(head), copy, FALSE, FALSE, 0);
    return head;
}

}  // namespace

GtkWidget* demo::code_view_new(const code_region& code) {
    GtkWidget* column = gtk_box_new(GTK_ORIENTATION_VERTICAL, 4);
    append(column, head_new(code));
    GtkWidget* scroll = gtk_scrolled_window_new(nullptr, nullptr);
    gtk_scrolled_window_set_shadow_type(GTK_SCROLLED_WINDOW(scroll), GTK_SHADOW_IN);
    gtk_scrolled_window_set_overlay_scrolling(GTK_SCROLLED_WINDOW(scroll), FALSE);
    gtk_widget_set_direction(scroll, GTK_TEXT_DIR_LTR);
    gtk_container_add(GTK_CONTAINER(scroll), view_new(code.text));
    gtk_box_pack_start(GTK_BOX(column), scroll, TRUE, TRUE, 0);
    return column;
}

void demo::follow_theme_colour(GtkTextTag* tag, GtkWidget* view, const char* colour) {
    g_object_set_data_full(G_OBJECT(tag), "colour", g_strdup(colour), g_free);
    const auto follow = +[](GtkWidget* styled, GtkTextTag* coloured) {
        GdkRGBA rgba;
        const auto* name = static_cast<const char*>(g_object_get_data(G_OBJECT(coloured), "colour"));
        if (gtk_style_context_lookup_color(gtk_widget_get_style_context(styled), name, &rgba))
            g_object_set(coloured, "foreground-rgba", &rgba, nullptr);
    };
    g_signal_connect_object(view, "style-updated", G_CALLBACK(follow), tag, static_cast<GConnectFlags>(0));
    follow(view, tag);
}
