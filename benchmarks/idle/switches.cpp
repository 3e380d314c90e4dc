// SPDX-License-Identifier: MIT
#include <idle/switches.hpp>

#include <filesystem>
#include <fstream>

bench::switches::switches(pid_t process) {
    for (const auto& thread :
         std::filesystem::directory_iterator("/proc/" + std::to_string(process) + "/task")) {
        const std::string name = thread.path().filename();
        std::ifstream status(thread.path() / "status");
        for (std::string word; status >> word;) {
            if (word == "voluntary_ctxt_switches:") status >> voluntary_[name];
            if (word == "nonvoluntary_ctxt_switches:") status >> involuntary_[name];
        }
    }
}

double bench::switches::more(const by_thread& now, const by_thread& before) {
    double count = 0;
    for (const auto& [thread, number] : now) {
        const auto old = before.find(thread);
        count += number - (old == before.end() ? 0 : old->second);
    }
    return count;
}
