// SPDX-License-Identifier: MIT
// The process's error handler (XSetErrorHandler) is left alone. It is one slot for every library and every
// thread, set and put back by toolkits around their own requests, so whoever chains into it is dropped when
// another one restores what it had saved, and meanwhile judges errors of connections that are not his. Xlib
// also keeps handlers for each connection, meant for protocol extensions. They are asked first, by the thread
// that waits for the failing request's reply, and their "yes" ends the matter. Such a handler stays until its
// connection is closed, whatever happens to the process's.
#include <zo_ui/platform/linux/x_errors_p.hpp>

#include <X11/Xlibint.h>
#include <X11/Xproto.h>
#undef min
#undef max

namespace zo::platform {
namespace {

// What this module asks by Xlib on a caller's connection, and that can fail, when the server is out of
// memory. The rest it asks by XCB, whose errors never come here. It has a reply, and Xlib gives its error
// only to the thread that waits for the reply: with no lock on the connection, an error of this kind that
// arrives while a trap's thread waits is that of the trap's own request.
bool is_query(int major_code) { return major_code == X_InternAtom; }

// Xlib calls this with the connection locked. A result of 0 in `status` makes the waiting call fail.
int on_error(Display* display, xError* error, XExtCodes*, int* status) {
    if (!error_trap::takes(display, error->majorCode)) return False;
    *status = 0;
    return True;
}

bool is_installed(Display* display) {
    LockDisplay(display);
    const _XExtension* extension = display->ext_procs;
    while (extension && extension->error != on_error) extension = extension->next;
    UnlockDisplay(display);
    return extension != nullptr;
}

// Two threads may both come to install it, and a lock of our own would be taken in both orders with the
// connection's: a second entry does no harm. XCloseDisplay frees them.
void install(Display* display) {
    if (is_installed(display)) return;
    if (const XExtCodes* codes = XAddExtension(display)) XESetError(display, codes->extension, on_error);
}

}  // namespace

thread_local error_trap* error_trap::innermost_ = nullptr;

error_trap::error_trap(Display* display, trapped which)
    : display_(display), which_(which), first_request_(0), outer_(innermost_) {
    if (display) {
        install(display);
        first_request_ = XNextRequest(display);
    }
    innermost_ = this;
}

error_trap::~error_trap() { innermost_ = outer_; }

bool error_trap::takes(Display* display, int major_code) {
    for (const error_trap* trap = innermost_; trap; trap = trap->outer_) {
        if (trap->display_ != display) continue;
        // What was asked before the trap began is not its own, as when XCB left an error among the events.
        const long distance = static_cast<long>(LastKnownRequestProcessed(display) - trap->first_request_);
        if (distance >= 0 && (trap->which_ == trapped::everything || is_query(major_code))) return true;
    }
    return false;
}

}  // namespace zo::platform
