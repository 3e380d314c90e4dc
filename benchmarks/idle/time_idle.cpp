// SPDX-License-Identifier: MIT
// time_idle PROGRAM [ARGUMENT...]: starts a program and tells how often its threads were woken in 20 s, once
// it has come to rest.
#include <support/measure.hpp>

#include <sys/wait.h>
#include <unistd.h>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

namespace {

constexpr int settling = 25;  // seconds: the toolkit has timers that run once, 15 s after it was started
constexpr int watched = 20;

using waits = std::map<std::string, double>;  // by thread

// Each time a thread waits it gives the processor away once.
waits waits_of(pid_t process) {
    waits all;
    for (const auto& thread :
         std::filesystem::directory_iterator("/proc/" + std::to_string(process) + "/task")) {
        std::ifstream status(thread.path() / "status");
        for (std::string word; status >> word;)
            if (word == "voluntary_ctxt_switches:") status >> all[thread.path().filename()];
    }
    return all;
}

// A thread that ended meanwhile, such as an idle one of a pool, tells nothing any more.
double more(const waits& now, const waits& before) {
    double count = 0;
    for (const auto& [thread, number] : now) {
        const auto old = before.find(thread);
        count += number - (old == before.end() ? 0 : old->second);
    }
    return count;
}

}  // namespace

int main(int, char** arguments) {
    const pid_t process = fork();
    if (process == 0) {
        if (!std::freopen("/dev/null", "w", stdout) || !std::freopen("/dev/null", "w", stderr)) _exit(1);
        execvp(arguments[1], arguments + 1);
        _exit(127);
    }
    sleep(settling);
    const waits before = waits_of(process);
    sleep(watched);
    bench::print("wakeups", more(waits_of(process), before));
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
}
