// SPDX-License-Identifier: MIT
// Every exported function with the signature that programs compile against: a changed one does not compile
// here, a missing one does not link.
#include <zo_ui/platform/linux.hpp>

#include "signatures.hpp"

namespace {

void check_1() {
    check<Display*()>(open_display);
    check<Window(Display*)>(get_focus_window);
    check<Window(Display*, Window)>(get_top_window);
    check<Window(Display*, Window)>(get_named_window);
    check<bool(Display*, Window, std::string&, std::string&)>(get_window_class);
    check<bool(Display*, Window, std::string&)>(get_window_name);
    check<Window(Display*)>(getActiveWindow);
    check<Window()>(getActiveWindow);
    check<int(Display*, Window)>(getWindowPid);
    check<bool(unsigned long&, std::string&, std::string&, std::string&, int&)>(getActiveWindowInfo);
    check<int(Display*, Window)>(setActiveWindow);
    check<bool(unsigned long)>(setActiveWindow);
    check<bool(unsigned long)>(HideWindow);
    check<void()>(testX11ActiveWindow);
}

}  // namespace

void check_linux_signatures() { check_1(); }
