// SPDX-License-Identifier: MIT
#include <zo_ui/toolkit/icon_button_p.hpp>

#include <zo_ui/toolkit/style_p.hpp>

namespace {

GtkWidgetClass* button_class = nullptr;

// A name that somebody gave it stays.
AtkObject* get_accessible(GtkWidget* button) {
    AtkObject* const accessible = button_class->get_accessible(button);
    if (!accessible->name) zo::name_by_tooltip(accessible, button);
    return accessible;
}

void init_class(gpointer own, gpointer) {
    button_class = static_cast<GtkWidgetClass*>(g_type_class_peek_parent(own));
    static_cast<GtkWidgetClass*>(own)->get_accessible = get_accessible;
}

GType button_type() {
    static const GType type =
        g_type_register_static_simple(GTK_TYPE_BUTTON, "ZoIconButton", sizeof(GtkButtonClass), init_class,
                                      sizeof(GtkButton), nullptr, GTypeFlags{});
    return type;
}

}  // namespace

GtkWidget* zo::icon_button16_new(const char* style_class, const std::string& tooltip) {
    auto* const button = static_cast<GtkWidget*>(g_object_new(button_type(), nullptr));
    as_square(button, 16, "size-16", style_class);
    gtk_widget_set_tooltip_markup(button, tooltip.c_str());
    return button;
}
