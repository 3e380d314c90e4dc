// SPDX-License-Identifier: MIT
#include "core/child_process.hpp"

#include "support/main.hpp"

#include <glib.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <map>

namespace {

constexpr unsigned longest_seconds = 60;

std::map<std::string, void (*)()>& scenes() {
    static std::map<std::string, void (*)()> all;
    return all;
}

bool play_if_child(int* argc, char*** argv) {
    if (*argc != 3 || std::string((*argv)[1]) != "--scene") return true;
    alarm(longest_seconds);
    scenes().at((*argv)[2])();
    std::exit(0);
}

const test::preparation child_first(play_if_child);

}  // namespace

test::scene::scene(const char* name, void (*play)()) { scenes()[name] = play; }

test::child_end test::play(const std::string& scene,
                           const std::vector<std::pair<std::string, std::string>>& environment) {
    gchar** variables = g_get_environ();
    for (const auto& [name, value] : environment)
        variables = g_environ_setenv(variables, name.c_str(), value.c_str(), TRUE);
    std::string self = "/proc/self/exe", option = "--scene", name = scene;
    gchar* arguments[] = {self.data(), option.data(), name.data(), nullptr};
    gchar* output = nullptr;
    child_end end{-1, {}};
    g_spawn_sync(nullptr, arguments, variables, G_SPAWN_DEFAULT, nullptr, nullptr, &output, nullptr,
                 &end.status, nullptr);
    if (output) end.output = output;
    g_free(output);
    g_strfreev(variables);
    return end;
}

void test::say(const std::string& line) { std::puts(line.c_str()); }
