// SPDX-License-Identifier: MIT
#include <zo_ui/toolkit/icon_button_p.hpp>

#include <zo_ui/toolkit/style_p.hpp>
#include <zo_ui/zo_ui_widgets.hpp>

namespace {

AtkObject* (*plain_accessible)(GtkWidget*) = nullptr;

GQuark named_by_tooltip() {
    static const GQuark quark = g_quark_from_static_string("zo-named-by-tooltip");
    return quark;
}

// A name that somebody gave it stays.
AtkObject* get_accessible(GtkWidget* button) {
    AtkObject* const accessible = plain_accessible(button);
    if (!accessible->name && g_object_get_qdata(G_OBJECT(button), named_by_tooltip()))
        zo::name_by_tooltip(accessible, button);
    return accessible;
}

// Every button passes here, and only those with the mark are named: a class of our own would make them
// another kind of widget than GtkButton for whoever looks.
void name_marked_buttons() {
    auto* const type = static_cast<GtkWidgetClass*>(g_type_class_ref(GTK_TYPE_BUTTON));  // for good
    plain_accessible = type->get_accessible;
    type->get_accessible = get_accessible;
}

}  // namespace

GtkWidget* zo::icon_button16_new(const char* style_class, const std::string& tooltip) {
    [[maybe_unused]] static const bool once = (name_marked_buttons(), true);
    GtkWidget* const button = zo_ui_button16_new(style_class);
    g_object_set_qdata(G_OBJECT(button), named_by_tooltip(), GINT_TO_POINTER(1));
    gtk_widget_set_tooltip_markup(button, tooltip.c_str());
    return button;
}
