// SPDX-License-Identifier: MIT
// A window of another process.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace test {

class foreign_window {
  public:
    // The options are those of window_maker.cpp. Returns when the window is mapped; id() is 0 when that
    // failed.
    explicit foreign_window(const std::vector<std::string>& options);
    ~foreign_window() { end(); }
    foreign_window(const foreign_window&) = delete;
    foreign_window& operator=(const foreign_window&) = delete;

    unsigned long id() const { return id_; }

    // Ends the process, and with it the window.
    void end();

  private:
    pid_t process_ = 0;
    int input_ = -1;
    unsigned long id_ = 0;
};

// What a command of another program prints, without the last newline. Ended after 20 seconds.
std::string output_of(const std::string& command);

}  // namespace test
