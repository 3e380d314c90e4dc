// SPDX-License-Identifier: MIT
#pragma once

#include <gtk/gtk.h>
#include <memory>

namespace zo {

struct release_widget {
    void operator()(GtkWidget* widget) const { g_object_unref(widget); }
};

// Holds a widget, or nothing, while code of the application runs. The widget may be destroyed meanwhile, but
// no other one gets its address: a pointer that is compared afterwards means what it meant before (tests
// "WindowReopening.InTheSameMemory...").
using held_widget = std::unique_ptr<GtkWidget, release_widget>;

inline held_widget hold(GtkWidget* widget) {
    return held_widget(widget ? GTK_WIDGET(g_object_ref(widget)) : nullptr);
}

}  // namespace zo
