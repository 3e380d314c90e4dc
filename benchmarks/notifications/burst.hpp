// SPDX-License-Identifier: MIT
// In which order all contenders close what they show, and when it is shown.
#pragma once

#include <desktop/desktop.hpp>
#include <notifications/texts.hpp>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <numeric>
#include <random>
#include <set>
#include <vector>

namespace bench {

// How the notifications are closed: each in a turn of its own, or all in one.
enum class closing { oldest_first, in_random_order, in_one_turn };

inline closing closing_of(const char* name) {
    if (!std::strcmp(name, "oldest")) return closing::oldest_first;
    return std::strcmp(name, "random") ? closing::in_one_turn : closing::in_random_order;
}

inline std::vector<std::size_t> closing_order(int count, closing how) {
    std::vector<std::size_t> order(static_cast<std::size_t>(count));
    std::iota(order.begin(), order.end(), 0U);
    std::mt19937 random(1);
    if (how == closing::in_random_order) std::shuffle(order.begin(), order.end(), random);
    return order;
}

// Counts the popups that were drawn. GTK draws all of them, those below the screen's end as well.
class drawn_popups {
  public:
    drawn_popups() {
        g_type_class_unref(g_type_class_ref(GTK_TYPE_WINDOW));
        hook_ = g_signal_add_emission_hook(map_signal(), 0, on_map, this, nullptr);
    }
    ~drawn_popups() {
        g_signal_remove_emission_hook(map_signal(), hook_);
        for (GtkWidget* popup : mapped_) g_signal_handlers_disconnect_by_data(popup, this);
    }
    drawn_popups(const drawn_popups&) = delete;
    drawn_popups& operator=(const drawn_popups&) = delete;

    int count() const { return static_cast<int>(drawn_.size()); }

  private:
    static guint map_signal() { return g_signal_lookup("map", GTK_TYPE_WIDGET); }

    // Not a hook for drawing: GTK emits no signal where it sees no handler.
    static gboolean on_map(GSignalInvocationHint*, guint, const GValue* values, gpointer data) {
        auto& self = *static_cast<drawn_popups*>(data);
        gpointer const widget = g_value_get_object(values);
        if (!GTK_IS_WINDOW(widget)) return TRUE;
        self.mapped_.push_back(GTK_WIDGET(widget));
        g_signal_connect(widget, "draw", G_CALLBACK(on_draw), data);
        return TRUE;
    }

    static gboolean on_draw(GtkWidget* popup, cairo_t*, gpointer self) {
        static_cast<drawn_popups*>(self)->drawn_.insert(popup);
        return FALSE;
    }

    gulong hook_ = 0;
    std::vector<GtkWidget*> mapped_;
    std::set<GtkWidget*> drawn_;
};

// A turn of the loop, until what the server tells of it has been heard: events that come with the next turn
// would be counted one time and not the other.
inline void whole_turn() {
    turn();
    gdk_display_sync(gdk_display_get_default());
    turn();
}

// The program's end: a failure when a popup is still there.
inline int none_left() {
    if (!toplevel("zo-notification")) return 0;
    std::fprintf(stderr, "not all notifications were closed\n");
    return 1;
}

}  // namespace bench
