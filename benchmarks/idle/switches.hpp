// SPDX-License-Identifier: MIT
// The kernel's count of context switches.
#pragma once

#include <sys/types.h>
#include <map>
#include <string>

namespace bench {

// How often each thread of a process gave the processor away, as it does each time it waits, and how often it
// was taken from it.
class switches {
  public:
    explicit switches(pid_t process);

    // A thread that ended meanwhile, such as an idle one of a pool, tells nothing any more.
    double voluntary_since(const switches& before) const { return more(voluntary_, before.voluntary_); }
    double involuntary_since(const switches& before) const { return more(involuntary_, before.involuntary_); }

  private:
    using by_thread = std::map<std::string, double>;
    static double more(const by_thread& now, const by_thread& before);

    by_thread voluntary_;
    by_thread involuntary_;
};

}  // namespace bench
