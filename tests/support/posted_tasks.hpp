// SPDX-License-Identifier: MIT
// A service in place of the core's that only notes what is posted. It is the program's own: include it in one
// file of a program that is linked with the library's objects.
#pragma once

#include <zo_core/zo_service.hpp>
#include <zo_core/zo_service_p.hpp>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace test {

struct posted {
    std::function<void()> task;
    std::string file;
    int line = 0;
    unsigned long milliseconds = 0;  // of a timeout
};

inline std::vector<posted> posts;
inline constexpr unsigned long timeout_id = 77;

}  // namespace test

void zo_system_service_exec(std::function<void()> task, std::string file, int line) {
    test::posts.push_back({std::move(task), std::move(file), line});
}

void zo_system_service_exec(std::function<void()> task, const char* file, int line) {
    test::posts.push_back({std::move(task), file, line});
}

void zo::post_task(service_task&& task, const char* file, int line) {
    const auto kept = std::make_shared<service_task>(std::move(task));
    test::posts.push_back({[kept] { (*kept)(); }, file, line});
}

void zo::post_gathering(service_task&& task, const char* file, int line) {
    post_task(std::move(task), file, line);
}

unsigned long zo_system_service_timeout(std::function<void()> task, unsigned long milliseconds,
                                        std::string file, int line) {
    test::posts.push_back({std::move(task), std::move(file), line, milliseconds});
    return test::timeout_id;
}
