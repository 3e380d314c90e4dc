// SPDX-License-Identifier: MIT
#include <zo_ui/zo_appindicator/appindicator_hearing_p.hpp>

#include <glib-unix.h>

namespace {

constexpr guint questions = 2;

struct ear {
    GMainContext* context = nullptr;
    guint last_answer = 0;  // the context's number of it; 0 when there is nothing to wait for
};

// Its context lives as long as the process: what icons asked may be answered when they are gone.
ear& the_ear() {
    static ear instance;
    return instance;
}

// Looks what lies in the context, and leaves it there. Returns the descriptor that tells when more comes.
int look_into(GMainContext* context) {
    gint priority = 0;
    gint timeout = 0;
    GPollFD descriptor{};
    g_main_context_acquire(context);
    g_main_context_prepare(context, &priority);
    g_main_context_query(context, G_MAXINT, &timeout, &descriptor, 1);
    g_poll(&descriptor, 1, 0);
    g_main_context_check(context, G_MAXINT, &descriptor, 1);
    g_main_context_release(context);
    return descriptor.fd;
}

gboolean on_heard(gint, GIOCondition, gpointer) {
    auto& [context, last_answer] = the_ear();
    look_into(context);
    if (last_answer && g_main_context_find_source_by_id(context, last_answer)) last_answer = 0;
    while (!last_answer && g_main_context_iteration(context, FALSE)) {
    }
    return G_SOURCE_CONTINUE;
}

// A context counts what is attached to it.
guint newest_number(GMainContext* context) {
    GSource* const source = g_idle_source_new();
    const guint number = g_source_attach(source, context);
    g_source_destroy(source);
    g_source_unref(source);
    return number;
}

GMainContext* expect_answers() {
    auto& [context, last_answer] = the_ear();
    if (!context) {
        context = g_main_context_new_with_flags(G_MAIN_CONTEXT_FLAGS_OWNERLESS_POLLING);
        g_unix_fd_add(look_into(context), G_IO_IN, on_heard, nullptr);
    }
    if (!last_answer) last_answer = newest_number(context);
    last_answer += questions;
    return context;
}

}  // namespace

zo::hearing::hearing() : context_(expect_answers()) { g_main_context_push_thread_default(context_); }

zo::hearing::~hearing() { g_main_context_pop_thread_default(context_); }
