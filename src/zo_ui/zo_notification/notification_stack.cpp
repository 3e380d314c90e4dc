// SPDX-License-Identifier: MIT
#include <zo_ui/zo_notification/notification_stack_p.hpp>

#include <zo_core/zo_service.hpp>
#include <zo_core/zo_service_p.hpp>
#include <zo_ui/zo_ui_screen.hpp>

#include <algorithm>
#include <climits>

namespace {

constexpr int top = 75;
constexpr int gap = 2;
constexpr int global_x = 50;
constexpr int manager_x = 570;  // from the right end of the screen

GQuark place_quark() {
    static const GQuark quark = g_quark_from_static_string("zo-popup-place");
    return quark;
}

// The stacks that have gaps, by container, with their owners.
std::map<zo::popup_container*, zo_window_manager_ptr>& waiting() {
    static auto& stacks = *new std::map<zo::popup_container*, zo_window_manager_ptr>;
    return stacks;
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

// X counts positions in 16 bits: a stack that is longer would come in again from above. What lies further
// down stays out of sight.
int on_the_server(GtkWidget* popup, int y) {
    return std::min(y, SHRT_MAX / gtk_widget_get_scale_factor(popup));
}

int y_of(GtkWidget* popup, const zo::popup_place* own) {
    if (own) return own->y;
    int y = 0;
    gtk_window_get_position(GTK_WINDOW(popup), nullptr, &y);
    return y;
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
    // The toolkit's own memory of it follows late: events of an earlier move may still be on their way.
    const bool there = place.x == x && place.y == y && gtk_widget_get_mapped(popup);
    place.x = x;
    place.y = y;
    if (!there) put_popup(popup, place);
}

void zo::put_popup(GtkWidget* popup, const popup_place& place) {
    gtk_window_move(GTK_WINDOW(popup), place.x, on_the_server(popup, place.y));
}

int zo::x_of(const popup_stack& stack) { return stack.owner ? zo_ui_screen_width() - manager_x : global_x; }

int zo::y_below(const popup_stack& stack, unsigned long id) {
    int y = top;
    for (const auto& [other, popup] : *stack.popups) {
        if (other == id && stack.owner) break;
        if (other == id || !popup || !GTK_IS_WINDOW(popup)) continue;
        const popup_place* own = own_place(popup);
        y = std::max(y, y_of(popup, own) + gap + height_of(popup, own));
    }
    return y;
}

namespace {

// Hidden popups keep their place. What is not a window is passed over.
void restack(const zo::popup_stack& stack) {
    const int x = zo::x_of(stack);
    int y = top;
    for (const auto& [id, popup] : *stack.popups) {
        if (!popup || !GTK_IS_WINDOW(popup)) continue;
        zo::popup_place* own = own_place(popup);
        const int height = height_of(popup, own);
        if (own)
            zo::move_popup(popup, *own, x, y);
        else
            gtk_window_move(GTK_WINDOW(popup), x, y);
        y = y_of(popup, own) + gap + height;
    }
}

}  // namespace

void zo::close_gaps_soon(const popup_stack& stack) {
    if (stack.popups->empty()) {
        waiting().erase(stack.popups);  // and lets go of its owner
        return;
    }
    if (!waiting().emplace(stack.popups, stack.owner).second) return;
    after_gathering([popups = stack.popups] { close_gaps(popups); });
}

void zo::close_gaps(popup_container* popups) {
    const auto place = waiting().find(popups);
    if (place == waiting().end()) return;
    const popup_stack stack{place->second, popups};
    waiting().erase(place);
    if (!zo_system_service_done()) restack(stack);
}

void zo::close_all_gaps() {
    while (!waiting().empty()) close_gaps(waiting().begin()->first);
}
