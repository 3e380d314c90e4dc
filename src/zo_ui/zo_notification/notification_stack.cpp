// SPDX-License-Identifier: MIT
#include <zo_ui/zo_notification/notification_stack_p.hpp>

#include <algorithm>
#include <climits>
#include <optional>

namespace {

constexpr int top = 75;
constexpr int gap = 2;

GQuark place_quark() {
    static const GQuark quark = g_quark_from_static_string("zo-popup-place");
    return quark;
}

// Null for a popup that the application put into the container.
zo::popup_place* own_place(GtkWidget* popup) {
    return static_cast<zo::popup_place*>(g_object_get_qdata(G_OBJECT(popup), place_quark()));
}

int height_of(GtkWidget* popup, const zo::popup_place* own) {
    if (own && !gtk_widget_get_mapped(popup)) return own->height;
    int height = 0;
    gtk_window_get_size(GTK_WINDOW(popup), nullptr, &height);
    return height;
}

int y_of(GtkWidget* popup, const zo::popup_place* own) {
    if (own) return own->y;
    int y = 0;
    gtk_window_get_position(GTK_WINDOW(popup), nullptr, &y);
    return y;
}

// X counts positions in 16 bits: a stack that is longer would come in again from above. What lies further
// down stays out of sight.
int on_the_server(GtkWidget* popup, int y) {
    return std::min(y, SHRT_MAX / gtk_widget_get_scale_factor(popup));
}

}  // namespace

zo::popup_container& zo::global_notification_container() {
    static auto& popups = *new popup_container;
    return popups;
}

void zo::note_place(GtkWidget* popup, popup_place* place) {
    g_object_set_qdata(G_OBJECT(popup), place_quark(), place);
}

void zo::move_popup(GtkWidget* popup, popup_place& place, int x, int y) {
    const bool there = place.x == x && place.y == y && gtk_widget_get_mapped(popup);
    place.x = x;
    place.y = y;
    if (!there) gtk_window_move(GTK_WINDOW(popup), x, on_the_server(popup, y));
}

int zo::y_below(const popup_container& popups, unsigned long id, bool whole) {
    int y = top;
    for (const auto& [other, popup] : popups) {
        if (other == id && !whole) break;
        if (other == id || !popup || !GTK_IS_WINDOW(popup)) continue;
        const popup_place* own = own_place(popup);
        y = std::max(y, y_of(popup, own) + gap + height_of(popup, own));
    }
    return y;
}

void zo::restack(const popup_stack& stack) {
    int y = top;
    for (const auto& [id, popup] : *stack.popups) {
        if (!popup || !GTK_IS_WINDOW(popup)) continue;
        popup_place* own = own_place(popup);
        const int height = height_of(popup, own);
        if (own)
            move_popup(popup, *own, stack.x, y);
        else
            gtk_window_move(GTK_WINDOW(popup), stack.x, y);
        y = y_of(popup, own) + gap + height;
    }
}
