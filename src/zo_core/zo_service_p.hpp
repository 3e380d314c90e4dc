// SPDX-License-Identifier: MIT
// The two halves of the service.
#pragma once

#include <zo_core/zo_export.hpp>
#include <zo_core/zo_service_task.hpp>

#include <glib.h>
#include <atomic>
#include <cstdint>
#include <map>
#include <mutex>
#include <set>
#include <utility>
#include <vector>

namespace zo {

// Posts a task of which there may be many in a row, each with the same to do at its end.
ZO_EXPORT void post_gathering(service_task&& task, const char* file, int line);

// Runs `last` after the last of such tasks in a row when one of them runs, else at once. On the loop.
ZO_EXPORT void after_gathering(service_task last);

// First in, first out, from any thread to the default main context.
//
// Two sources carry it. The eager one runs at default priority, before drawing. After a batch that left new
// tasks behind, and for timeouts, it steps aside for a moment, in which the patient one, at the
// priority of drawing, carries on: so tasks that keep posting cannot stop the drawing, and drawing cannot
// stop the tasks.
class task_queue {
  public:
    static task_queue& instance();

    // False when the service has ended; `next` is then untouched.
    bool post(service_task& next, bool gathers = false);

    // Runs what is queued now, and what it posts, until nothing is left, then refuses every post.
    void end();

    void after_gathering(service_task& last);

    // Lets everything else on the loop go before the next task, for a little. On the loop.
    void let_others_first();

    bool done() const { return done_; }

  private:
    enum class phase { open, ending, closed };

    struct entry {
        service_task run;
        bool gathers;
    };

    task_queue();
    void take_posted();
    void run_one();
    void run_batch();
    void run_last();
    void drain();
    void note_waiting();
    bool is(phase wanted);
    bool try_close();
    void discard();
    static gboolean eager_prepare(GSource* source, gint* timeout);
    static gboolean eager_check(GSource* source);
    static gboolean patient_prepare(GSource* source, gint* timeout);
    static gboolean patient_check(GSource* source);
    static gboolean dispatch(GSource* source, GSourceFunc, gpointer);
    void attach(GSourceFuncs& functions, int priority, const char* name);

    std::mutex mutex_;
    std::vector<entry> posted_;  // guarded by mutex_
    phase phase_ = phase::open;  // guarded by mutex_
    std::atomic<bool> waiting_{false};
    std::atomic<bool> done_{false};

    // Touched only by the thread that iterates the main context, and apart from what the posting ones touch:
    // a cache line that is shared goes to and fro with each task.
    alignas(128) std::vector<entry> ready_;
    std::size_t next_ready_ = 0;
    std::vector<service_task> last_;  // of the gathering tasks that ran
    bool gathering_ = false;          // is the task that runs one of them?
    std::uint64_t taken_ = 0;
    std::uint64_t begun_ = 0;
    gint64 aside_until_ = 0;  // monotonic time; until then the eager source stays aside
    bool draining_ = false;
};

// Timeouts: one source that wakes for the earliest and hands what is due to the task queue.
class timer_list {
  public:
    static timer_list& instance();

    unsigned long add(service_task& next, unsigned long milliseconds);
    void clear(unsigned long id);
    void drop_all();

  private:
    struct timer {
        gint64 deadline;
        service_task run;
    };

    timer_list();
    void run(unsigned long id);
    void post_due();
    void arm();
    static gboolean dispatch(GSource* source, GSourceFunc, gpointer);

    std::mutex mutex_;                                     // guards all of the following
    std::map<unsigned long, timer> timers_;                // due ones too, until they run
    std::set<std::pair<gint64, unsigned long>> schedule_;  // those not yet due
    unsigned long last_id_ = 0;
    bool ended_ = false;
    GSource* source_ = nullptr;
};

}  // namespace zo
