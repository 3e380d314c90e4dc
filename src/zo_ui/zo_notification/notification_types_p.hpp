// SPDX-License-Identifier: MIT
// What a notification consists of.
#pragma once

#include <zo_ui/zo_handles.hpp>

#include <gtk/gtk.h>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace zo {

// Popups by notification id, hence in the order in which the notifications were made.
using popup_container = std::map<unsigned long, GtkWidget*>;

using notification_action = std::pair<std::string, std::pair<std::string, std::function<void(std::string)>>>;

// What the application hands in to be called. Destroyed without the lock.
struct notification_callables {
    std::function<void(zo_notification_ptr)> on_close;
    std::function<bool(zo_notification_ptr, std::string&)> on_link;
    std::vector<notification_action> actions;  // in insertion order
};

// What a popup says.
struct notification_text {
    std::string title;
    std::string content;
    bool is_markup = true;
};

// The popup's widgets. Observers: GTK owns them. All null while it is not open.
struct notification_widgets {
    GtkWidget* window = nullptr;
    GtkWidget* wrapper = nullptr;
    GtkWidget* title_box = nullptr;
    GtkWidget* title_label = nullptr;
    GtkWidget* close_button = nullptr;
    GtkWidget* content_box = nullptr;
    GtkWidget* content_label = nullptr;
    GtkWidget* action_box = nullptr;
};

// Where a popup of the library is, and how high it was when last on screen: asking the server costs a round
// trip, and a hidden popup has no place that could be asked for. Logical pixels.
struct popup_place {
    int x = 0;
    int y = 0;
    int height = 0;
};

// The container a popup stands in, and the manager that owns it (none: the process's own).
struct popup_stack {
    zo_window_manager_ptr owner;
    popup_container* popups = nullptr;
};

}  // namespace zo
