// SPDX-License-Identifier: MIT
#include <zo_core/zo_service.hpp>

#include <zo_core/zo_diagnostics.hpp>
#include <zo_core/zo_service_p.hpp>
#include <zo_core/zo_trace_p.hpp>

namespace {

// `file` is a literal or a string: neither makes another on the way of a task that is accepted.
template <typename File>
bool accept(const zo::service_task& task, const char* function, const File& file, int line) {
    if (task) return true;
    zo_assertion_faild(false, "task != nullptr", function, file, line);
    return false;
}

// With the trace off, a task is posted as it came.
template <typename File>
void trace(zo::service_task& task, const char* what, const File& file, int line) {
    if (zo::tracing()) task = zo::traced(std::move(task), what, file, line);
}

template <typename File>
void exec(zo::service_task&& task, const File& file, int line, bool gathers = false) {
    if (!accept(task, "zo_system_service_exec", file, line)) return;
    trace(task, "task", file, line);
    zo::task_queue::instance().post(task, gathers);
}

}  // namespace

void zo_system_service_exec(std::function<void()> task, std::string file, int line) {
    exec(std::move(task), file, line);
}

void zo_system_service_exec(std::function<void()> task, const char* file, int line) {
    exec(std::move(task), file, line);
}

void zo::post_task(service_task&& task, const char* file, int line) { exec(std::move(task), file, line); }

void zo::post_gathering(service_task&& task, const char* file, int line) {
    exec(std::move(task), file, line, true);
}

unsigned long zo_system_service_timeout(std::function<void()> function, unsigned long milliseconds,
                                        std::string file, int line) {
    zo::service_task task(std::move(function));
    if (!accept(task, __func__, file, line)) return 0;
    trace(task, "timeout", file, line);
    return zo::timer_list::instance().add(task, milliseconds);
}

void zo_system_service_timeout_clear(unsigned long id) { zo::timer_list::instance().clear(id); }

bool zo_system_service_done() { return zo::task_queue::instance().done(); }

void zo_system_service_end() { zo::task_queue::instance().end(); }
