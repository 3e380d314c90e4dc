// SPDX-License-Identifier: MIT
#include "platform/opened_connection.hpp"

#include <dlfcn.h>

namespace {

std::function<void(Display*)> on_open;

}  // namespace

// Stands before Xlib's own of the same name.
extern "C" Display* XOpenDisplay(const char* name) {
    static const auto real = reinterpret_cast<Display* (*)(const char*)>(dlsym(RTLD_NEXT, "XOpenDisplay"));
    Display* display = real(name);
    if (display && on_open) on_open(display);
    return display;
}

test::opened_connection::opened_connection(std::function<void(Display*)> action) {
    on_open = std::move(action);
}

test::opened_connection::~opened_connection() { on_open = nullptr; }
