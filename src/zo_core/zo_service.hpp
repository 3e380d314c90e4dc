// SPDX-License-Identifier: MIT
/// @file
/// Tasks and timeouts of the user-interface loop: the way from any thread to the toolkit.
///
/// The loop is GLib's default main context, whoever iterates it: gtk_main, GtkApplication, or the application
/// itself. Nothing has to be started; what is posted before the loop runs is kept.
///
/// In a process that was started with `G_MESSAGES_DEBUG=zo_core`, GLib's log has a debug message for each
/// task and timeout that has run: who posted it, how long it waited and how long it ran. Otherwise that costs
/// nothing.
#pragma once

#include <zo_core/zo_export.hpp>
#include <zo_core/zo_service_task.hpp>

#include <functional>
#include <string>
#include <type_traits>
#include <utility>

namespace zo {
ZO_EXPORT void post_task(service_task&& task, const char* file, int line);
}

/// @{
/// Queues `task` to run once on the loop. Tasks run in the order of posting, those of all threads together; a
/// task may post tasks, and a nested main loop inside one goes on running the others. The callable is
/// destroyed on the loop. `file` and `line` name the poster; the overloads for literals build no string, and
/// the one for any callable keeps a small one without asking for memory. An empty task is reported as a
/// failed assertion and not queued.
/// @thread any
/// @state after the end of the service the task is dropped unseen
ZO_EXPORT void zo_system_service_exec(std::function<void()> task, std::string file, int line);
ZO_EXPORT void zo_system_service_exec(std::function<void()> task, const char* file, int line);
template <typename Callable, typename = std::enable_if_t<std::is_invocable_v<std::decay_t<Callable>&>>>
void zo_system_service_exec(Callable&& task, const char* file, int line) {
    zo::post_task(std::forward<Callable>(task), file, line);
}
/// @}

/// Runs `task` once on the loop, at least `milliseconds` from now by the monotonic clock. Returns an id for
/// zo_system_service_timeout_clear(), never 0. `file` and `line` name the poster. An empty task is reported
/// as a failed assertion; nothing is armed for it, and the result is 0.
/// @thread any
/// @state after the end of the service nothing is armed, and the result is 0
ZO_EXPORT unsigned long zo_system_service_timeout(std::function<void()> task, unsigned long milliseconds,
                                                  std::string file, int line);

/// Cancels the timeout with this `id`, if it has not run. An id that is unknown, has run or is running is
/// ignored.
/// @thread any
ZO_EXPORT void zo_system_service_timeout_clear(unsigned long id);

/// True once the service has ended or is ending: the toolkit is going away, and widgets are forgotten instead
/// of destroyed.
/// @thread any
ZO_EXPORT bool zo_system_service_done();

/// Ends the service, for good: zo_system_service_done() answers true, timeouts are dropped, the queued tasks
/// and those they post run before the call returns, and later posts are dropped. It happens by itself when
/// the process exits; leaving `gtk_main` does not end the service.
/// @thread the loop's; when another thread runs the loop meanwhile, that thread runs the remaining tasks
/// @state a second call does nothing
ZO_EXPORT void zo_system_service_end();
