// SPDX-License-Identifier: MIT
// Windows of another program, one of them active, for contenders that ask about it.
#pragma once

#include <string>

namespace bench {

// What every contender finds out.
struct facts {
    std::string name, res_name, res_class;
    int pid = 0;
};

// So many windows under a window manager, with a name, a class and a process id. Made by a process of their
// own before this returns; they end with this.
class clients {
  public:
    explicit clients(int count);
    ~clients();
    clients(const clients&) = delete;
    clients& operator=(const clients&) = delete;

    // Ends the program with status 1 unless these are the facts of the active one.
    void check(const facts& found) const;

  private:
    int pipe_ = -1;
    int process_ = -1;
};

}  // namespace bench
