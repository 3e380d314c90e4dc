// SPDX-License-Identifier: MIT
// What a program has on the screen, asked of the X server.
#pragma once

#include <X11/Xlib.h>
#include <sys/types.h>

namespace bench {

// The server, with a connection that no program inherits; a window that is gone when it is asked about is no
// error.
class screen_watch {
  public:
    screen_watch();
    ~screen_watch();
    screen_watch(const screen_watch&) = delete;
    screen_watch& operator=(const screen_watch&) = delete;

    Display* display() const { return display_; }

    // How many windows the process has on the screen, framed by a window manager or not.
    int windows_of(pid_t process) const;

  private:
    Display* display_;
};

}  // namespace bench
