// SPDX-License-Identifier: MIT
// What this module owns of Xlib's: a connection for one call, and memory that Xlib gave.
#pragma once

#include <zo_ui/platform/linux/x_errors_p.hpp>

#include <memory>

namespace zo::platform {

struct x_free {
    void operator()(void* memory) const { XFree(memory); }
};
template <typename T>
using x_memory = std::unique_ptr<T, x_free>;

// A connection for one call, with every error on it trapped. Closing it sends what is buffered and waits for
// the answers.
class own_connection {
  public:
    own_connection();
    ~own_connection();
    own_connection(const own_connection&) = delete;
    own_connection& operator=(const own_connection&) = delete;

    // Null when there is no display.
    Display* display() const { return display_; }
    void leave_open() { display_ = nullptr; }

  private:
    Display* display_;
    error_trap trap_;
};

// Whether this is the root window of one of the display's screens. Asks nothing of the server.
bool is_root(Display* display, Window window);

}  // namespace zo::platform
