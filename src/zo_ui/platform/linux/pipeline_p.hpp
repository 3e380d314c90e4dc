// SPDX-License-Identifier: MIT
// Requests whose answers are awaited later, so that many are on their way at once: a wait for the server
// costs as much as several answers. XCB hands the error of such a request to who awaits the answer and to
// nobody else, in whatever thread.
#pragma once

#include <X11/Xlib.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace zo::platform {

struct c_free {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename Reply>
using x_reply = std::unique_ptr<Reply, c_free>;

// An answer that is still to come, or is no longer wanted when this ends.
class awaited {
  public:
    awaited(xcb_connection_t* connection, unsigned int sequence)
        : connection_(connection), sequence_(sequence) {}
    awaited(awaited&& other) noexcept
        : connection_(std::exchange(other.connection_, nullptr)), sequence_(other.sequence_) {}
    ~awaited();
    awaited& operator=(awaited&&) = delete;

    // Once. Null when the request failed or the connection is lost.
    template <typename Reply>
    x_reply<Reply> answer() {
        return x_reply<Reply>(static_cast<Reply*>(wait()));
    }

  private:
    void* wait();

    xcb_connection_t* connection_;
    unsigned int sequence_;
};

class focus_request {
  public:
    explicit focus_request(Display* display);
    Window answer();  // 0 also when the connection is lost

  private:
    awaited reply_;
};

// Where a window stands; a window that is gone has no root.
struct x_place {
    Window root = 0;
    Window parent = 0;
    std::vector<Window> children;
};

class place_request {
  public:
    place_request(Display* display, Window window);
    x_place answer();

  private:
    awaited reply_;
};

// A window without the property gives no type, as one that is gone.
struct x_property {
    Atom type = None;
    int format = 0;
    std::string bytes;
};

class property_request {
  public:
    // The atom None is an error like any other. The length is in units of four bytes.
    property_request(Display* display, Window window, Atom property, Atom type, unsigned int length);
    x_property answer();

  private:
    awaited reply_;
};

// The atoms of this module as far as the server knows them; others are None. Xlib remembers those that it has
// seen, so all are learnt in one round trip at most, which also carries what was asked before.
struct known_atoms {
    explicit known_atoms(Display* display);

    Atom wm_state = None;
    Atom net_wm_pid = None;
};

}  // namespace zo::platform
