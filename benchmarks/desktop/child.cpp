// SPDX-License-Identifier: MIT
#include <desktop/child.hpp>

#include <support/measure.hpp>

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <system_error>

namespace {

constexpr int asked_each_ms = 20;

[[noreturn]] void become(char** program, bool quiet) {
    if (quiet && (!std::freopen("/dev/null", "w", stdout) || !std::freopen("/dev/null", "w", stderr)))
        _exit(126);
    execvp(program[0], program);
    _exit(127);
}

std::string told(int status) {
    if (WIFSIGNALED(status)) return "by signal " + std::to_string(WTERMSIG(status));
    return "with " + std::to_string(WEXITSTATUS(status));
}

std::string after(int seconds) {
    return seconds > 0 ? " within " + std::to_string(seconds) + " s" : std::string();
}

}  // namespace

int bench::measured(const std::function<void()>& work) try {
    work();
    return 0;
} catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
}

bench::child::child(char** program, bool quiet) : name_(program[0]), id_(fork()) {
    if (id_ < 0) throw std::system_error(errno, std::generic_category(), "fork");
    if (id_ == 0) become(program, quiet);
}

bench::child::~child() {
    if (ended_) return;
    kill(id_, SIGKILL);
    waitpid(id_, nullptr, 0);
}

void bench::child::must_live() {
    int status = 0;
    if (!ended_ && waitpid(id_, &status, WNOHANG) == 0) return;
    ended_ = true;
    throw std::runtime_error(name_ + " has ended " + told(status));
}

void bench::child::must_reach(const std::string& what, int seconds, const std::function<bool()>& done,
                              int descriptor) {
    const double end = wall_us() + seconds * 1e6;
    for (;;) {
        must_live();
        if (done()) return;
        if (wall_us() >= end) throw std::runtime_error(name_ + ": no " + what + after(seconds));
        pollfd news{descriptor, POLLIN, 0};
        poll(&news, 1, asked_each_ms);
    }
}

double bench::child::cpu_us() const {
    clockid_t clock{};
    timespec now{};
    if (clock_getcpuclockid(id_, &clock) != 0 || clock_gettime(clock, &now) != 0)
        throw std::runtime_error(name_ + " has no processor time any more");
    return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

bool bench::child::is_asleep() const {
    for (const auto& thread : std::filesystem::directory_iterator("/proc/" + std::to_string(id_) + "/task")) {
        std::ifstream status(thread.path() / "status");
        for (std::string word; status >> word;)
            if (word == "State:" && status >> word && word != "S") return false;
    }
    return true;
}

rusage bench::child::end(int signal) {
    if (signal) {
        must_live();
        kill(id_, signal);
    }
    int status = 0;
    rusage used{};
    if (wait4(id_, &status, 0, &used) != id_)
        throw std::system_error(errno, std::generic_category(), "wait4");
    ended_ = true;
    if (!signal && status != 0) throw std::runtime_error(name_ + " has ended " + told(status));
    return used;
}
