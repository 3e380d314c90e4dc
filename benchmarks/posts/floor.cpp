// SPDX-License-Identifier: MIT
#include <posts/posts.hpp>
#include <support/task_source.hpp>

int main(int count, char** arguments) {
    bench::task_source tasks;
    return bench::posts_main(count, arguments, [&tasks](const bench::handle& object) {
        tasks.post([held = object] { bench::run(held); });
    });
}
