// SPDX-License-Identifier: MIT
#include <posts/posts.hpp>

#include <glib.h>

namespace {

gboolean on_idle(gpointer object) {
    bench::run(*static_cast<bench::handle*>(object));
    return G_SOURCE_REMOVE;
}

void let_go(gpointer object) { delete static_cast<bench::handle*>(object); }

}  // namespace

int main(int count, char** arguments) {
    return bench::posts_main(count, arguments, [](const bench::handle& object) {
        g_idle_add_full(G_PRIORITY_DEFAULT, on_idle, new bench::handle(object), let_go);
    });
}
