// SPDX-License-Identifier: MIT
// A server always has its pointer on one of its screens; here it is made to say otherwise.
#include <gtest/gtest.h>
#include <zo_ui/platform/linux/pointer_p.hpp>

#include <X11/Xlib.h>
#include <dlfcn.h>

namespace {

int screens_asked = 0;
Display* opened = nullptr;
int closed = 0;

template <typename Function>
Function* real(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

// These stand before Xlib's own of the same names.
extern "C" Display* XOpenDisplay(const char* name) {
    return opened = real<Display*(const char*)>("XOpenDisplay")(name);
}

extern "C" int XCloseDisplay(Display* display) {
    ++closed;
    return real<int(Display*)>("XCloseDisplay")(display);
}

extern "C" int XQueryPointer(Display*, Window, Window*, Window*, int* x, int* y, int*, int*, unsigned int*) {
    ++screens_asked;
    *x = *y = 99;
    return False;
}

namespace {

TEST(Pointer, PointerOnNoScreen) {
    int x = 1, y = 2;
    testing::internal::CaptureStderr();
    EXPECT_FALSE(GetCursorPos(&x, &y));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "No mouse found.\n");
    EXPECT_EQ(x, 1);
    EXPECT_EQ(y, 2);
    EXPECT_EQ(screens_asked, XScreenCount(opened));
    EXPECT_EQ(closed, 0);
    EXPECT_GT(XNextRequest(opened), 0U);
    XCloseDisplay(opened);
}

}  // namespace
