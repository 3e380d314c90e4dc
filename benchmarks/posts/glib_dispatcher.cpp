// SPDX-License-Identifier: MIT
// The queue beside a Glib::Dispatcher, as gtkmm's manual has it: one signal for each task.
#include <posts/posts.hpp>

#include <glibmm/dispatcher.h>
#include <glibmm/init.h>
#include <deque>
#include <mutex>

namespace {

class task_queue {
  public:
    task_queue() {
        dispatcher_.connect([this] { run_one(); });
    }

    void post(std::function<void()> task) {
        {
            const std::lock_guard lock(mutex_);
            tasks_.push_back(std::move(task));
        }
        dispatcher_.emit();
    }

  private:
    void run_one() {
        std::function<void()> task;
        {
            const std::lock_guard lock(mutex_);
            task = std::move(tasks_.front());
            tasks_.pop_front();
        }
        task();
    }

    Glib::Dispatcher dispatcher_;
    std::mutex mutex_;
    std::deque<std::function<void()>> tasks_;
};

}  // namespace

int main(int count, char** arguments) {
    Glib::init();
    task_queue queue;
    return bench::posts_main(count, arguments, [&queue](const bench::handle& object) {
        queue.post([held = object] { bench::run(held); });
    });
}
