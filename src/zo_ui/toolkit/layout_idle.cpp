// SPDX-License-Identifier: MIT
#include <zo_ui/toolkit/layout_idle_p.hpp>

#include <utility>

void zo::layout_idle::ask(std::function<void()> work) {
    if (source_) return;
    work_ = std::move(work);
    source_ = gdk_threads_add_idle_full(G_PRIORITY_HIGH_IDLE, run, this, nullptr);
}

void zo::layout_idle::cancel() {
    if (source_) g_source_remove(std::exchange(source_, 0));
    work_ = nullptr;
}

gboolean zo::layout_idle::run(gpointer self) {
    auto& idle = *static_cast<layout_idle*>(self);
    idle.source_ = 0;
    const auto work = std::exchange(idle.work_, nullptr);
    work();
    return G_SOURCE_REMOVE;
}
