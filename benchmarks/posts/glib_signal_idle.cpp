// SPDX-License-Identifier: MIT
#include <posts/posts.hpp>

#include <glibmm/init.h>
#include <glibmm/main.h>

int main(int count, char** arguments) {
    Glib::init();
    return bench::posts_main(count, arguments, [](const bench::handle& object) {
        Glib::signal_idle().connect_once([held = object] { bench::run(held); }, Glib::PRIORITY_DEFAULT);
    });
}
