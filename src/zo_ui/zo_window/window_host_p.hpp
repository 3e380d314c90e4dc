// SPDX-License-Identifier: MIT
// What a window needs of its manager. The manager stands on the window, so the window knows only this much of
// it.
#pragma once

#include <zo_ui/zo_handles.hpp>

namespace zo {

// All on the loop. A window reports after its own callback has run.
class window_host {
  public:
    virtual void connect_window(zo_window_ptr window) = 0;
    virtual void disconnect_window(zo_window_ptr window) = 0;
    virtual void on_window_title(zo_window_ptr window) = 0;
    virtual void on_window_open(zo_window_ptr window) = 0;
    virtual void on_window_shown(zo_window_ptr window) = 0;
    virtual void on_window_hidden(zo_window_ptr window) = 0;
    virtual void on_window_close(zo_window_ptr window) = 0;
    virtual void on_window_destroy(zo_window_ptr window) = 0;

  protected:
    ~window_host() = default;
};

// The manager's side as a host. Defined with the manager, which alone knows its class.
window_host& host_of(_zo_window_manager& manager);

}  // namespace zo
