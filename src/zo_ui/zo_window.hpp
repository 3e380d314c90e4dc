// SPDX-License-Identifier: MIT
// The window: a top-level window with an own title bar, a content box for the application's widgets, and
// callbacks.
//
// A window is configured by properties, which may be set at any time from any thread; those that shape the
// window take effect when it is opened next. What changes the screen is posted to the loop and the call
// returns at once: true means posted. An operation that does not fit the window's state when its turn comes
// is ignored.
//
//                zo_window_open          zo_window_show
//     new ───────────────────▶ opened ◀──────────────────▶ shown
//      ▲                         │       zo_window_hide      │
//      └──── zo_window_close ────┴───────────────────────────┘       zo_window_destroy: from anywhere, for
//      good
//
// Every function writes the null-handle warning for an empty handle and returns false, or the neutral value
// it names. Callbacks run on the loop, without any lock, with the window's own handle: they may call every
// function of the same window. An empty function takes a callback away.
#pragma once

#include <zo_ui/zo_handles.hpp>

#include <gtk/gtk.h>
#include <functional>
#include <string>

// A new window. `id` becomes its id (see zo_window_set_id) unless it is empty. The library keeps the window
// alive, beside the caller's handle, until it is destroyed or joins a manager. Any thread.
ZO_EXPORT zo_window_ptr zo_window_new(std::string id);

// True when `object` is a window or of a subclass; false for an empty handle, without a warning. Any thread.
ZO_EXPORT bool zo_is_window(zo_object_ptr object);

// The handle as that of the base, and back. Any thread. An object of another class gives an empty handle
// without a warning.
ZO_EXPORT zo_object_ptr zo_window_to_object(zo_window_ptr window);
ZO_EXPORT zo_window_ptr zo_window_from_object(zo_object_ptr object);

// Flags. A getter answers what was set last, a setter returns true. Any thread. A flag says that the window
// ...

