// SPDX-License-Identifier: MIT
// The tray indicator: an icon in the desktop's indicator area, with a menu of named actions.
//
//     created ──── zo_appindicator_show ────▶ shown        destroy() of the object: from anywhere, for good
//
// The icon and its menu are built when the indicator is shown, on the loop, and stay as they are until it is
// destroyed. Where the desktop has no indicator area yet, the icon appears as soon as there is one. What does
// not fit the state is ignored. Every function writes the null-handle warning for an empty handle and returns
// false, or the empty handle.
#pragma once

#include <zo_ui/zo_handles.hpp>

#include <functional>
#include <string>

// A new indicator. `name` is its id, different from those of the program's other indicators in more than
// punctuation; with an empty one it is never shown. `title` is what the desktop calls it, empty for none.
// `icon` is the name of an icon of the theme, or the absolute path of a picture. The library keeps the
// indicator alive, beside the caller's handle, until it is destroyed:
// zo_appindicator_to_object(indicator)->destroy(reason, line). Any thread.
ZO_EXPORT zo_appindicator_ptr zo_appindicator_new(std::string name, std::string title, std::string icon);

// Adds an entry to the menu: `name` tells it from the others and gives its place (byte order), `label` is
// what the user reads. `callback` runs on the loop, without any lock, with the indicator's own handle and a
// copy of the name; it may destroy the indicator. Empty, it does nothing. A name that exists gets the new
// callback, at any time, and keeps its label. A name that is new to an indicator already shown does not
// appear in its menu. Posted. Any thread. True when posted.
ZO_EXPORT bool zo_appindicator_add_action(zo_appindicator_ptr indicator, std::string name, std::string label,
                                          std::function<void(zo_appindicator_ptr, std::string&)> callback);

// Shows the icon, once. Posted. Any thread. True when posted. Without a display it is reported as a failed
// assertion, and nothing is shown.
ZO_EXPORT bool zo_appindicator_show(zo_appindicator_ptr indicator);

// True when `object` is an indicator or of a subclass; false for an empty handle, without a warning. Any
// thread.
ZO_EXPORT bool zo_is_appindicator(zo_object_ptr object);

// The handle as that of the base, and back. Any thread. An object of another class gives an empty handle
// without a warning.
ZO_EXPORT zo_object_ptr zo_appindicator_to_object(zo_appindicator_ptr indicator);
ZO_EXPORT zo_appindicator_ptr zo_appindicator_from_object(zo_object_ptr object);
