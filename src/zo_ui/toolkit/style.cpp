// SPDX-License-Identifier: MIT
#include <zo_ui/toolkit/style_p.hpp>

#include <memory>

void zo::add_class(GtkWidget* widget, const char* name) {
    if (*name) gtk_style_context_add_class(gtk_widget_get_style_context(widget), name);
}

void zo::remove_class(GtkWidget* widget, const char* name) {
    if (*name) gtk_style_context_remove_class(gtk_widget_get_style_context(widget), name);
}

bool zo::has_class(GtkWidget* widget, const char* name) {
    return gtk_style_context_has_class(gtk_widget_get_style_context(widget), name);
}

void zo::as_square(GtkWidget* widget, int size, const char* size_class, const char* style_class) {
    add_class(widget, size_class);
    add_class(widget, style_class);
    gtk_widget_set_size_request(widget, size, size);
}

void zo::set_tooltip(GtkWidget* widget, const std::string& markup) {
    gtk_widget_set_tooltip_markup(widget, markup.c_str());
    name_by_tooltip(gtk_widget_get_accessible(widget), widget);
}

void zo::name_by_tooltip(AtkObject* accessible, GtkWidget* widget) {
    const std::unique_ptr<char, decltype(&g_free)> text(gtk_widget_get_tooltip_text(widget), g_free);
    atk_object_set_name(accessible, text ? text.get() : "");
}

std::string zo::readable(const std::string& text) {
    const auto size = static_cast<gssize>(text.size());
    if (g_utf8_validate(text.data(), size, nullptr)) return text;
    const std::unique_ptr<char, decltype(&g_free)> valid(g_utf8_make_valid(text.data(), size), g_free);
    return valid.get();
}
