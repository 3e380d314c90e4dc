// SPDX-License-Identifier: MIT
// Makes failing X requests of this module failing calls.
#pragma once

#include <X11/Xlib.h>

namespace zo::platform {

// Which errors a trap takes: on a caller's connection those of this module's queries, on an own connection
// all.
enum class trapped { queries, everything };

// While a trap lives, X errors of what its thread asks on its connection make that call fail and go nowhere
// else. Traps nest. It sends nothing and holds no lock. The connection may be closed before the trap ends,
// and should be when a request without reply was made on it: closing waits for the last errors.
class error_trap {
  public:
    explicit error_trap(Display* display, trapped which = trapped::queries);
    ~error_trap();
    error_trap(const error_trap&) = delete;
    error_trap& operator=(const error_trap&) = delete;

    // Whether a trap of the calling thread takes the error of the request with this major code that was
    // answered last.
    static bool takes(Display* display, int major_code);

  private:
    Display* display_;
    trapped which_;
    unsigned long first_request_;
    error_trap* outer_;

    static thread_local error_trap* innermost_;
};

}  // namespace zo::platform
