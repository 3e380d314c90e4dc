// SPDX-License-Identifier: MIT
// What an icon hears of the session bus, and when.
#pragma once

#include <glib-object.h>

namespace zo {

struct ear;

// While an icon is made with its menu. The indicator library asks for the bus three times: for the tray's
// host, for itself and for the menu. It is lost for good when it finds the host before its own answer has
// come, and the menu of an icon that has gone takes its place on the bus when its answer comes, perhaps from
// the next icon's. Threads answer, in any order: so an icon hears in a context of its own, which the loop
// turns only when all three answers lie there, and then as long as the icon lives. On the loop.
class hearing {
  public:
    hearing();
    ~hearing();
    hearing(const hearing&) = delete;
    hearing& operator=(const hearing&) = delete;

    // Whose it is. The context is another icon's after it.
    void belongs_to(GObject* icon);

  private:
    ear* const ear_;  // null when there are too many
};

}  // namespace zo
