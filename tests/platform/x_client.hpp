// SPDX-License-Identifier: MIT
// An X connection of the test's own, and what tests do with it. Include it after GoogleTest: Xlib defines
// macros.
#pragma once

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <functional>
#include <string>
#include <vector>

namespace test {

class x_client {
  public:
    explicit x_client(const char* name = nullptr) : display_(XOpenDisplay(name)) {}
    // The server has forgotten everything of the test when this is done, which closing alone would not wait
    // for.
    ~x_client();
    x_client(const x_client&) = delete;
    x_client& operator=(const x_client&) = delete;

    operator Display*() const { return display_; }
    Window root() const { return DefaultRootWindow(display_); }

    // Each returns when the server has done it.
    Window make(Window parent = 0);
    Window make_viewable(Window parent = 0);
    Window make_client(Window parent);  // viewable, with the window manager's state
    Window make_dead();
    void destroy(Window window);
    void destroy_soon(Window window);  // except this one, which only sends it
    void focus(Window window);
    void set_text(Window window, const char* property, const char* type, const std::string& bytes);
    void set_longs(Window window, const char* property, const char* type, const std::vector<long>& values);

    bool is_viewable(Window window);

  private:
    Display* display_;
    std::vector<Window> tops_;
};

// While this lives, errors that reach the process's error handler are counted.
class counted_errors {
  public:
    counted_errors();
    ~counted_errors();
    counted_errors(const counted_errors&) = delete;
    counted_errors& operator=(const counted_errors&) = delete;

    int count() const;

  private:
    XErrorHandler before_;
};

// From now on the connection's requests and round trips are counted, and `action` runs after each request is
// sent, before the next one is and before any reply is read, with the number of requests since then. One
// connection at a time; until stop_watching_requests.
void watch_requests(Display* display, std::function<void(int)> action);
void stop_watching_requests();

int watched_requests();
int watched_round_trips();

// What a test's session says its window manager is; "none" without one.
std::string window_manager();

}  // namespace test
