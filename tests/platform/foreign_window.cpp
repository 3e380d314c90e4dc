// SPDX-License-Identifier: MIT
#include "platform/foreign_window.hpp"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <memory>

test::foreign_window::foreign_window(const std::vector<std::string>& options) {
    int input[2], output[2];
    if (pipe2(input, O_CLOEXEC) != 0 || pipe2(output, O_CLOEXEC) != 0) return;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output[1], STDOUT_FILENO);
    std::vector<char*> arguments{const_cast<char*>(WINDOW_MAKER)};
    for (const std::string& option : options) arguments.push_back(const_cast<char*>(option.c_str()));
    arguments.push_back(nullptr);
    if (posix_spawn(&process_, WINDOW_MAKER, &actions, nullptr, arguments.data(), environ) != 0) process_ = 0;
    posix_spawn_file_actions_destroy(&actions);
    close(input[0]);
    close(output[1]);
    input_ = input[1];
    std::unique_ptr<FILE, int (*)(FILE*)> reply(fdopen(output[0], "r"), fclose);
    if (std::fscanf(reply.get(), "%lu", &id_) != 1) id_ = 0;
}

void test::foreign_window::end() {
    if (input_ >= 0) close(input_);
    input_ = -1;
    if (process_ != 0) waitpid(process_, nullptr, 0);
    process_ = 0;
}

std::string test::output_of(const std::string& command) {
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(("timeout 20 " + command).c_str(), "re"), pclose);
    std::string text;
    for (int c = std::fgetc(pipe.get()); c != EOF; c = std::fgetc(pipe.get()))
        text.push_back(static_cast<char>(c));
    if (!text.empty() && text.back() == '\n') text.pop_back();
    return text;
}
