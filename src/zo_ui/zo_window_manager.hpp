// SPDX-License-Identifier: MIT
// The window manager: a panel across the top of the screen with a task button for each of the application's
// windows, widgets at its left and right, and toolbars under its row. It slides up out of sight and back.
//
//                 manager_open           manager_show
//     closed ─────────────────▶ opened ◀──────────────▶ visible        manager_destroy: from anywhere, for
//     good;
//        ▲                         │     manager_hide      │            an opened panel stays on screen, so
//        close first └────── manager_close ────┴───────────────────────┘
//
// Like a window's, its operations are posted to the loop and return at once; what does not fit the state is
// ignored. Every function writes the null-handle warning for an empty handle and returns false, or the
// neutral value it names. Callbacks run on the loop, without any lock, with the manager's own handle.
#pragma once

#include <zo_ui/zo_handles.hpp>

#include <gtk/gtk.h>
#include <functional>
#include <map>
#include <string>

// A new manager. The string is ignored: a manager has no id. The library keeps the manager alive, beside the
// caller's handle, until it is destroyed and its last window has left. Any thread.
ZO_EXPORT zo_window_manager_ptr zo_window_manager_new(std::string ignored);

// True when `object` is a manager or of a subclass; false for an empty handle, without a warning. Any thread.
ZO_EXPORT bool zo_is_window_manager(zo_object_ptr object);

// The handle as that of the base, and back. Any thread. An object of another class gives an empty handle
// without a warning.
ZO_EXPORT zo_object_ptr zo_window_manager_to_object(zo_window_manager_ptr manager);
ZO_EXPORT zo_window_manager_ptr zo_window_manager_from_object(zo_object_ptr object);

// Posted operations; see the picture above. Any thread. Showing brings the windows back that were visible
// when they were saved; hiding and closing hide them.
ZO_EXPORT bool zo_window_manager_open(zo_window_manager_ptr manager);
ZO_EXPORT bool zo_window_manager_show(zo_window_manager_ptr manager);
ZO_EXPORT bool zo_window_manager_hide(zo_window_manager_ptr manager);
ZO_EXPORT bool zo_window_manager_close(zo_window_manager_ptr manager);

// Ends the manager and the windows joined to it. With a reason, a second call writes a warning. Posted. Any
// thread.
ZO_EXPORT bool zo_window_manager_destroy(zo_window_manager_ptr manager);
ZO_EXPORT bool zo_window_manager_destroy(zo_window_manager_ptr manager, std::string reason, int line);

// Slides the panel down, or up until one pixel row is left, even if it is kept extended. Posted. Any thread.
ZO_EXPORT bool zo_window_manager_extend(zo_window_manager_ptr manager);
ZO_EXPORT bool zo_window_manager_retract(zo_window_manager_ptr manager);

// State, written to `*value`. False, and nothing is written, for a null `value` (without a warning) or an
// empty handle. Any thread; the state of this moment.
ZO_EXPORT bool zo_window_manager_is_opened(zo_window_manager_ptr manager, bool* value);
ZO_EXPORT bool zo_window_manager_is_visible(zo_window_manager_ptr manager, bool* value);
ZO_EXPORT bool zo_window_manager_is_destroyed(zo_window_manager_ptr manager, bool* value);

// Whether the pointer's leaving lets the panel slide away (false, the default) or not. The panel itself does
// not move when this changes. The user changes it with the lock button. Any thread.
ZO_EXPORT bool zo_window_manager_get_keep_extended(zo_window_manager_ptr manager);
ZO_EXPORT bool zo_window_manager_set_keep_extended(zo_window_manager_ptr manager, bool keep);

// Puts the application's widgets at the left (before the lock button) or right of the row, each in a box that
// keeps it at its natural size. The panel owns them; after it was closed and opened they have to be added
// again. Only on the loop's thread. False, and nothing changes, unless the panel is opened; for null; for a
// widget that has a parent. Only a GtkBox is taken out again; a widget that is not there is refused.
ZO_EXPORT bool zo_window_manager_add_widget_left(zo_window_manager_ptr manager, GtkWidget* widget);
ZO_EXPORT bool zo_window_manager_remove_widget_left(zo_window_manager_ptr manager, GtkWidget* widget);
ZO_EXPORT bool zo_window_manager_add_widget_right(zo_window_manager_ptr manager, GtkWidget* widget);
ZO_EXPORT bool zo_window_manager_remove_widget_right(zo_window_manager_ptr manager, GtkWidget* widget);

// Stacks a toolbar, as wide as the screen, under the row. Rules as above.
ZO_EXPORT bool zo_window_manager_add_toolbar(zo_window_manager_ptr manager, GtkBox* toolbar);
ZO_EXPORT bool zo_window_manager_remove_toolbar(zo_window_manager_ptr manager, GtkBox* toolbar);

// The popups stacked on this panel, by notification id. The map is the manager's and lives as long; only on
// the loop's thread. False, and `*container` stays, for an empty handle or a null `container`.
ZO_EXPORT bool zo_window_manager_get_local_notification_container(
    zo_window_manager_ptr manager, std::map<unsigned long, GtkWidget*>** container);

// Callbacks of the life cycle, each called after its operation. An empty function takes a callback away. Any
// thread.
ZO_EXPORT bool zo_window_manager_on_open(zo_window_manager_ptr manager,
                                         std::function<void(zo_window_manager_ptr)> callback);
ZO_EXPORT bool zo_window_manager_on_show(zo_window_manager_ptr manager,
                                         std::function<void(zo_window_manager_ptr)> callback);
ZO_EXPORT bool zo_window_manager_on_hide(zo_window_manager_ptr manager,
                                         std::function<void(zo_window_manager_ptr)> callback);
ZO_EXPORT bool zo_window_manager_on_close(zo_window_manager_ptr manager,
                                          std::function<void(zo_window_manager_ptr)> callback);
ZO_EXPORT bool zo_window_manager_on_destroy(zo_window_manager_ptr manager,
                                            std::function<void(zo_window_manager_ptr)> callback);
