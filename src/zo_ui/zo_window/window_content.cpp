// SPDX-License-Identifier: MIT
#include <zo_ui/zo_window/window_p.hpp>

#include <zo_core/zo_diagnostics_p.hpp>

#include <algorithm>

bool _zo_window::add_content_child(GtkWidget* child, bool expand, bool fill, int padding, bool pack_end) {
    if (!is_opened() || !widgets_.content_box) return false;
    if (!GTK_IS_WIDGET(child) || gtk_widget_get_parent(child)) return false;
    const auto pack = pack_end ? gtk_box_pack_end : gtk_box_pack_start;
    pack(GTK_BOX(widgets_.content_box), child, expand, fill, static_cast<guint>(std::max(padding, 0)));
    return true;
}

bool zo_window_add_content_child(zo_window_ptr window, GtkWidget* child, bool expand, bool fill, int padding,
                                 bool pack_end) {
    return !zo::refuse_null(window, __func__) &&
           window->add_content_child(child, expand, fill, padding, pack_end);
}
