// SPDX-License-Identifier: MIT
// How an expert would post to the loop: one source, a vector under a mutex, one wake-up when it was empty.
#pragma once

#include <glib.h>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

namespace bench {

template <typename Task = std::function<void()>>
class task_source {
  public:
    task_source() : source_(g_source_new(functions(), sizeof(place))) {
        reinterpret_cast<place*>(source_)->self = this;
        g_source_attach(source_, nullptr);
    }
    ~task_source() {
        g_source_destroy(source_);
        g_source_unref(source_);
    }
    task_source(const task_source&) = delete;
    task_source& operator=(const task_source&) = delete;

    void post(Task task) {
        bool was_empty = false;
        {
            const std::lock_guard lock(mutex_);
            was_empty = tasks_.empty();
            tasks_.push_back(std::move(task));
        }
        if (was_empty) g_main_context_wakeup(nullptr);
    }

  private:
    struct place {
        GSource source;
        task_source* self;
    };

    static GSourceFuncs* functions() {
        static GSourceFuncs all{prepare, is_ready, dispatch, nullptr, nullptr, nullptr};
        return &all;
    }

    static task_source& of(GSource* source) { return *reinterpret_cast<place*>(source)->self; }

    static gboolean is_ready(GSource* source) {
        task_source& self = of(source);
        const std::lock_guard lock(self.mutex_);
        return !self.tasks_.empty();
    }

    static gboolean prepare(GSource* source, gint* timeout) {
        *timeout = -1;
        return is_ready(source);
    }

    static gboolean dispatch(GSource* source, GSourceFunc, gpointer) {
        task_source& self = of(source);
        std::vector<Task> taken;
        {
            const std::lock_guard lock(self.mutex_);
            taken.swap(self.tasks_);
        }
        for (Task& task : taken) task();
        return G_SOURCE_CONTINUE;
    }

    GSource* source_;
    std::mutex mutex_;
    std::vector<Task> tasks_;  // guarded by mutex_
};

}  // namespace bench
