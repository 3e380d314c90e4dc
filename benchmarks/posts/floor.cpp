// SPDX-License-Identifier: MIT
// What an expert would write: one source, a vector under a mutex, one wake-up when it was empty.
#include <posts/posts.hpp>

#include <glib.h>
#include <mutex>
#include <utility>
#include <vector>

namespace {

std::mutex mutex;
std::vector<std::function<void()>> tasks;  // guarded by mutex

void post(std::function<void()> task) {
    bool was_empty = false;
    {
        const std::lock_guard lock(mutex);
        was_empty = tasks.empty();
        tasks.push_back(std::move(task));
    }
    if (was_empty) g_main_context_wakeup(nullptr);
}

gboolean is_ready(GSource*) {
    const std::lock_guard lock(mutex);
    return !tasks.empty();
}

gboolean prepare(GSource* source, gint* timeout) {
    *timeout = -1;
    return is_ready(source);
}

gboolean dispatch(GSource*, GSourceFunc, gpointer) {
    std::vector<std::function<void()>> taken;
    {
        const std::lock_guard lock(mutex);
        taken.swap(tasks);
    }
    for (const std::function<void()>& task : taken) task();
    return G_SOURCE_CONTINUE;
}

}  // namespace

int main(int count, char** arguments) {
    static GSourceFuncs functions{prepare, is_ready, dispatch, nullptr, nullptr, nullptr};
    GSource* source = g_source_new(&functions, sizeof(GSource));
    g_source_attach(source, nullptr);
    const int status = bench::posts_main(
        count, arguments, [](const bench::handle& object) { post([held = object] { bench::run(held); }); });
    g_source_destroy(source);
    g_source_unref(source);
    return status;
}
