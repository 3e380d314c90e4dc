// SPDX-License-Identifier: MIT
// Runs this very program again for one scene, in a process of its own: for what happens only once in a
// process.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace test {

// Static objects of this type name what a child process can do. When `play` returns, the process exits with
// 0.
struct scene {
    scene(const char* name, void (*play)());
};

struct child_end {
    int status;  // as waitpid tells it: 0 when the child left with 0
    std::string output;
};

// Plays the scene in a child process and waits for its end. A child that hangs is ended, and its status is
// not 0.
child_end play(const std::string& scene,
               const std::vector<std::pair<std::string, std::string>>& environment = {});

// One line on the child's standard output, in the order of the calls.
void say(const std::string& line);

}  // namespace test
