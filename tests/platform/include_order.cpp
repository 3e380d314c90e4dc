// SPDX-License-Identifier: MIT
// Compiled once for each order of the headers that a program may include, FIRST to THIRD, as C++17 with GNU
// extensions (where "linux" is a macro) and as C++20.
#include FIRST
#ifdef SECOND
#include SECOND
#else
#if defined(_X11_XLIB_H_) || defined(None) || defined(G_BEGIN_DECLS)
#error "the header of the desktop queries brings Xlib or GTK with it"
#endif
#endif
#ifdef THIRD
#include THIRD
#endif

Window (*const of_display)(Display*) = getActiveWindow;
Window (*const of_desktop)() = getActiveWindow;
int (*const on_display)(Display*, Window) = setActiveWindow;
bool (*const on_desktop)(unsigned long) = setActiveWindow;
Display* (*const opening)() = open_display;