// ... registers with its manager and is marked active while it has the focus; default true.
ZO_EXPORT bool zo_window_get_managed_window(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_managed_window(zo_window_ptr window, bool value);
// ... is an override-redirect popup without title bar, decoration or focus handling; default false.
ZO_EXPORT bool zo_window_get_popup_window(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_popup_window(zo_window_ptr window, bool value);
// ... has an alpha channel where the screen offers one; default true.
ZO_EXPORT bool zo_window_get_use_rgba_visual(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_use_rgba_visual(zo_window_ptr window, bool value);
// ... is framed by the desktop's window manager; default false.
ZO_EXPORT bool zo_window_get_use_system_decoration(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_use_system_decoration(zo_window_ptr window, bool value);
// ... is left out of the desktop's pagers; default true.
ZO_EXPORT bool zo_window_get_skip_pager(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_skip_pager(zo_window_ptr window, bool value);
// ... is left out of the desktop's task bars; default true.
ZO_EXPORT bool zo_window_get_skip_taskbar_hint(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_skip_taskbar_hint(zo_window_ptr window, bool value);
// ... can be resized by the user; default false.
ZO_EXPORT bool zo_window_get_resizable(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_resizable(zo_window_ptr window, bool value);
// ... stays above other windows; default true. Also re-applied by zo_window_activate and zo_window_show.
ZO_EXPORT bool zo_window_get_keep_above(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_keep_above(zo_window_ptr window, bool value);
// ... can be moved by its built-in title bar; default true.
ZO_EXPORT bool zo_window_get_drag_enabled(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_drag_enabled(zo_window_ptr window, bool value);
// ... draws its own title bar; default true. Without it the desktop's frame is used.
ZO_EXPORT bool zo_window_get_use_built_in_title(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_use_built_in_title(zo_window_ptr window, bool value);
// ... has, in its title bar, a back button; default false.
ZO_EXPORT bool zo_window_get_enable_title_back(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_enable_title_back(zo_window_ptr window, bool value);
// ... has, in its title bar, a button that asks to leave the application; default false.
ZO_EXPORT bool zo_window_get_enable_title_exit(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_enable_title_exit(zo_window_ptr window, bool value);
// ... has, in its title bar, a button for the tool menu; default false.
ZO_EXPORT bool zo_window_get_enable_title_menu(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_enable_title_menu(zo_window_ptr window, bool value);
// ... has, in its title bar, a button for help; default false.
ZO_EXPORT bool zo_window_get_enable_title_hint(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_enable_title_hint(zo_window_ptr window, bool value);
// ... has, in its title bar, a button that takes a picture of the window; default false.
ZO_EXPORT bool zo_window_get_enable_title_save_to_photo(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_enable_title_save_to_photo(zo_window_ptr window, bool value);
// ... has, in its title bar, a close button; default true.
ZO_EXPORT bool zo_window_get_enable_title_close(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_enable_title_close(zo_window_ptr window, bool value);
// ... has, in its title bar, a button that hides the window; default true.
ZO_EXPORT bool zo_window_get_enable_title_minimize(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_enable_title_minimize(zo_window_ptr window, bool value);
// ... has an advertisement strip above its content (below it in a popup); default false.
ZO_EXPORT bool zo_window_get_enable_content_ads(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_enable_content_ads(zo_window_ptr window, bool value);
// ... scrolls its content where it would exceed the work area; default true.
ZO_EXPORT bool zo_window_get_use_scroll(zo_window_ptr window);
ZO_EXPORT bool zo_window_set_use_scroll(zo_window_ptr window, bool value);

// Any bool property by its name, such as "keep-above". A name that does not exist is reported as a failed
// assertion when it is read (the result is false) and created when it is written. Any thread.
ZO_EXPORT bool zo_window_get_bool_property(zo_window_ptr window, std::string name);
ZO_EXPORT bool zo_window_set_bool_property(zo_window_ptr window, std::string name, bool value);

// State, written to `*value`. False, and nothing is written, for a null `value` (without a warning) or an
// empty handle. Any thread; the state of this moment, which the loop may change at once.
ZO_EXPORT bool zo_window_is_opened(zo_window_ptr window, bool* value);
ZO_EXPORT bool zo_window_is_visible(zo_window_ptr window, bool* value);
ZO_EXPORT bool zo_window_is_destroyed(zo_window_ptr window, bool* value);

// How often the window was closed or destroyed: tells one opening from the next. 0 for an empty handle. Any
// thread.
ZO_EXPORT int zo_window_instance_id(zo_window_ptr window);

// Texts, UTF-8. The id is the widget name that style sheets address (#id), the class a style class (default
// "global-window"), the title the text in the title bar. A getter leaves `text` as it is for an empty handle.
// A setter takes effect in the property at once; an opened window follows on the loop, where the change
// callback is called when the text really changed. Any thread.
ZO_EXPORT bool zo_window_get_id(zo_window_ptr window, std::string& text);
ZO_EXPORT bool zo_window_set_id(zo_window_ptr window, std::string text);
ZO_EXPORT bool zo_window_get_class(zo_window_ptr window, std::string& text);
ZO_EXPORT bool zo_window_set_class(zo_window_ptr window, std::string text);
ZO_EXPORT bool zo_window_get_title(zo_window_ptr window, std::string& text);
ZO_EXPORT bool zo_window_set_title(zo_window_ptr window, std::string text);

// Callbacks of the life cycle. Open: the widgets exist and are hidden; the place to add content. Show: called
// before the widgets are shown. Hide: after they were hidden. Close and destroy: the widgets are gone.
ZO_EXPORT bool zo_window_set_window_open_callback(zo_window_ptr window,
                                                  std::function<void(zo_window_ptr)> callback);
ZO_EXPORT bool zo_window_set_window_show_callback(zo_window_ptr window,
                                                  std::function<void(zo_window_ptr)> callback);
ZO_EXPORT bool zo_window_set_window_hide_callback(zo_window_ptr window,
                                                  std::function<void(zo_window_ptr)> callback);
ZO_EXPORT bool zo_window_set_window_close_callback(zo_window_ptr window,
                                                   std::function<void(zo_window_ptr)> callback);
ZO_EXPORT bool zo_window_set_window_activate_callback(zo_window_ptr window,
                                                      std::function<void(zo_window_ptr)> callback);
ZO_EXPORT bool zo_window_set_window_restore_callback(zo_window_ptr window,
                                                     std::function<void(zo_window_ptr)> callback);
ZO_EXPORT bool zo_window_set_window_destroy_callback(zo_window_ptr window,
                                                     std::function<void(zo_window_ptr)> callback);

// Asked before the user closes the window, by its title button or through the desktop's window manager: true
// keeps the window open. zo_window_close does not ask.
ZO_EXPORT bool zo_window_set_window_close_request_callback(zo_window_ptr window,
                                                           std::function<bool(zo_window_ptr)> callback);

// The title bar's back, hint and exit buttons.
ZO_EXPORT bool zo_window_set_window_go_back_callback(zo_window_ptr window,
                                                     std::function<void(zo_window_ptr)> callback);
ZO_EXPORT bool zo_window_set_window_hint_request_callback(zo_window_ptr window,
                                                          std::function<void(zo_window_ptr)> callback);
ZO_EXPORT bool zo_window_set_window_exit_app_request_callback(zo_window_ptr window,
                                                              std::function<void(zo_window_ptr)> callback);

// The title bar's photo button: gets a picture of the window in device pixels. The picture is the library's;
// take a reference to keep it.
ZO_EXPORT bool zo_window_set_save_to_photo_handler(zo_window_ptr window,
                                                   std::function<void(zo_window_ptr, GdkPixbuf*)> handler);

// The title bar's menu button: fills the grid of the tool menu. Buttons in the first two columns, down to the
// first empty row, close the menu when clicked.
ZO_EXPORT bool zo_window_set_menu_create_handler(zo_window_ptr window,
                                                 std::function<void(zo_window_ptr, GtkGrid*)> handler);

// Called when the title, class or id has changed, with the new text.
ZO_EXPORT bool zo_window_set_window_title_text_change_callback(
    zo_window_ptr window, std::function<void(zo_window_ptr, std::string)> callback);
ZO_EXPORT bool zo_window_set_window_class_change_callback(
    zo_window_ptr window, std::function<void(zo_window_ptr, std::string)> callback);
ZO_EXPORT bool zo_window_set_window_id_change_callback(
    zo_window_ptr window, std::function<void(zo_window_ptr, std::string)> callback);

// Called for each event of zo_window_push_event.
ZO_EXPORT bool zo_window_set_window_event_callback(
    zo_window_ptr window, std::function<void(zo_window_ptr, zo_window_event_ptr)> callback);

// Joins the window to a manager, or with an empty `manager` takes it away from its present one. Posted; the
// getter answers the manager of this moment, empty without one. Any thread.
ZO_EXPORT bool zo_window_set_window_manager(zo_window_ptr window, zo_window_manager_ptr manager);
ZO_EXPORT zo_window_manager_ptr zo_window_get_window_manager(zo_window_ptr window);

// Packs `child` into the content box, at its start or end, as gtk_box_pack_start does; `padding` in pixels.
// The box then owns the child. Only on the loop's thread. False, and nothing is packed, unless the window is
// opened and the child is a loose widget, that is one without a parent.
ZO_EXPORT bool zo_window_add_content_child(zo_window_ptr window, GtkWidget* child, bool expand, bool fill,
                                           int padding, bool pack_end);

// Posted operations; see the picture above. Any thread.

// Builds the window without showing it.
ZO_EXPORT bool zo_window_open(zo_window_ptr window);
ZO_EXPORT bool zo_window_show(zo_window_ptr window);
ZO_EXPORT bool zo_window_hide(zo_window_ptr window);
// Raises a shown window and gives it the focus (_NET_ACTIVE_WINDOW of the EWMH).
ZO_EXPORT bool zo_window_activate(zo_window_ptr window);
// Shows the window if it was visible at the last zo_window_save.
ZO_EXPORT bool zo_window_restore(zo_window_ptr window);
// Takes the widgets down; the window may be opened again.
ZO_EXPORT bool zo_window_close(zo_window_ptr window);
// Ends the window for good and clears its callbacks. With a reason, a second call writes a warning.
ZO_EXPORT bool zo_window_destroy(zo_window_ptr window);
ZO_EXPORT bool zo_window_destroy(zo_window_ptr window, std::string reason, int line);
// Moves an opened window to a place in root coordinates, in GTK's (logical) pixels.
ZO_EXPORT bool zo_window_move(zo_window_ptr window, int x, int y);
// Delivers an event to the event callback; dropped without one. False with the warning for an empty event,
// too.
ZO_EXPORT bool zo_window_push_event(zo_window_ptr window, zo_window_event_ptr event);

// Notes the present state for zo_window_restore, at once. Any thread.
ZO_EXPORT bool zo_window_save(zo_window_ptr window);
