// SPDX-License-Identifier: MIT
/// @file
/// The tray indicator: an icon in the desktop's indicator area, with a menu of named actions.
///
///     created ──── zo_appindicator_show ────▶ shown
///
/// The icon and its menu are built when the indicator is shown, on the loop, and stay as they are until it is
/// destroyed. Where the desktop has no indicator area yet, the icon appears as soon as there is one.
///
/// @thread any
/// @empty false, with the null-handle warning
/// @state ignored
#pragma once

#include <zo_ui/zo_handles.hpp>

#include <functional>
#include <string>

/// A new indicator. `name` is its id, different from those of the program's other indicators in more than
/// punctuation; with an empty one it is never shown. `title` is what the desktop calls it, empty for none.
/// `icon` is the name of an icon of the theme, or the absolute path of a picture. The library keeps the
/// indicator alive, beside the caller's handle, until it is destroyed:
/// `zo_appindicator_to_object(indicator)->destroy(reason, line)`.
ZO_EXPORT zo_appindicator_ptr zo_appindicator_new(std::string name, std::string title, std::string icon);

/// Adds an entry to the menu: `name` tells it from the others and gives its place (byte order), `label` is
/// what the user reads. `callback` runs on the loop, without any lock, with the indicator's own handle and a
/// copy of the name; it may destroy the indicator. Empty, it does nothing. A name that exists gets the new
/// callback and keeps its label. Posted: true means that the task is on its way.
/// @state a new name does not appear in the menu of an indicator already shown; after its end, ignored
ZO_EXPORT bool zo_appindicator_add_action(zo_appindicator_ptr indicator, std::string name, std::string label,
                                          std::function<void(zo_appindicator_ptr, std::string&)> callback);

/// Shows the icon of `indicator`, once. Posted: true means that the task is on its way. Without a display it
/// is reported as a failed assertion, and nothing is shown.
/// @state a second call, and one after its end, is ignored
ZO_EXPORT bool zo_appindicator_show(zo_appindicator_ptr indicator);

/// True when `object` is an indicator or of a subclass.
/// @empty false, without a warning
/// @state answers for a destroyed object, too
ZO_EXPORT bool zo_is_appindicator(zo_object_ptr object);

/// The handle of `indicator` as that of the base.
/// @empty the empty handle, with the null-handle warning
/// @state works on a destroyed object, too
ZO_EXPORT zo_object_ptr zo_appindicator_to_object(zo_appindicator_ptr indicator);

/// The handle of `object` as that of its class. An object of another class gives an empty handle, without a
/// warning.
/// @empty the empty handle, with the null-handle warning
/// @state works on a destroyed object, too
ZO_EXPORT zo_appindicator_ptr zo_appindicator_from_object(zo_object_ptr object);
