// SPDX-License-Identifier: MIT
#include <zo_core/zo_trace_p.hpp>

#include <glib.h>

namespace {

double milliseconds(gint64 microseconds) { return static_cast<double>(microseconds) / 1000; }

// Tells at the end of a run, also of one that is left by an exception.
class run_trace {
  public:
    run_trace(const char* what, const std::string& file, int line, gint64 posted)
        : what_(what), file_(file), line_(line), posted_(posted), begun_(g_get_monotonic_time()) {}
    ~run_trace() {
        g_debug("%s of %s:%d waited %.3f ms, ran %.3f ms", what_, file_.c_str(), line_,
                milliseconds(begun_ - posted_), milliseconds(g_get_monotonic_time() - begun_));
    }
    run_trace(const run_trace&) = delete;
    run_trace& operator=(const run_trace&) = delete;

  private:
    const char* what_;
    const std::string file_;
    int line_;
    gint64 posted_;
    gint64 begun_;
};

}  // namespace

bool zo::tracing() {
    static const bool on = !g_log_writer_default_would_drop(G_LOG_LEVEL_DEBUG, G_LOG_DOMAIN);
    return on;
}

zo::service_task zo::traced(service_task task, const char* what, const std::string& file, int line) {
    return [task = std::move(task), what, file, line, posted = g_get_monotonic_time()]() mutable {
        const run_trace trace(what, file, line, posted);
        task();
    };
}
