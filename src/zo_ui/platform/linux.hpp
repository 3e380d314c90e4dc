// SPDX-License-Identifier: MIT
// Desktop queries: which window of the desktop is active and whose it is, activating and unmapping windows of
// other programs. Needs neither GTK nor Xlib's header, and may stand before or after <X11/Xlib.h>. Not part
// of the umbrella header.
//
// Windows are X11 window ids; 0 is no window. What fails gives 0 or false: a window that is gone, an id that
// never was one, a null Display, no X server at all. X errors of these functions' own requests never reach
// the process's error handler and never end the program; errors of other requests go where they went before.
//
// Threads: functions without a Display work on a connection of their own, which is closed before they return,
// and may be called from any thread. Those with a Display follow Xlib's rules for it. No lock is held while a
// reply is awaited. (Xlib before 1.8 needs XInitThreads for more than one thread.)
#pragma once

#include <zo_core/zo_export.hpp>

#include <string>

// The same types as in <X11/Xlib.h>.
typedef struct _XDisplay Display;
typedef unsigned long Window;

// Connects to the display that DISPLAY names; null when there is none. The caller closes it (XCloseDisplay).
ZO_EXPORT Display* open_display();

// The window with the input focus as the server tells it: also 0 (none), 1 (follows the pointer) or a root.
ZO_EXPORT Window get_focus_window(Display*);

// The ancestor of the window whose parent is the root, which may be the window itself. 0 for a root window.
ZO_EXPORT Window get_top_window(Display*, Window);

// The window below the given one that carries the window manager's state. 0 when there is none, and also when
// the given window carries it itself, as a window does whose manager gives it no frame.
ZO_EXPORT Window get_named_window(Display*, Window);

// The window's WM_CLASS. When false, both strings stay as they are.
ZO_EXPORT bool get_window_class(Display*, Window, std::string& res_name, std::string& res_class);

// The window's WM_NAME in the encoding of the process's locale, which setlocale chooses. An empty name is
// one. When false, for want of a name or of its characters in the locale, the string stays as it is.
ZO_EXPORT bool get_window_name(Display*, Window, std::string& name);

// The client window of the frame in which the input focus is; 0 when nothing has the focus and for a window
// whose manager gives it no frame.
ZO_EXPORT Window getActiveWindow(Display*);
ZO_EXPORT Window getActiveWindow();

// The _NET_WM_PID that the window's program has set; 0 when it has set none. It is the program's word: it may
// be negative, and may be a process of another machine.
ZO_EXPORT int getWindowPid(Display*, Window);

// Everything above about the active window. True when it has a name, a class and a process id above 0. When
// false, `window` is 0, `pid` is 0 or below, and the strings hold what was read before the first failure.
ZO_EXPORT bool getActiveWindowInfo(unsigned long& window, std::string& title, std::string& res_name,
                                   std::string& res_class, int& pid);

// Asks the window manager to activate a window. With a Display the result is XSendEvent's status, and the
// request waits in that connection's buffer for the caller's next flush. Without one it is sent at once, and
// the result is false only when no display can be opened.
ZO_EXPORT int setActiveWindow(Display*, Window);
ZO_EXPORT bool setActiveWindow(unsigned long);

// Unmaps a window. False only when no display can be opened: true also for a window that is gone.
ZO_EXPORT bool HideWindow(unsigned long);

// Prints what getActiveWindowInfo says to standard output. When a window of the class "Firefox" is active, it
// is activated once more after a pause of three seconds.
ZO_EXPORT void testX11ActiveWindow();
