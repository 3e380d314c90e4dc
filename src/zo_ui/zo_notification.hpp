// SPDX-License-Identifier: MIT
/// @file
/// Notifications: small popups with a title, a text, and buttons, stacked below one another at a corner of
/// the screen. They close by their timeout, their close button, one of their actions, or the application.
///
///     new ──▶ open_show ──▶ shown ◀──▶ hidden, while its manager is hidden ──▶ closed, for good
///
/// The popup takes its title, text and actions when it opens, its timeout and manager each time it is shown;
/// what is set later has no effect on it. Callbacks run on the loop, without any lock, and may call every
/// function of the same notification. A setter returns true.
///
/// @thread any
/// @empty false, with the null-handle warning
/// @state stored without effect once it is opened or closed
#pragma once

#include <zo_ui/zo_handles.hpp>

#include <functional>
#include <string>

/// A new notification, not on the screen yet. The library keeps it alive, beside the caller's handle, until
/// it is closed; one that is never shown has to be destroyed.
ZO_EXPORT zo_notification_ptr zo_notification_new();

/// True when `object` is a notification or of a subclass.
/// @empty false, without a warning
/// @state answers for a destroyed object, too
ZO_EXPORT bool zo_is_notification(zo_object_ptr object);

/// The handle of `notification` as that of the base.
/// @empty the empty handle, with the null-handle warning
/// @state works on a destroyed object, too
ZO_EXPORT zo_object_ptr zo_notification_to_object(zo_notification_ptr notification);

/// The handle of `object` as that of its class. An object of another class gives an empty handle, without a
/// warning.
/// @empty the empty handle, with the null-handle warning
/// @state works on a destroyed object, too
ZO_EXPORT zo_notification_ptr zo_notification_from_object(zo_object_ptr object);

/// A number that no other `notification` of the process has; the key of its popup in the container that
/// stacks it.
/// @empty 0, with the null-handle warning
/// @state the same number for ever
ZO_EXPORT unsigned long zo_notification_get_id(zo_notification_ptr notification);

/// Sets the `title`, UTF-8, in one line.
ZO_EXPORT bool zo_notification_set_title(zo_notification_ptr notification, std::string title);

/// Sets the text, `content`: UTF-8, in Pango markup, links among it, unless zo_notification_set_is_markup()
/// says that it is plain. Markup that does not parse is shown as plain text, and a line on standard output
/// says so.
ZO_EXPORT bool zo_notification_set_content(zo_notification_ptr notification, std::string content);

/// Sets whether the text is markup: `is_markup`, at first true.
ZO_EXPORT bool zo_notification_set_is_markup(zo_notification_ptr notification, bool is_markup);

/// Sets after how many `milliseconds` it closes by itself, counted anew each time it is shown; 0 (the
/// default) and below mean never.
/// @state counts from the next showing on; without effect once it is closed
ZO_EXPORT bool zo_notification_set_timeout(zo_notification_ptr notification, int milliseconds);

/// Sets the `manager` on whose stack, at the right of the screen, it is shown; it waits while that manager is
/// hidden. An empty manager (the default) means the stack of the process, at the left. The notification holds
/// the manager until it is closed.
/// @state read each time it is shown; without effect once it is closed
ZO_EXPORT bool zo_notification_set_manager(zo_notification_ptr notification, zo_window_manager_ptr manager);

/// Adds a button under the text, with a `name` and a `label`. Pressing it calls `callback` with the name and
/// closes the notification; an empty callback is a programming error: `std::bad_function_call` leaves the
/// handler. A name that is there already keeps its first label and callback.
ZO_EXPORT bool zo_notification_add_action(zo_notification_ptr notification, std::string name,
                                          std::string label, std::function<void(std::string)> callback);

/// Sets the `callback` that is called once when it closes, whoever closes it, and also when it was never
/// shown; then it is dropped. An empty function takes it away.
/// @state on a closed notification the callable is not kept
ZO_EXPORT bool zo_notification_on_close(zo_notification_ptr notification,
                                        std::function<void(zo_notification_ptr)> callback);

/// Sets the `callback` that is asked when a link of the text is activated, with its URI, UTF-8: true when it
/// dealt with the link, false lets GTK open it, as it does without a callback. The notification stays.
/// @state on a closed notification the callable is not kept
ZO_EXPORT bool zo_notification_on_activate_link_callback(
    zo_notification_ptr notification, std::function<bool(zo_notification_ptr, std::string&)> callback);

/// Builds the popup of `notification` and shows it. Posted: true means that the tasks are on their way.
/// @state a second call, and one on a closed notification, brings nothing new
ZO_EXPORT bool zo_notification_open_show(zo_notification_ptr notification);

/// Closes `notification`, for good. Posted: true means that the task is on its way.
/// @state closing what is closed does nothing
ZO_EXPORT bool zo_notification_destroy(zo_notification_ptr notification);
