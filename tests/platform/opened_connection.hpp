// SPDX-License-Identifier: MIT
// Lets a test see the connections that the code under test opens for itself. Only for programs that link its
// objects.
#pragma once

#include <X11/Xlib.h>

#include <functional>

namespace test {

// While this lives, `action` is called with each connection when it has been opened.
class opened_connection {
  public:
    explicit opened_connection(std::function<void(Display*)> action);
    ~opened_connection();
    opened_connection(const opened_connection&) = delete;
    opened_connection& operator=(const opened_connection&) = delete;
};

}  // namespace test
