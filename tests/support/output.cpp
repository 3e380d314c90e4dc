// SPDX-License-Identifier: MIT
#include "support/output.hpp"

#include <iostream>

test::captured_output::captured_output() : before_(std::cout.rdbuf(&stream_)) {}

test::captured_output::~captured_output() { std::cout.rdbuf(before_); }

std::vector<std::string> test::captured_output::lines() const {
    std::vector<std::string> result;
    std::istringstream input(stream_.str());
    for (std::string line; std::getline(input, line);) result.push_back(line);
    return result;
}

std::string test::null_handle_line(const std::string& function) {
    return "\x1b[1;35mZO-SYSTEM**WARNING**\x1b[0;0m: null object supplied: \x1b[0;35m" + function +
           "\x1b[0;0m\n";
}
