// SPDX-License-Identifier: MIT
// Any warning or critical of GLib, GTK or GDK fails the test that provokes it.
#pragma once

#include <string>

namespace test {

// Called once, before the tests: takes GLib's log over.
void watch_glib_log();

// While this lives, messages that contain `text` are expected; its end fails the test if none came.
class expected_glib_message {
  public:
    explicit expected_glib_message(std::string text);
    ~expected_glib_message();
    expected_glib_message(const expected_glib_message&) = delete;
    expected_glib_message& operator=(const expected_glib_message&) = delete;

    // How many have come.
    int count() const;
};

}  // namespace test
