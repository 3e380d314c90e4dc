// SPDX-License-Identifier: MIT
// A window manager that does nothing for a while.
#pragma once

#include "support/desktop.hpp"
#include "support/ui.hpp"

#include <signal.h>
#include <unistd.h>
#include <fstream>

namespace test {

// A child of the session's script, as this program is; 0 when there is none.
inline int manager_pid() {
    const std::string session = "/proc/" + std::to_string(getppid());
    std::ifstream children(session + "/task/" + std::to_string(getppid()) + "/children");
    for (int child = 0; children >> child;) {
        std::string name;
        std::getline(std::ifstream("/proc/" + std::to_string(child) + "/comm"), name);
        if (name == session_wm()) return child;
    }
    return 0;
}

// The window manager of the session does nothing for one scope, as a slow one would.
class halted_manager {
  public:
    halted_manager() : pid_(manager_pid()) {
        EXPECT_GT(pid_, 0);
        if (pid_ > 0) kill(pid_, SIGSTOP);
    }
    ~halted_manager() {
        if (pid_ > 0) kill(pid_, SIGCONT);
    }
    halted_manager(const halted_manager&) = delete;
    halted_manager& operator=(const halted_manager&) = delete;

  private:
    int pid_;
};

}  // namespace test
