// SPDX-License-Identifier: MIT
// What the program has asked of the X server. Only for programs with GTK.
#pragma once

#include <gdk/gdkx.h>

namespace bench {

// Requests on GDK's connection since it was opened.
inline unsigned long x_requests() { return XNextRequest(gdk_x11_get_default_xdisplay()) - 1; }

}  // namespace bench
