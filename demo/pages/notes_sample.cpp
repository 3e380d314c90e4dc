// SPDX-License-Identifier: MIT
// The notes: a sample window with text that outlives its widgets.
#include "texts.hpp"
#include "workshop.hpp"

namespace {

std::string text_of(GtkTextBuffer* buffer) {
    GtkTextIter begin;
    GtkTextIter end;
    gtk_text_buffer_get_bounds(buffer, &begin, &end);
    char* text = gtk_text_buffer_get_text(buffer, &begin, &end, FALSE);
    std::string result = text;
    g_free(text);
    return result;
}

GtkWidget* notes_view(demo::workshop& shop) {
    GtkWidget* view = gtk_text_view_new();
    auto* text = GTK_TEXT_VIEW(view);
    gtk_text_view_set_wrap_mode(text, GTK_WRAP_WORD_CHAR);
    gtk_text_view_set_left_margin(text, 10);
    gtk_text_view_set_right_margin(text, 10);
    gtk_text_view_set_top_margin(text, 8);
    gtk_text_view_set_pixels_below_lines(text, 2);
    GtkTextBuffer* buffer = gtk_text_view_get_buffer(text);
    gtk_text_buffer_set_text(buffer, shop.notes_text.c_str(), -1);
    g_signal_connect(
        buffer, "changed",
        G_CALLBACK(+[](GtkTextBuffer* changed, demo::workshop* s) {
            s->notes_text = text_of(changed);
        }),
        &shop);
    GtkWidget* scroll = gtk_scrolled_window_new(nullptr, nullptr);
    gtk_scrolled_window_set_shadow_type(GTK_SCROLLED_WINDOW(scroll),
                                        GTK_SHADOW_IN);
    gtk_container_add(GTK_CONTAINER(scroll), view);
    gtk_widget_set_size_request(scroll, 340, 180);
    return scroll;
}

}  // namespace

void demo::make_notes_window(workshop& shop) {
    shop.notes_text =
        _("Things to try\n\n"
          "  ·  drag a window by its title\n"
          "  ·  open the tool menu of the studio\n"
          "  ·  flip a flag in the gallery and look here\n");
    shop.notes = zo_window_new("notes");
    zo_window_set_title(shop.notes, _("Notes"));
    log_life_cycle(shop, shop.notes, "notes");
    zo_window_set_window_open_callback(
        shop.notes, [&shop](zo_window_ptr window) {
            zo_window_add_content_child(window, notes_view(shop), true,
                                        true, 0, false);
            shop.log.add("notes", "open");
        });
}
