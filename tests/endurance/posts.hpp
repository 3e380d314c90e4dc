// SPDX-License-Identifier: MIT
// Threads that post tasks while something else goes on, as many as are due.
#pragma once

#include <zo_core/zo_core.hpp>

#include <glib.h>
#include <atomic>
#include <thread>
#include <vector>

namespace endurance {

class posting_threads {
  public:
    static constexpr int count = 8;

    posting_threads() {
        for (int i = 0; i < count; ++i) threads_.emplace_back([this] { post(); });
    }
    ~posting_threads() {
        ended_ = true;
        ++due_;  // a waiting thread looks again
        due_.notify_all();
        for (std::thread& thread : threads_) thread.join();
    }
    posting_threads(const posting_threads&) = delete;
    posting_threads& operator=(const posting_threads&) = delete;

    // From now on so many posts in all are due, in equal parts; they are made while the caller goes on.
    void until(long posts) {
        due_ = posts / count;
        due_.notify_all();
    }

    // Runs the loop until everything that is due was posted, and has run.
    void wait() const {
        while (run_ < due_ * count) g_main_context_iteration(nullptr, TRUE);
    }

    long run() const { return run_; }

  private:
    void post() {
        for (long posted = 0;;) {
            const long due = due_;
            if (ended_) return;
            for (; posted < due; ++posted) zo_system_service_exec([this] { ++run_; }, "endurance", 1);
            due_.wait(due);
        }
    }

    std::atomic<long> due_{0};  // of each thread
    std::atomic<long> run_{0};
    std::atomic<bool> ended_{false};
    std::vector<std::thread> threads_;
};

}  // namespace endurance
