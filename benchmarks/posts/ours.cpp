// SPDX-License-Identifier: MIT
#include <posts/posts.hpp>

#include <zo_core/zo_service.hpp>

int main(int count, char** arguments) {
    return bench::posts_main(count, arguments, [](const bench::handle& object) {
        zo_system_service_exec([held = object] { bench::run(held); }, "benchmarks/posts", 1);
    });
}
