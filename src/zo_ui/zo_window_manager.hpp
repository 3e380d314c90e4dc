// SPDX-License-Identifier: MIT
/// @file
/// The window manager: a panel across the top of the screen with a task button for each of the application's
/// windows, widgets at its left and right, and toolbars under its row. It slides up out of sight and back.
///
///                manager_open          manager_show
///     closed ─────────────────▶ opened ◀──────────────▶ visible
///        ▲                         │     manager_hide      │
///        └────── manager_close ────┴───────────────────────┘
///
/// zo_window_manager_destroy() ends it for good, from any state; an opened panel stays on the screen, so
/// close it first.
///
/// Like a window's, its operations are posted to the loop and return at once: true means posted. Callbacks
/// run on the loop, without any lock, with the manager's own handle.
///
/// @thread any
/// @empty false, with the null-handle warning
/// @state ignored when the task runs, without a message; the call has returned true
#pragma once

#include <zo_ui/zo_handles.hpp>

#include <gtk/gtk.h>
#include <functional>
#include <map>
#include <string>

/// A new manager. The string, `ignored`, is just that: a manager has no id. The library keeps the manager
/// alive, beside the caller's handle, until it is destroyed and its last window has left.
ZO_EXPORT zo_window_manager_ptr zo_window_manager_new(std::string ignored);

/// True when `object` is a manager or of a subclass.
/// @empty false, without a warning
/// @state answers for a destroyed object, too
ZO_EXPORT bool zo_is_window_manager(zo_object_ptr object);

/// The handle of `manager` as that of the base.
/// @empty the empty handle, with the null-handle warning
/// @state works on a destroyed object, too
ZO_EXPORT zo_object_ptr zo_window_manager_to_object(zo_window_manager_ptr manager);

/// The handle of `object` as that of its class. An object of another class gives an empty handle, without a
/// warning.
/// @empty the empty handle, with the null-handle warning
/// @state works on a destroyed object, too
ZO_EXPORT zo_window_manager_ptr zo_window_manager_from_object(zo_object_ptr object);

/// Builds the panel of `manager` without showing it. Posted.
ZO_EXPORT bool zo_window_manager_open(zo_window_manager_ptr manager);

/// Shows the opened panel, its notifications, and those of its windows that were visible when they were saved
/// (zo_window_save()). The panel slides away at once unless it is kept extended. Posted.
ZO_EXPORT bool zo_window_manager_show(zo_window_manager_ptr manager);

/// Hides the panel, its windows and its notifications. Posted.
ZO_EXPORT bool zo_window_manager_hide(zo_window_manager_ptr manager);

/// Takes the panel down: hides its windows, closes its notifications, and destroys its widgets, those of the
/// application among them. It may be opened again. Posted.
ZO_EXPORT bool zo_window_manager_close(zo_window_manager_ptr manager);

/// @{
/// Ends the manager and the windows joined to it, for good. An opened panel stays on the screen: close it
/// first. `reason` and `line` name the caller, for the report of a second call. Posted.
/// @state a second call with a reason writes a warning; one without does nothing
ZO_EXPORT bool zo_window_manager_destroy(zo_window_manager_ptr manager);
ZO_EXPORT bool zo_window_manager_destroy(zo_window_manager_ptr manager, std::string reason, int line);
/// @}

/// Slides the panel of `manager` down, until all of it is on the screen. Posted.
ZO_EXPORT bool zo_window_manager_extend(zo_window_manager_ptr manager);

/// Slides the panel of `manager` up until one pixel row is left, even if it is kept extended. Posted.
ZO_EXPORT bool zo_window_manager_retract(zo_window_manager_ptr manager);

/// @{
/// Whether it is opened, visible, or destroyed, in this moment: written to `*value`. False, and nothing is
/// written, for a null `value`, without a warning.
/// @state answers in every state
ZO_EXPORT bool zo_window_manager_is_opened(zo_window_manager_ptr manager, bool* value);
ZO_EXPORT bool zo_window_manager_is_visible(zo_window_manager_ptr manager, bool* value);
ZO_EXPORT bool zo_window_manager_is_destroyed(zo_window_manager_ptr manager, bool* value);
/// @}

/// Whether the panel stays when the pointer leaves it; at first it does not. The user changes it with the
/// lock button.
/// @state answers in every state
ZO_EXPORT bool zo_window_manager_get_keep_extended(zo_window_manager_ptr manager);

/// Sets whether the panel stays when the pointer leaves it: `keep`. The panel itself does not move. The
/// property changes at once, the lock button follows on the loop.
/// @state kept for the next opening
ZO_EXPORT bool zo_window_manager_set_keep_extended(zo_window_manager_ptr manager, bool keep);

/// @{
/// Puts `widget` at the left (before the lock button) or right of the row, in a box that keeps it at its
/// natural size, or takes it out again. Only a GtkBox is taken out: other widgets stay, and the result is
/// false. Works at once.
/// @thread the loop's
/// @owner the panel owns `widget` until it is taken out or the panel is closed; what is taken out dies unless
/// the caller holds a reference
/// @state false, and nothing changes, unless the panel is opened; also for null, for adding a widget with a
/// parent, and for taking out what is not there
ZO_EXPORT bool zo_window_manager_add_widget_left(zo_window_manager_ptr manager, GtkWidget* widget);
ZO_EXPORT bool zo_window_manager_remove_widget_left(zo_window_manager_ptr manager, GtkWidget* widget);
ZO_EXPORT bool zo_window_manager_add_widget_right(zo_window_manager_ptr manager, GtkWidget* widget);
ZO_EXPORT bool zo_window_manager_remove_widget_right(zo_window_manager_ptr manager, GtkWidget* widget);
/// @}

/// Stacks `toolbar`, as wide as the screen, under the row. Works at once.
/// @thread the loop's
/// @owner the panel owns `toolbar` from then on; after it was closed and opened, toolbars have to be added
/// again
/// @state false, and nothing changes, unless the panel is opened; also for null and for a toolbar with a
/// parent
ZO_EXPORT bool zo_window_manager_add_toolbar(zo_window_manager_ptr manager, GtkBox* toolbar);

/// Takes `toolbar` out again. Works at once.
/// @thread the loop's
/// @owner the panel lets go of `toolbar`; it dies unless the caller holds a reference
/// @state false, and nothing changes, unless the panel is opened; also for null and for a toolbar that is not
/// there
ZO_EXPORT bool zo_window_manager_remove_toolbar(zo_window_manager_ptr manager, GtkBox* toolbar);

/// The popups stacked on this panel, by notification id: the map's address is written to `*container`. False,
/// and nothing is written, for a null `container`.
/// @thread the loop's
/// @owner the map is the manager's and lives as long; the popups are the library's
/// @state answers in every state
ZO_EXPORT bool zo_window_manager_get_local_notification_container(
    zo_window_manager_ptr manager, std::map<unsigned long, GtkWidget*>** container);

/// @{
/// Sets a `callback` of the life cycle: called after its operation, when the flags have changed; an opened
/// panel has its widgets then, a closed one has none. An empty function takes it away.
/// @state stored in every state; what has passed is not told afterwards; a destroyed manager calls nothing
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
/// @}
