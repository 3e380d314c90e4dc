// SPDX-License-Identifier: MIT
#include "platform/private_server.hpp"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <memory>

test::private_server::private_server(const std::vector<std::string>& arguments) {
    int number[2];
    if (pipe2(number, O_CLOEXEC) != 0) return;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, number[1], 9);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    std::vector<const char*> all{"Xvfb", "-noreset", "-displayfd", "9", "-nolisten", "tcp"};
    for (const std::string& argument : arguments) all.push_back(argument.c_str());
    all.push_back(nullptr);
    if (posix_spawnp(&process_, "Xvfb", &actions, nullptr, const_cast<char**>(all.data()), environ) != 0)
        process_ = 0;
    posix_spawn_file_actions_destroy(&actions);
    close(number[1]);
    const std::unique_ptr<FILE, int (*)(FILE*)> reply(fdopen(number[0], "r"), fclose);
    int display = 0;
    if (std::fscanf(reply.get(), "%d", &display) == 1) name_ = ":" + std::to_string(display);
}

test::private_server::~private_server() {
    if (process_ == 0) return;
    kill(process_, SIGTERM);
    waitpid(process_, nullptr, 0);
}
