// SPDX-License-Identifier: MIT
#include <zo_core/zo_service_p.hpp>

#include <zo_core/zo_service.hpp>

#include <cstdlib>

namespace {

// GTK draws at this priority. The core does not know GTK, so the number is spelled here.
constexpr int drawing_priority = G_PRIORITY_HIGH_IDLE + 20;

// How long tasks step aside: long enough for the next turn of the loop, however often it is asked whether
// anything is pending, and short beside a frame, so that steady work of others hardly delays them.
constexpr gint64 patience = G_TIME_SPAN_MILLISECOND;

// A task that posts itself for ever must not keep the process from leaving.
constexpr int last_generations = 1000;

// Above this capacity an empty vector gives its memory back: a burst of posts must not stay for the process's
// life.
constexpr std::size_t kept_capacity = 1024;

}  // namespace

namespace zo {

void after_gathering(service_task last) { task_queue::instance().after_gathering(last); }

task_queue& task_queue::instance() {
    static auto& queue = *new task_queue;  // never destroyed: objects in static storage may still post
    return queue;
}

task_queue::task_queue() {
    static GSourceFuncs eager{eager_prepare, eager_check, dispatch, nullptr, nullptr, nullptr};
    static GSourceFuncs patient{patient_prepare, patient_check, dispatch, nullptr, nullptr, nullptr};
    attach(eager, G_PRIORITY_DEFAULT, "zo tasks");
    attach(patient, drawing_priority, "zo tasks beside drawing");
    std::atexit(zo_system_service_end);
}

void task_queue::attach(GSourceFuncs& functions, int priority, const char* name) {
    GSource* source = g_source_new(&functions, sizeof(GSource));
    g_source_set_static_name(source, name);
    g_source_set_priority(source, priority);
    g_source_set_can_recurse(source, TRUE);
    g_source_attach(source, nullptr);
    g_source_unref(source);
}

bool task_queue::post(service_task& next, bool gathers) {
    bool asleep = false;
    {
        std::lock_guard lock(mutex_);
        if (phase_ == phase::closed) return false;
        posted_.push_back({std::move(next), gathers});
        asleep = !waiting_;
        if (asleep) waiting_ = true;
    }
    // While tasks wait the loop does not sleep, and its own thread looks again before it does.
    if (asleep && !g_main_context_is_owner(nullptr)) g_main_context_wakeup(nullptr);
    return true;
}

void task_queue::take_posted() {
    std::lock_guard lock(mutex_);
    taken_ += posted_.size();
    if (ready_.empty()) {
        ready_.swap(posted_);
        return;
    }
    for (entry& next : posted_) ready_.push_back(std::move(next));
    posted_.clear();
}

// Everything here is in order again before the task runs: it may run a nested loop, or throw.
void task_queue::run_one() {
    if (!last_.empty() && !ready_[next_ready_].gathers) return run_last();
    entry next = std::move(ready_[next_ready_]);
    ++next_ready_;
    ++begun_;
    if (next_ready_ == ready_.size()) {
        next_ready_ = 0;
        ready_.clear();
        if (ready_.capacity() > kept_capacity) std::vector<entry>().swap(ready_);
    }
    struct restore {
        bool& value;
        const bool before;
        ~restore() { value = before; }
    } const at_the_end{gathering_, std::exchange(gathering_, next.gathers)};
    next.run();
}

void task_queue::note_waiting() {
    std::lock_guard lock(mutex_);
    waiting_ = !posted_.empty() || !ready_.empty() || !last_.empty();
}

void task_queue::run_batch() {
    struct leave {
        task_queue& queue;
        ~leave() {
            queue.note_waiting();
            queue.aside_until_ = queue.waiting_ ? g_get_monotonic_time() + patience : 0;
        }
    } const at_the_end{*this};
    if (!draining_ && is(phase::ending)) {
        drain();
    } else {
        take_posted();
        const std::uint64_t last = taken_;
        while (begun_ < last && !ready_.empty()) run_one();
    }
    run_last();
}

void task_queue::after_gathering(service_task& last) {
    if (!gathering_) return last();
    last_.push_back(std::move(last));
    waiting_ = true;  // a loop that is nested in the task does not wait for its end
}

void task_queue::run_last() {
    while (!last_.empty()) {
        service_task next = std::move(last_.front());
        last_.erase(last_.begin());
        next();
    }
}

void task_queue::let_others_first() {
    if (!waiting_) aside_until_ = g_get_monotonic_time() + patience;
}

bool task_queue::is(phase wanted) {
    std::lock_guard lock(mutex_);
    return phase_ == wanted;
}

bool task_queue::try_close() {
    std::lock_guard lock(mutex_);
    if (!posted_.empty()) return false;
    phase_ = phase::closed;
    return true;
}

void task_queue::discard() {
    std::vector<entry> rest;
    std::lock_guard lock(mutex_);
    phase_ = phase::closed;
    rest.swap(posted_);
}

// A loop nested in one of these tasks only runs a batch: the queue closes when the outermost task is through.
void task_queue::drain() {
    draining_ = true;
    bool closed = false;
    for (int generation = 0; generation < last_generations && !closed; ++generation) {
        take_posted();
        const std::uint64_t last = taken_;
        while (begun_ < last && !ready_.empty()) run_one();
        closed = try_close();
    }
    if (!closed) discard();
    draining_ = false;
}

void task_queue::end() {
    if (is(phase::closed)) return;
    done_ = true;
    timer_list::instance().drop_all();  // before the queue can close: what they hold goes on the loop
    {
        std::lock_guard lock(mutex_);
        if (phase_ == phase::open) phase_ = phase::ending;
        waiting_ = true;
    }
    if (g_main_context_acquire(nullptr)) {
        if (!draining_) drain();
        note_waiting();
        g_main_context_release(nullptr);
    } else {
        g_main_context_wakeup(nullptr);
    }
}

// These run on the loop's thread, perhaps while another thread is still making the queue: instance() waits
// for it.

gboolean task_queue::eager_prepare(GSource* source, gint* timeout) {
    *timeout = -1;
    return eager_check(source);
}

gboolean task_queue::eager_check(GSource* source) {
    const task_queue& queue = instance();
    return queue.waiting_ && g_source_get_time(source) >= queue.aside_until_;
}

gboolean task_queue::patient_prepare(GSource*, gint* timeout) {
    *timeout = -1;
    return instance().waiting_;
}

gboolean task_queue::patient_check(GSource*) { return instance().waiting_; }

gboolean task_queue::dispatch(GSource*, GSourceFunc, gpointer) {
    instance().run_batch();
    return G_SOURCE_CONTINUE;
}

}  // namespace zo
