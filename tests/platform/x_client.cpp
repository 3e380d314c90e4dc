// SPDX-License-Identifier: MIT
#include "platform/x_client.hpp"

#include "support/x_wire.hpp"

#include <atomic>
#include <cstdlib>
#include <optional>

namespace {

std::atomic<int> errors{0};

int on_error(Display*, XErrorEvent*) {
    ++errors;
    return 0;
}

std::optional<test::x_wire> wire;

}  // namespace

test::x_client::~x_client() {
    if (!display_) return;
    for (const Window window : tops_) XDestroyWindow(display_, window);
    XSelectInput(display_, root(), NoEventMask);
    XSync(display_, False);
    XCloseDisplay(display_);
}

Window test::x_client::make(Window parent) {
    const bool is_top = parent == 0 || parent == root();
    const Window window = XCreateSimpleWindow(display_, is_top ? root() : parent, 10, 10, 80, 60, 0, 0, 0);
    if (is_top) tops_.push_back(window);
    XSync(display_, False);
    return window;
}

Window test::x_client::make_viewable(Window parent) {
    const Window window = make(parent);
    XMapWindow(display_, window);
    XSync(display_, False);
    return window;
}

Window test::x_client::make_client(Window parent) {
    const Window window = make_viewable(parent);
    set_longs(window, "WM_STATE", "WM_STATE", {1, 0});
    return window;
}

Window test::x_client::make_dead() {
    const Window window = make();
    destroy(window);
    return window;
}

void test::x_client::destroy(Window window) {
    destroy_soon(window);
    XSync(display_, False);
}

void test::x_client::destroy_soon(Window window) {
    std::erase(tops_, window);
    XDestroyWindow(display_, window);
    XFlush(display_);
}

void test::x_client::focus(Window window) {
    XSetInputFocus(display_, window, RevertToNone, CurrentTime);
    XSync(display_, False);
}

void test::x_client::set_text(Window window, const char* property, const char* type,
                              const std::string& bytes) {
    XChangeProperty(display_, window, XInternAtom(display_, property, False),
                    XInternAtom(display_, type, False), 8, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<int>(bytes.size()));
    XSync(display_, False);
}

void test::x_client::set_longs(Window window, const char* property, const char* type,
                               const std::vector<long>& values) {
    XChangeProperty(display_, window, XInternAtom(display_, property, False),
                    XInternAtom(display_, type, False), 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(values.data()), static_cast<int>(values.size()));
    XSync(display_, False);
}

bool test::x_client::is_viewable(Window window) {
    XWindowAttributes attributes{};
    return XGetWindowAttributes(display_, window, &attributes) && attributes.map_state == IsViewable;
}

test::counted_errors::counted_errors() : before_(XSetErrorHandler(on_error)) { errors = 0; }

test::counted_errors::~counted_errors() { XSetErrorHandler(before_); }

int test::counted_errors::count() const { return errors; }

void test::watch_requests(Display* display, std::function<void(int)> action) {
    wire.emplace(ConnectionNumber(display));
    if (action) wire->after_each_request(std::move(action));
}

void test::stop_watching_requests() { wire.reset(); }

int test::watched_requests() { return wire->requests(); }

int test::watched_round_trips() { return wire->round_trips(); }

std::string test::window_manager() {
    const char* name = std::getenv("ZO_SESSION_WM");
    return name ? name : "none";
}
