// SPDX-License-Identifier: MIT
#include <zo_core/zo_service.hpp>

#include <zo_core/zo_diagnostics.hpp>
#include <zo_core/zo_service_p.hpp>

namespace {

bool accept(const zo::task& task, const char* function, const std::string& file, int line) {
    if (task) return true;
    zo_assertion_faild(false, "task != nullptr", function, file, line);
    return false;
}

}  // namespace

void zo_system_service_exec(std::function<void()> task, std::string file, int line) {
    if (accept(task, __func__, file, line)) zo::task_queue::instance().post(task);
}

unsigned long zo_system_service_timeout(std::function<void()> task, unsigned long milliseconds,
                                        std::string file, int line) {
    return accept(task, __func__, file, line) ? zo::timer_list::instance().add(task, milliseconds) : 0;
}

void zo_system_service_timeout_clear(unsigned long id) { zo::timer_list::instance().clear(id); }

bool zo_system_service_done() { return zo::task_queue::instance().done(); }

void zo_system_service_end() { zo::task_queue::instance().end(); }
