// SPDX-License-Identifier: MIT
/// @file
/// The window: a top-level window with an own title bar, a content box for the application's widgets, and
/// callbacks.
///
/// A window is configured by properties, which may be set at any time; those that shape the window take
/// effect when it is opened next. What changes the screen is posted to the loop and the call returns at once:
/// true means posted.
///
///                zo_window_open          zo_window_show
///     new ───────────────────▶ opened ◀──────────────────▶ shown
///      ▲                         │       zo_window_hide      │
///      └──── zo_window_close ────┴───────────────────────────┘
///
/// zo_window_destroy() ends it for good, from any state.
///
/// Callbacks run on the loop, without any lock, with the window's own handle: they may call every function of
/// the same window. An empty function takes a callback away.
///
/// @thread any
/// @empty false, with the null-handle warning
/// @state ignored when the task runs, without a message; the call has returned true
#pragma once

#include <zo_ui/zo_handles.hpp>

#include <gtk/gtk.h>
#include <functional>
#include <string>

/// A new window. `id` becomes its id (see zo_window_set_id()) unless it is empty. The library keeps the
/// window alive, beside the caller's handle, until it is destroyed or joins a manager.
ZO_EXPORT zo_window_ptr zo_window_new(std::string id);

/// True when `object` is a window or of a subclass.
/// @empty false, without a warning
/// @state answers for a destroyed object, too
ZO_EXPORT bool zo_is_window(zo_object_ptr object);

/// The handle of `window` as that of the base.
/// @empty the empty handle, with the null-handle warning
/// @state works on a destroyed object, too
ZO_EXPORT zo_object_ptr zo_window_to_object(zo_window_ptr window);

/// The handle of `object` as that of its class. An object of another class gives an empty handle, without a
/// warning.
/// @empty the empty handle, with the null-handle warning
/// @state works on a destroyed object, too
ZO_EXPORT zo_window_ptr zo_window_from_object(zo_object_ptr object);

// Flags. A getter answers what was set last, a setter returns true.

