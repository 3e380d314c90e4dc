// SPDX-License-Identifier: MIT
// The widgets of an opened window.
#pragma once

#include <gtk/gtk.h>
#include <array>

namespace zo {

enum class title_button { exit, hint, photo, close, minimize, menu, back };
inline constexpr std::size_t title_button_count = 7;

// Observers: GTK owns the widgets. All null until the window is opened and after it is closed; those that the
// window's flags leave out stay null.
struct window_widgets {
    GtkWidget* window = nullptr;
    GtkWidget* fixed = nullptr;
    GtkWidget* wrapper = nullptr;
    GtkWidget* title_box = nullptr;
    GtkWidget* title_event_box = nullptr;
    GtkWidget* title_label = nullptr;
    std::array<GtkWidget*, title_button_count> title_buttons{};
    GtkWidget* ads_container = nullptr;
    GtkWidget* ads_label = nullptr;
    GtkWidget* scroll = nullptr;
    GtkWidget* content_event_box = nullptr;
    GtkWidget* content_box = nullptr;
    GtkWidget* tool_menu = nullptr;  // null while there is none; it goes by itself, too

    GtkWidget*& button(title_button which) { return title_buttons[static_cast<std::size_t>(which)]; }
};

// The last allocation of a widget, in logical pixels.
struct window_part {
    int y = 0;
    int width = 0;
    int height = 0;
};

}  // namespace zo
