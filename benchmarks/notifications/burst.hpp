// SPDX-License-Identifier: MIT
// What all contenders show, and in which order it is closed.
#pragma once

#include <gtk/gtk.h>
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <numeric>
#include <random>
#include <string>
#include <vector>

namespace bench {

inline std::string notification_title(int number) { return "Message " + std::to_string(number); }

inline std::string notification_text(int number) {
    return "Somebody wrote to you about the " + std::to_string(number) +
           " things that are left to be done today.";
}

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

// Counts the popups that were drawn.
class drawn_popups {
  public:
    drawn_popups() {
        g_type_class_unref(g_type_class_ref(GTK_TYPE_WINDOW));
        hook_ = g_signal_add_emission_hook(signal(), 0, note, this, nullptr);
    }
    ~drawn_popups() { g_signal_remove_emission_hook(signal(), hook_); }
    int count() const { return count_; }

  private:
    static guint signal() { return g_signal_lookup("map-event", GTK_TYPE_WIDGET); }
    static gboolean note(GSignalInvocationHint*, guint, const GValue* values, gpointer self) {
        if (GTK_IS_WINDOW(g_value_get_object(values))) ++static_cast<drawn_popups*>(self)->count_;
        return TRUE;
    }
    gulong hook_ = 0;
    int count_ = 0;
};

}  // namespace bench
