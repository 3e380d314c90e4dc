// SPDX-License-Identifier: MIT
/// @file
/// Desktop queries: which window of the desktop is active and whose it is, activating and unmapping windows
/// of other programs. Needs neither GTK nor Xlib's header, and may stand before or after `X11/Xlib.h`. Not
/// part of the umbrella header.
///
/// Windows are X11 window ids; 0 is no window. X errors of these functions' own requests never reach the
/// process's error handler and never end the program; errors of other requests go where they went before.
///
/// Functions without a `Display` work on a connection of their own, which is closed before they return. No
/// lock is held while a reply is awaited. (Xlib before 1.8 needs `XInitThreads` for more than one thread.)
///
/// @thread any; those with a `Display` follow Xlib's rules for it
/// @state 0 or false for what fails: a window that is gone, an id that never was one, a null `Display`, no X
/// server
#pragma once

#include <zo_core/zo_export.hpp>

#include <string>

/// The same type as in `X11/Xlib.h`: a connection to the X server.
typedef struct _XDisplay Display;
/// The same type as in `X11/Xlib.h`: the id of a window.
typedef unsigned long Window;

/// Connects to the display that the variable DISPLAY names; null when there is none.
/// @owner the caller closes it, with `XCloseDisplay`
ZO_EXPORT Display* open_display();

/// The window with the input focus as the server tells it: also 0 (none), 1 (follows the pointer) or a root.
ZO_EXPORT Window get_focus_window(Display*);

/// The ancestor of the window whose parent is the root, which may be the window itself. 0 for a root window.
ZO_EXPORT Window get_top_window(Display*, Window);

/// The window below the given one that carries the window manager's state. 0 when there is none, and also
/// when the given window carries it itself, as a window does whose manager gives it no frame.
ZO_EXPORT Window get_named_window(Display*, Window);

/// The window's WM_CLASS, as `res_name` and `res_class`. When false, both strings stay as they are.
ZO_EXPORT bool get_window_class(Display*, Window, std::string& res_name, std::string& res_class);

/// The window's WM_NAME as `name`, in the encoding of the process's locale, which setlocale chooses. An empty
/// name is one. When false, for want of a name or of its characters in the locale, the string stays as it is.
ZO_EXPORT bool get_window_name(Display*, Window, std::string& name);

/// The active window: the client window of the frame in which the input focus is; 0 when nothing has the
/// focus and for a window whose manager gives it no frame.
ZO_EXPORT Window getActiveWindow(Display*);

/// The same on a connection of its own.
ZO_EXPORT Window getActiveWindow();

/// The _NET_WM_PID that the window's program has set; 0 when it has set none. It is the program's word: it
/// may be negative, and may be a process of another machine.
ZO_EXPORT int getWindowPid(Display*, Window);

/// Everything above about the active window: its id in `window`, its name in `title`, its class in `res_name`
/// and `res_class`, its process in `pid`. True when it has a name, a class and a process id above 0. When
/// false, `window` is 0, `pid` is 0 or below, and the strings hold what was read before the first failure.
ZO_EXPORT bool getActiveWindowInfo(unsigned long& window, std::string& title, std::string& res_name,
                                   std::string& res_class, int& pid);

/// Asks the window manager to activate a window. The result is the status of `XSendEvent`; the request waits
/// in the connection's buffer for the caller's next flush.
ZO_EXPORT int setActiveWindow(Display*, Window);

/// The same on a connection of its own: sent at once. False only when no display can be opened.
ZO_EXPORT bool setActiveWindow(unsigned long);

/// Unmaps a window. False only when no display can be opened: true also for a window that is gone.
ZO_EXPORT bool HideWindow(unsigned long);

/// Prints what getActiveWindowInfo() says to standard output. When a window of the class "Firefox" is active,
/// it is activated once more after a pause of three seconds.
ZO_EXPORT void testX11ActiveWindow();