/// @{
/// Whether the window registers with its manager and is marked active while it has the focus; default true.
/// The setter stores `value`.
/// @state takes effect at the next opening; answers and stores in every state
ZO_EXPORT bool zo_window_get_managed_window(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_managed_window(zo_window_ptr window, bool value);
/// @}
/// @{
/// Whether the window is an override-redirect popup without title bar, decoration or focus handling; default
/// false. The setter stores `value`.
/// @state takes effect at the next opening; answers and stores in every state
ZO_EXPORT bool zo_window_get_popup_window(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_popup_window(zo_window_ptr window, bool value);
/// @}
/// @{
/// Whether the window has an alpha channel where the screen offers one; default true. The setter stores
/// `value`.
/// @state takes effect at the next opening; answers and stores in every state
ZO_EXPORT bool zo_window_get_use_rgba_visual(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_use_rgba_visual(zo_window_ptr window, bool value);
/// @}
/// @{
/// Whether the window is framed by the desktop's window manager; default false. The setter stores `value`.
/// @state takes effect at the next opening; answers and stores in every state
ZO_EXPORT bool zo_window_get_use_system_decoration(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_use_system_decoration(zo_window_ptr window, bool value);
/// @}
/// @{
/// Whether the window is left out of the desktop's pagers; default true. The setter stores `value`.
/// @state takes effect at the next opening; answers and stores in every state
ZO_EXPORT bool zo_window_get_skip_pager(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_skip_pager(zo_window_ptr window, bool value);
/// @}
/// @{
/// Whether the window is left out of the desktop's task bars; default true. The setter stores `value`.
/// @state takes effect at the next opening; answers and stores in every state
ZO_EXPORT bool zo_window_get_skip_taskbar_hint(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_skip_taskbar_hint(zo_window_ptr window, bool value);
/// @}
/// @{
/// Whether the window can be resized by the user; default false. The setter stores `value`.
/// @state takes effect at the next opening; answers and stores in every state
ZO_EXPORT bool zo_window_get_resizable(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_resizable(zo_window_ptr window, bool value);
/// @}
/// @{
/// Whether the window stays above other windows; default true. zo_window_show() and zo_window_activate()
/// apply it again. The setter stores `value`.
/// @state true takes effect at the next opening, showing or activation, false at the next opening; answers
/// and stores in every state
ZO_EXPORT bool zo_window_get_keep_above(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_keep_above(zo_window_ptr window, bool value);
/// @}
/// @{
/// Whether the window can be moved by its built-in title bar; default true. The setter stores `value`.
/// @state takes effect at the next opening; answers and stores in every state
ZO_EXPORT bool zo_window_get_drag_enabled(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_drag_enabled(zo_window_ptr window, bool value);
/// @}
/// @{
/// Whether the window draws its own title bar; default true. Without it the desktop's frame is used. The
/// setter stores `value`.
/// @state takes effect at the next opening; answers and stores in every state
ZO_EXPORT bool zo_window_get_use_built_in_title(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_use_built_in_title(zo_window_ptr window, bool value);
/// @}
/// @{
/// Whether the window has a back button in its title bar; default false. The setter stores `value`.
/// @state takes effect at the next opening; answers and stores in every state
ZO_EXPORT bool zo_window_get_enable_title_back(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_enable_title_back(zo_window_ptr window, bool value);
/// @}
/// @{
/// Whether the window has a button in its title bar that asks to leave the application; default false. The
/// setter stores `value`.
/// @state takes effect at the next opening; answers and stores in every state
ZO_EXPORT bool zo_window_get_enable_title_exit(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_enable_title_exit(zo_window_ptr window, bool value);
/// @}
/// @{
/// Whether the window has a button for the tool menu in its title bar; default false. The setter stores
/// `value`.
/// @state takes effect at the next opening; answers and stores in every state
ZO_EXPORT bool zo_window_get_enable_title_menu(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_enable_title_menu(zo_window_ptr window, bool value);
/// @}
/// @{
/// Whether the window has a button for help in its title bar; default false. The setter stores `value`.
/// @state takes effect at the next opening; answers and stores in every state
ZO_EXPORT bool zo_window_get_enable_title_hint(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_enable_title_hint(zo_window_ptr window, bool value);
/// @}
/// @{
/// Whether the window has a button in its title bar that takes a picture of the window; default false. The
/// setter stores `value`.
/// @state takes effect at the next opening; answers and stores in every state
ZO_EXPORT bool zo_window_get_enable_title_save_to_photo(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_enable_title_save_to_photo(zo_window_ptr window, bool value);
/// @}
/// @{
/// Whether the window has a close button in its title bar; default true. The setter stores `value`.
/// @state takes effect at the next opening; answers and stores in every state
ZO_EXPORT bool zo_window_get_enable_title_close(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_enable_title_close(zo_window_ptr window, bool value);
/// @}
/// @{
/// Whether the window has a button in its title bar that hides the window; default true. The setter stores
/// `value`.
/// @state takes effect at the next opening; answers and stores in every state
ZO_EXPORT bool zo_window_get_enable_title_minimize(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_enable_title_minimize(zo_window_ptr window, bool value);
/// @}
/// @{
/// Whether the window has an advertisement strip above its content, below it in a popup; default false. The
/// setter stores `value`.
/// @state takes effect at the next opening; answers and stores in every state
ZO_EXPORT bool zo_window_get_enable_content_ads(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_enable_content_ads(zo_window_ptr window, bool value);
/// @}
/// @{
/// Whether the window scrolls its content where it would exceed the work area; default true. The setter
/// stores `value`.
/// @state takes effect at the next opening; answers and stores in every state
ZO_EXPORT bool zo_window_get_use_scroll(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_use_scroll(zo_window_ptr window, bool value);
/// @}

/// @{
/// Any bool property by its `name`, such as `keep-above`. A name that does not exist is reported as a failed
/// assertion when it is read (the result is false) and created with `value` when it is written.
/// @state answers and stores in every state
ZO_EXPORT bool zo_window_get_bool_property(zo_window_ptr window, std::string name);
ZO_EXPORT bool zo_window_set_bool_property(zo_window_ptr window, std::string name, bool value);
/// @}

/// @{
/// Whether it is opened, visible, or destroyed, in this moment: written to `*value`. False, and nothing is
/// written, for a null `value`, without a warning.
/// @state answers in every state
ZO_EXPORT bool zo_window_is_opened(zo_window_ptr window, bool* value);
ZO_EXPORT bool zo_window_is_visible(zo_window_ptr window, bool* value);
ZO_EXPORT bool zo_window_is_destroyed(zo_window_ptr window, bool* value);
/// @}

/// How often the window was closed or destroyed: tells one opening from the next.
/// @empty 0, with the null-handle warning
/// @state answers in every state
ZO_EXPORT int zo_window_instance_id(zo_window_ptr window);

/// @{
/// The id: the widget name that style sheets address, with a hash before it; empty at first. `text` is UTF-8.
/// A setter changes the property at once; an opened window follows on the loop, where the change callback is
/// called if the text really changed.
/// @empty false, with the null-handle warning; a getter leaves `text` as it is
/// @state works in every state
ZO_EXPORT bool zo_window_get_id(zo_window_ptr window, std::string& text);
ZO_EXPORT bool zo_window_set_id(zo_window_ptr window, std::string text);
/// @}

/// @{
/// The style class of the window and of its tool menu; at first `global-window`. `text` is UTF-8. A setter
/// changes the property at once; an opened window follows on the loop, where the change callback is called if
/// the text really changed.
/// @empty false, with the null-handle warning; a getter leaves `text` as it is
/// @state works in every state
ZO_EXPORT bool zo_window_get_class(zo_window_ptr window, std::string& text);
ZO_EXPORT bool zo_window_set_class(zo_window_ptr window, std::string text);
/// @}

/// @{
/// The text in the title bar; empty at first. The title that the desktop shows follows at the next opening.
/// `text` is UTF-8. A setter changes the property at once; an opened window follows on the loop, where the
/// change callback is called if the text really changed.
/// @empty false, with the null-handle warning; a getter leaves `text` as it is
/// @state works in every state
ZO_EXPORT bool zo_window_get_title(zo_window_ptr window, std::string& text);
ZO_EXPORT bool zo_window_set_title(zo_window_ptr window, std::string text);
/// @}

// Callbacks. What has passed already is not told afterwards. zo_window_destroy() clears all of them.

/// Sets the `callback` that adds the content: called when the widgets exist and are hidden.
/// @state stored in every state; a destroyed window calls nothing
ZO_EXPORT bool zo_window_set_window_open_callback(zo_window_ptr window,
                                                  std::function<void(zo_window_ptr)> callback);

/// Sets the `callback` that is called before the widgets are shown.
/// @state stored in every state; a destroyed window calls nothing
ZO_EXPORT bool zo_window_set_window_show_callback(zo_window_ptr window,
                                                  std::function<void(zo_window_ptr)> callback);

/// Sets the `callback` that is called after the widgets were hidden.
/// @state stored in every state; a destroyed window calls nothing
ZO_EXPORT bool zo_window_set_window_hide_callback(zo_window_ptr window,
                                                  std::function<void(zo_window_ptr)> callback);

/// Sets the `callback` that is called when the widgets are gone. The end of an opened window calls it, too.
/// @state stored in every state; a destroyed window calls nothing
ZO_EXPORT bool zo_window_set_window_close_callback(zo_window_ptr window,
                                                   std::function<void(zo_window_ptr)> callback);

/// Sets the `callback` that is called when zo_window_activate() has raised the window.
/// @state stored in every state; a destroyed window calls nothing
ZO_EXPORT bool zo_window_set_window_activate_callback(zo_window_ptr window,
                                                      std::function<void(zo_window_ptr)> callback);

/// Sets the `callback` that is called when zo_window_restore() has shown the window.
/// @state stored in every state; a destroyed window calls nothing
ZO_EXPORT bool zo_window_set_window_restore_callback(zo_window_ptr window,
                                                     std::function<void(zo_window_ptr)> callback);

/// Sets the `callback` that is called once, at the end; the widgets are gone.
/// @state stored in every state; a destroyed window calls nothing
ZO_EXPORT bool zo_window_set_window_destroy_callback(zo_window_ptr window,
                                                     std::function<void(zo_window_ptr)> callback);

/// Sets the `callback` that is asked before the user closes the window, by its title button or through the
/// desktop's window manager: true keeps the window open. zo_window_close() does not ask.
/// @state stored in every state; a destroyed window calls nothing
ZO_EXPORT bool zo_window_set_window_close_request_callback(zo_window_ptr window,
                                                           std::function<bool(zo_window_ptr)> callback);

/// Sets the `callback` of the title bar's back button.
/// @state stored in every state; a destroyed window calls nothing
ZO_EXPORT bool zo_window_set_window_go_back_callback(zo_window_ptr window,
                                                     std::function<void(zo_window_ptr)> callback);

/// Sets the `callback` of the title bar's help button.
/// @state stored in every state; a destroyed window calls nothing
ZO_EXPORT bool zo_window_set_window_hint_request_callback(zo_window_ptr window,
                                                          std::function<void(zo_window_ptr)> callback);

/// Sets the `callback` of the title bar's exit button.
/// @state stored in every state; a destroyed window calls nothing
ZO_EXPORT bool zo_window_set_window_exit_app_request_callback(zo_window_ptr window,
                                                              std::function<void(zo_window_ptr)> callback);

/// Sets the `handler` of the title bar's photo button: it gets a picture of the window in device pixels.
/// @owner the picture is the library's; take a reference to keep it
/// @state stored in every state; a destroyed window calls nothing
ZO_EXPORT bool zo_window_set_save_to_photo_handler(zo_window_ptr window,
                                                   std::function<void(zo_window_ptr, GdkPixbuf*)> handler);

/// Sets the `handler` of the title bar's menu button: it fills the grid of the tool menu, each time the menu
/// opens. Buttons in the first two columns, down to the first empty row, close the menu when clicked.
/// @owner the menu owns the grid and what is put into it
/// @state stored in every state; a destroyed window calls nothing
ZO_EXPORT bool zo_window_set_menu_create_handler(zo_window_ptr window,
                                                 std::function<void(zo_window_ptr, GtkGrid*)> handler);

/// Sets the `callback` that is called with the new text when the title has changed.
/// @state stored in every state; a destroyed window calls nothing
ZO_EXPORT bool zo_window_set_window_title_text_change_callback(
    zo_window_ptr window, std::function<void(zo_window_ptr, std::string)> callback);

/// Sets the `callback` that is called with the new text when the class has changed.
/// @state stored in every state; a destroyed window calls nothing
ZO_EXPORT bool zo_window_set_window_class_change_callback(
    zo_window_ptr window, std::function<void(zo_window_ptr, std::string)> callback);

/// Sets the `callback` that is called with the new text when the id has changed.
/// @state stored in every state; a destroyed window calls nothing
ZO_EXPORT bool zo_window_set_window_id_change_callback(
    zo_window_ptr window, std::function<void(zo_window_ptr, std::string)> callback);

/// Sets the `callback` that is called for each event of zo_window_push_event().
/// @state stored in every state; a destroyed window calls nothing
ZO_EXPORT bool zo_window_set_window_event_callback(
    zo_window_ptr window, std::function<void(zo_window_ptr, zo_window_event_ptr)> callback);

/// Joins the window to `manager`, or with an empty one takes it away from its present one. The manager then
/// keeps the window alive. Posted. Join a window before it is opened: its task button is made at the opening.
/// @state ignored for a destroyed window
ZO_EXPORT bool zo_window_set_window_manager(zo_window_ptr window, zo_window_manager_ptr manager);

/// The manager of this moment; empty without one.
/// @empty the empty handle, with the null-handle warning
/// @state answers in every state
ZO_EXPORT zo_window_manager_ptr zo_window_get_window_manager(zo_window_ptr window);

/// Packs `child` into the content box, at its start or, with `pack_end`, at its end, as `gtk_box_pack_start`
/// does: `expand` and `fill` say whether the child gets and fills spare room, `padding` is in GTK's (logical)
/// pixels. Works at once.
/// @thread the loop's
/// @owner the window owns `child` from then on; it dies when the window is closed
/// @state false, and nothing is packed, unless the window is opened; also for a child with a parent
ZO_EXPORT bool zo_window_add_content_child(zo_window_ptr window, GtkWidget* child, bool expand, bool fill,
                                           int padding, bool pack_end);

// Posted operations; see the picture above.

/// Builds the window without showing it, and calls the open callback.
/// @state an opened or destroyed window ignores it
ZO_EXPORT bool zo_window_open(zo_window_ptr window);

/// Shows an opened window.
/// @state a window that is not opened, or visible already, ignores it
ZO_EXPORT bool zo_window_show(zo_window_ptr window);

/// Hides a visible window; its widgets stay.
/// @state a window that is not visible ignores it
ZO_EXPORT bool zo_window_hide(zo_window_ptr window);
/// Raises a visible window and asks the desktop's window manager to give it the focus.
/// @state a window that is not visible ignores it
ZO_EXPORT bool zo_window_activate(zo_window_ptr window);

/// Shows the window if it was visible at the last zo_window_save().
/// @state a window that is not opened, or visible already, ignores it
ZO_EXPORT bool zo_window_restore(zo_window_ptr window);

/// Takes the widgets down, without asking the close-request callback; the window may be opened again.
/// @state a window that is not opened ignores it
ZO_EXPORT bool zo_window_close(zo_window_ptr window);

/// @{
/// Ends the window for good, from any state, and clears its callbacks. `reason` and `line` name the caller,
/// for the report of a second call.
/// @state a second call with a reason writes a warning; one without does nothing
ZO_EXPORT bool zo_window_destroy(zo_window_ptr window);
ZO_EXPORT bool zo_window_destroy(zo_window_ptr window, std::string reason, int line);
/// @}
/// Moves the window to `x`, `y` in root coordinates, in GTK's (logical) pixels. The place is not kept for the
/// next opening.
/// @state a window that is not opened ignores it
ZO_EXPORT bool zo_window_move(zo_window_ptr window, int x, int y);

/// Delivers `event` to the event callback; it is dropped without one. Events arrive in the order of the
/// calls.
/// @empty false, with the null-handle warning; for an empty event, too
/// @state delivered in every state, but a destroyed window has no callback
ZO_EXPORT bool zo_window_push_event(zo_window_ptr window, zo_window_event_ptr event);

/// Notes, at once, whether the window is visible, for zo_window_restore().
/// @state works in every state
ZO_EXPORT bool zo_window_save(zo_window_ptr window);
