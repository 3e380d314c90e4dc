// SPDX-License-Identifier: MIT
// What an icon hears of the session bus, and when.
#pragma once

#include <gio/gio.h>

namespace zo {

// While an icon is made. The indicator library asks for the bus twice, for the tray's host and for itself,
// and is lost for good when it finds the host before its own answer has come. Threads answer, in any order:
// so it hears of both in a context apart, which the loop turns only when all answers lie there. On the loop.
class hearing {
  public:
    hearing();
    ~hearing();
    hearing(const hearing&) = delete;
    hearing& operator=(const hearing&) = delete;

  private:
    GMainContext* const context_;
};

}  // namespace zo
