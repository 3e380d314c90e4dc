// SPDX-License-Identifier: MIT
// Counted references, and the counters of living objects.
#include <zo_core/zo_object.hpp>

#include <zo_core/zo_diagnostics.hpp>
#include <zo_core/zo_diagnostics_p.hpp>

#include <atomic>

namespace {

constexpr const char* source = "src/zo_core/zo_object";
constexpr int unref_line = 84;

struct live_counters {
    std::mutex mutex;  // guards the map; the counts themselves are atomic
    std::map<std::string, std::atomic<long>> counts;
};

// Never destroyed: objects in static storage may outlive any other static.
live_counters& counters() {
    static auto& instance = *new live_counters;
    return instance;
}

std::atomic<long>& counter_of(const std::string& tag) {
    std::lock_guard lock(counters().mutex);
    return counters().counts[tag];
}

}  // namespace

void zo_object_ref(zo_object_ptr object) {
    if (zo::refuse_null(object, __func__)) return;
    std::lock_guard lock(object->refs_mutex_);
    if (object->refs_++ == 0) object->held_ = object;
}

void zo_object_unref_real(zo_object_ptr object) {
    if (zo::refuse_null(object, __func__)) return;
    bool counted = false;
    zo_object_ptr last;  // let go after the lock
    {
        std::lock_guard lock(object->refs_mutex_);
        counted = object->refs_ > 0;
        if (counted && --object->refs_ == 0) last.swap(object->held_);
    }
    if (!counted) zo_assertion_faild(false, "refs > 0", object->get_type(), source, unref_line);
}

void zo_object_unref(zo_object_ptr object) {
    if (zo::refuse_null(object, __func__)) return;
    zo_object_unref_real(std::move(object));
}

bool _zo_object::is_reffed() {
    std::lock_guard lock(refs_mutex_);
    return refs_ > 0;
}

void zo_object_ref_increment(std::string tag) { ++counter_of(tag); }

void zo_object_ref_decrement(std::string tag) { --counter_of(tag); }

long zo_object_ref_count(std::string tag) { return counter_of(tag); }
