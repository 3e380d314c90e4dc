// SPDX-License-Identifier: MIT
#include <zo_ui/zo_appindicator/appindicator_hearing_p.hpp>

#include <glib-unix.h>
#include <algorithm>
#include <limits>
#include <list>

// Stays for the next icon: what was asked for one that has gone may be answered still, and what nobody hears
// keeps the connection.
struct zo::ear {
    GMainContext* context = nullptr;  // owned
    GSource* source = nullptr;        // of the loop's, turns the context
    guint last_answer = 0;            // the context's number of it; 0 when nothing is waited for
    gint64 patient_until = 0;         // monotonic, in microseconds, like the next
    gint64 free_since = in_use;

    static constexpr gint64 in_use = std::numeric_limits<gint64>::max();
};

namespace {

constexpr guint questions = 3;
constexpr gint64 patience = 5 * gint64{G_USEC_PER_SEC};  // never needed unless a library asks less
constexpr int most_turns = 16;                           // of the context in a turn of the loop
constexpr gint64 rest = G_USEC_PER_SEC;                  // late answers are mostly in by then
constexpr std::size_t most_ears = 500;                   // each has a descriptor, and a process mostly 1024

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

// When the context has something to do by the clock, such as a call that nobody answers; negative for never.
gint64 next_time(GMainContext* context) {
    gint priority = 0;
    gint timeout = -1;
    g_main_context_acquire(context);
    g_main_context_prepare(context, &priority);
    g_main_context_query(context, G_MAXINT, &timeout, nullptr, 0);
    g_main_context_release(context);
    return timeout < 0 ? -1 : g_get_monotonic_time() + timeout * gint64{G_TIME_SPAN_MILLISECOND};
}

bool may_hear(zo::ear& ear) {
    if (ear.last_answer && (g_main_context_find_source_by_id(ear.context, ear.last_answer) ||
                            g_get_monotonic_time() >= ear.patient_until))
        ear.last_answer = 0;
    return !ear.last_answer;
}

gboolean on_heard(gint, GIOCondition, gpointer data) {
    auto& ear = *static_cast<zo::ear*>(data);
    look_into(ear.context);
    int turns = 0;
    while (turns < most_turns && may_hear(ear) && g_main_context_iteration(ear.context, FALSE)) ++turns;
    g_source_set_ready_time(ear.source, ear.last_answer ? ear.patient_until : next_time(ear.context));
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

std::list<zo::ear>& ears() {
    static auto& instance = *new std::list<zo::ear>;  // never destroyed: the contexts may be turned still
    return instance;
}

zo::ear* new_ear() {
    zo::ear& ear = ears().emplace_back();
    ear.context = g_main_context_new_with_flags(G_MAIN_CONTEXT_FLAGS_OWNERLESS_POLLING);
    ear.source = g_unix_fd_source_new(look_into(ear.context), G_IO_IN);
    g_source_set_callback(ear.source, G_SOURCE_FUNC(on_heard), &ear, nullptr);
    g_source_attach(ear.source, nullptr);
    return &ear;
}

// The one that has been free for longest, once it has rested; without any of these a new one.
zo::ear* find_ear() {
    const auto longest = std::min_element(
        ears().begin(), ears().end(),
        [](const auto& left, const auto& right) { return left.free_since < right.free_since; });
    const bool any = longest != ears().end() && longest->free_since != zo::ear::in_use;
    const bool full = ears().size() == most_ears;
    if (any && (full || g_get_monotonic_time() - longest->free_since > rest)) return &*longest;
    return full ? nullptr : new_ear();
}

zo::ear* take_ear() {
    zo::ear* const ear = find_ear();
    if (!ear) return nullptr;
    ear->free_since = zo::ear::in_use;
    ear->last_answer = newest_number(ear->context) + questions;
    ear->patient_until = g_get_monotonic_time() + patience;
    g_source_set_ready_time(ear->source, ear->patient_until);
    return ear;
}

void on_icon_gone(gpointer ear, GObject*) { static_cast<zo::ear*>(ear)->free_since = g_get_monotonic_time(); }

}  // namespace

zo::hearing::hearing() : ear_(take_ear()) {
    if (ear_) g_main_context_push_thread_default(ear_->context);
}

zo::hearing::~hearing() {
    if (ear_) g_main_context_pop_thread_default(ear_->context);
}

void zo::hearing::belongs_to(GObject* icon) {
    if (ear_) g_object_weak_ref(icon, on_icon_gone, ear_);
}
