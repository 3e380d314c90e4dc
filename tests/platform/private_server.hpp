// SPDX-License-Identifier: MIT
// An X server of one test's own.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace test {

class private_server {
  public:
    // Xvfb with these arguments. Returns when it listens; name() is empty when it does not.
    explicit private_server(const std::vector<std::string>& arguments);
    ~private_server();
    private_server(const private_server&) = delete;
    private_server& operator=(const private_server&) = delete;

    const std::string& name() const { return name_; }

  private:
    pid_t process_ = 0;
    std::string name_;
};

}  // namespace test
