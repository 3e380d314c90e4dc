// SPDX-License-Identifier: MIT
// The icon itself, and when one can be made. Only on the loop.
//
// The indicator library asks for the session bus several times at once, and on a connection that is still
// being made the answers may come in an order that it does not survive: then the icon never appears, and
// never goes. So the connection is made first, answers for itself first, and is held while there are icons;
// not longer, because a host knows by its end that they have gone. And an icon that was taken away lives on
// until the bus has answered what was asked for it; meanwhile its place on the bus, and its menu's, is taken,
// and a new icon of the same name, or of one that differs only in its signs, would not appear.
#pragma once

#include <libayatana-appindicator/app-indicator.h>
#include <functional>
#include <string>

namespace zo {

// False when an icon of this name can be made now; a bus that answers promptly is waited for. Otherwise
// `then` is called, once, when it is worth asking again, and says whether the place is wanted still; it must
// not touch the toolkit.
bool must_wait_for_place(const std::string& name, std::function<bool()> then);

// For who got a place and makes no icon: without any icon the connection is not held.
void leave_unused_bus();

// The new icon is the caller's until let_icon_go; it keeps a reference to its menu.
AppIndicator* new_icon(const std::string& name, const std::string& icon, GtkMenu* menu);

// Hides the icon, for hosts that do not see it go, and gives it up.
void let_icon_go(AppIndicator* icon);

}  // namespace zo
