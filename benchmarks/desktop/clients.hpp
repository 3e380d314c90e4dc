// SPDX-License-Identifier: MIT
// Another program's windows, for those that list all windows of the desktop. With their own connection and
// process, so that what they cost is not counted.
#pragma once

#include <functional>
#include <string>

namespace bench {

class clients {
  public:
    // Before GTK is started: the process is forked.
    explicit clients(const std::function<std::string(int)>& title);
    ~clients();
    clients(const clients&) = delete;
    clients& operator=(const clients&) = delete;

    // Shows the next ones; returns when they are managed.
    void map(int count) const;

  private:
    int commands_ = -1;
    int answers_ = -1;
    int process_ = -1;
};

}  // namespace bench
