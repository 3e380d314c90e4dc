// SPDX-License-Identifier: MIT
#include <zo_ui/zo_ui_widgets.hpp>

#include <zo_ui/toolkit/style_p.hpp>

namespace {

GtkWidget* with_class(GtkWidget* widget, const char* name) {
    zo::add_class(widget, name);
    return widget;
}

GtkWidget* square_button(int size, const char* size_class, const std::string& style_class) {
    GtkWidget* button = gtk_button_new();
    zo::as_square(button, size, size_class, style_class.c_str());
    return button;
}

enum class packing { start, end };

GtkWidget* wrapper(GtkWidget* child, GtkAlign vertical, GtkAlign horizontal, packing side, bool show) {
    GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    gtk_widget_set_valign(box, vertical);
    gtk_widget_set_halign(box, horizontal);
    if (child)
        (side == packing::start ? gtk_box_pack_start : gtk_box_pack_end)(GTK_BOX(box), child, FALSE, FALSE,
                                                                         0);
    if (show) gtk_widget_show(box);
    return box;
}

}  // namespace

GtkWidget* zo_ui_button_new() { return with_class(gtk_button_new(), "zo-button"); }

GtkWidget* zo_ui_button_new_with_label(std::string label) {
    return with_class(gtk_button_new_with_label(label.c_str()), "zo-button");
}

GtkWidget* zo_ui_button32_new(std::string style_class) { return square_button(32, "size-32", style_class); }

GtkWidget* zo_ui_button24_new(std::string style_class) { return square_button(24, "size-24", style_class); }

GtkWidget* zo_ui_button16_new(std::string style_class) { return square_button(16, "size-16", style_class); }

GtkWidget* zo_ui_get_top_centared_widget(GtkWidget* child, bool show) {
    return wrapper(child, GTK_ALIGN_START, GTK_ALIGN_CENTER, packing::start, show);
}

// The flag is ignored on purpose: callers rely on a box that is shown (test "CentredWrapperIsAlwaysShown").
GtkWidget* zo_ui_get_centared_widget(GtkWidget* child, bool) {
    return wrapper(child, GTK_ALIGN_CENTER, GTK_ALIGN_CENTER, packing::start, true);
}

GtkWidget* zo_ui_get_left_top_padding_widget(GtkWidget* child, bool show) {
    return wrapper(child, GTK_ALIGN_START, GTK_ALIGN_START, packing::start, show);
}

// The child is shown too, unlike the other wrappers' (test "LeftPaddingWrapperShowsItsChild").
GtkWidget* zo_ui_get_left_padding_widget(GtkWidget* child, bool show) {
    GtkWidget* box = wrapper(child, GTK_ALIGN_CENTER, GTK_ALIGN_START, packing::start, show);
    if (child && show) gtk_widget_show(child);
    return box;
}

GtkWidget* zo_ui_get_right_padding_widget(GtkWidget* child, bool show) {
    return wrapper(child, GTK_ALIGN_CENTER, GTK_ALIGN_END, packing::end, show);
}
