// SPDX-License-Identifier: MIT
#include <zo_core/zo_service_p.hpp>

#include <algorithm>

namespace {

// Even a delay of 0 lets the loop turn once without us: a task that arms itself again must not stop the
// drawing.
gint64 deadline_after(unsigned long milliseconds) {
    const gint64 now = g_get_monotonic_time();
    const auto longest = static_cast<unsigned long>((G_MAXINT64 - now) / 1000);
    return now + static_cast<gint64>(std::clamp(milliseconds, 1UL, longest)) * 1000;
}

// Lets a callable go on the loop, whose objects it may hold.
void dispose(zo::service_task& unwanted) {
    if (!unwanted || g_main_context_is_owner(nullptr)) return;
    zo::service_task carrier = [held = std::move(unwanted)] {};
    zo::task_queue::instance().post(carrier);
}

}  // namespace

namespace zo {

timer_list& timer_list::instance() {
    static auto& list = *new timer_list;  // never destroyed, like the task queue
    return list;
}

timer_list::timer_list() {
    task_queue::instance();  // whose end is the timeouts' end too
    static GSourceFuncs functions{nullptr, nullptr, dispatch, nullptr, nullptr, nullptr};
    source_ = g_source_new(&functions, sizeof(GSource));
    g_source_set_static_name(source_, "zo timeouts");
    g_source_set_can_recurse(source_, TRUE);
    g_source_attach(source_, nullptr);
}

// Wakes the loop for the earliest deadline. With mutex_ held.
void timer_list::arm() {
    g_source_set_ready_time(source_, schedule_.empty() ? -1 : schedule_.begin()->first);
}

unsigned long timer_list::add(service_task& next, unsigned long milliseconds) {
    std::lock_guard lock(mutex_);
    if (ended_) return 0;
    const unsigned long id = ++last_id_;
    const gint64 deadline = deadline_after(milliseconds);
    timers_.emplace(id, timer{deadline, std::move(next)});
    schedule_.emplace(deadline, id);
    arm();
    return id;
}

void timer_list::clear(unsigned long id) {
    service_task unwanted;
    {
        std::lock_guard lock(mutex_);
        const auto place = timers_.find(id);
        if (place == timers_.end()) return;
        unwanted = std::move(place->second.run);
        schedule_.erase({place->second.deadline, id});
        timers_.erase(place);
        arm();
    }
    dispose(unwanted);
}

void timer_list::drop_all() {
    std::map<unsigned long, timer> unwanted;
    {
        std::lock_guard lock(mutex_);
        ended_ = true;
        unwanted.swap(timers_);
        schedule_.clear();
        arm();
    }
    for (auto& [id, entry] : unwanted) dispose(entry.run);
}

void timer_list::run(unsigned long id) {
    service_task next;
    {
        std::lock_guard lock(mutex_);
        const auto place = timers_.find(id);
        if (place == timers_.end()) return;
        next = std::move(place->second.run);
        timers_.erase(place);
    }
    next();
}

void timer_list::post_due() {
    std::lock_guard lock(mutex_);
    const gint64 now = g_get_monotonic_time();
    task_queue::instance().let_others_first();
    while (!schedule_.empty() && schedule_.begin()->first <= now) {
        service_task next = [this, id = schedule_.begin()->second] { run(id); };
        task_queue::instance().post(next);
        schedule_.erase(schedule_.begin());
    }
    arm();
}

gboolean timer_list::dispatch(GSource*, GSourceFunc, gpointer) {
    instance().post_due();
    return G_SOURCE_CONTINUE;
}

}  // namespace zo
