// SPDX-License-Identifier: MIT
// Notifications: small popups with a title, a text, and buttons, stacked below one another at a corner of the
// screen. They close by their timeout, their close button, one of their actions, or the application.
//
//     new ──▶ open_show ──▶ shown ◀──▶ hidden, while its manager is hidden ──▶ closed, for good
//
// The popup takes its title, text and actions when it opens, its timeout and manager each time it is shown;
// what is set later has no effect on it. Every function writes the null-handle warning for an empty handle
// and returns false, or the neutral value it names. Callbacks run on the loop, without any lock, and may call
// every function of the same notification.
#pragma once

#include <zo_ui/zo_handles.hpp>

#include <functional>
#include <string>

// A new notification, not on the screen yet. The library keeps it alive, beside the caller's handle, until it
// is closed; one that is never shown has to be destroyed. Any thread.
ZO_EXPORT zo_notification_ptr zo_notification_new();

// True when `object` is a notification or of a subclass; false for an empty handle, without a warning. Any
// thread.
ZO_EXPORT bool zo_is_notification(zo_object_ptr object);

// The handle as that of the base, and back. Any thread. An object of another class gives an empty handle
// without a warning.
ZO_EXPORT zo_object_ptr zo_notification_to_object(zo_notification_ptr notification);
ZO_EXPORT zo_notification_ptr zo_notification_from_object(zo_object_ptr object);

// A number that no other notification of the process has; the key of its popup in the container that stacks
// it. 0 for an empty handle. Any thread.
ZO_EXPORT unsigned long zo_notification_get_id(zo_notification_ptr notification);

// The title, UTF-8, in one line. Any thread.
ZO_EXPORT bool zo_notification_set_title(zo_notification_ptr notification, std::string title);

// The text, UTF-8, in Pango markup (with <a href="...">) unless set_is_markup says that it is plain. Markup
// that does not parse is shown as plain text, and a line on standard output says so. Any thread.
ZO_EXPORT bool zo_notification_set_content(zo_notification_ptr notification, std::string content);
ZO_EXPORT bool zo_notification_set_is_markup(zo_notification_ptr notification, bool is_markup);

// Milliseconds after which it closes by itself, counted anew each time it is shown; 0 (the default) and below
// mean never. Any thread.
ZO_EXPORT bool zo_notification_set_timeout(zo_notification_ptr notification, int milliseconds);

// The manager on whose stack, at the right of the screen, it is shown; it waits while that manager is hidden.
// An empty manager (the default) means the stack of the process, at the left. The notification holds the
// manager until it is closed. Any thread.
ZO_EXPORT bool zo_notification_set_manager(zo_notification_ptr notification, zo_window_manager_ptr manager);

// A button under the text. Pressing it calls `callback` with the name and closes the notification; an empty
// callback is a programming error: std::bad_function_call leaves the handler. A name that is there already
// keeps its first label and callback. Any thread.
ZO_EXPORT bool zo_notification_add_action(zo_notification_ptr notification, std::string name,
                                          std::string label, std::function<void(std::string)> callback);

// Called once when it closes, whoever closes it, and also when it was never shown; then dropped. Once it is
// closed, a callable is not kept any more. Any thread.
ZO_EXPORT bool zo_notification_on_close(zo_notification_ptr notification,
                                        std::function<void(zo_notification_ptr)> callback);

// Asked when a link of the text is activated, with its URI, UTF-8: true when it dealt with the link, false
// lets GTK open it, as it does without a callback. The notification stays. Any thread.
ZO_EXPORT bool zo_notification_on_activate_link_callback(
    zo_notification_ptr notification, std::function<bool(zo_notification_ptr, std::string&)> callback);

// Builds the popup and shows it; a second call brings nothing new. Posted. Any thread.
ZO_EXPORT bool zo_notification_open_show(zo_notification_ptr notification);

// Closes it. Posted; closing what is closed does nothing. Any thread.
ZO_EXPORT bool zo_notification_destroy(zo_notification_ptr notification);
