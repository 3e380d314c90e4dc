// SPDX-License-Identifier: MIT
// Another program whose life is watched: a figure of one that has ended would be nobody's.
#pragma once

#include <sys/resource.h>
#include <sys/types.h>
#include <functional>
#include <string>

namespace bench {

// Runs what measures; what it throws is told, and is the program's failure. For main.
int measured(const std::function<void()>& work);

class child {
  public:
    // Starts the program; a quiet one's output goes nowhere.
    child(char** program, bool quiet);
    // Kills it, if it is there still.
    ~child();
    child(const child&) = delete;
    child& operator=(const child&) = delete;

    pid_t id() const { return id_; }

    // Throws when it has ended.
    void must_live();

    // Waits until `done` holds; asks again and again, and at once when there is something to read from the
    // descriptor. Throws when the program has ended first, or after so many seconds.
    void must_reach(const std::string& what, int seconds, const std::function<bool()>& done,
                    int descriptor = -1);

    // Processor time of all its threads so far, of those that ended too, in microseconds.
    double cpu_us() const;

    // True when every thread waits for something.
    bool is_asleep() const;

    // Sends the signal, if it is one, and waits for the end; returns what it has used. Throws when a program
    // that was sent nothing tells a failure.
    rusage end(int signal);

  private:
    std::string name_;
    pid_t id_ = -1;
    bool ended_ = false;
};

}  // namespace bench
