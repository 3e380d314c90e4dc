// SPDX-License-Identifier: MIT
// Counts what a program sends to X servers and how often it waits for them, whether it asks by Xlib or by
// XCB. What libxcb calls to write, to wait and to read is found here first, so a program only has to link
// this in.
#pragma once

#include <functional>

namespace test {

class x_wire {
  public:
    // Watches one connection by its file descriptor, or from now on all connections to X servers. One at a
    // time.
    explicit x_wire(int descriptor);
    x_wire();
    ~x_wire();
    x_wire(const x_wire&) = delete;
    x_wire& operator=(const x_wire&) = delete;

    int requests() const;
    // How often the program had to wait for the server after having written: requests that are sent together
    // make one round trip. Nothing arrives before the program waits for it, as from a server far away, so the
    // number does not depend on who is quicker.
    int round_trips() const;

    // From now on requests are handed to the server one by one, and `action` runs after each, with the number
    // of requests since then, before the next is sent or the reply is read. It uses other connections only.
    void after_each_request(std::function<void(int)> action);
};

}  // namespace test
