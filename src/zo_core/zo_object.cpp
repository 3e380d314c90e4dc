// SPDX-License-Identifier: MIT
#include <zo_core/zo_object_p.hpp>

#include <zo_core/zo_diagnostics_p.hpp>
#include <zo_core/zo_property_access_p.hpp>

namespace {

constexpr const char* source = "src/zo_core/zo_object";
constexpr int constructor_line = 21;
constexpr int destroy_line = 48;

enum class destroy_state { first, again, not_a_flag };

// Reads "object-destroyed" and sets it, in one go: of two threads only one is the first.
destroy_state mark_destroyed(_zo_object& object, const char* file, int line) {
    zo::property_guard guard(object, file, line);
    const auto place = object.property_list.find("object-destroyed");
    bool* destroyed = place == object.property_list.end() ? nullptr : zo::value_in<bool>(place->second);
    if (!destroyed) return destroy_state::not_a_flag;
    if (*destroyed) return destroy_state::again;
    *destroyed = true;
    return destroy_state::first;
}

}  // namespace

bool zo::begin_destroy(_zo_object& object, const char* file, int guard_line, const std::string& reason,
                       int line) {
    switch (mark_destroyed(object, file, guard_line)) {
        case destroy_state::first:
            return true;
        case destroy_state::again:
            zo::log_warning("CALLING DESTROY MULTIPLE TIMES IS NOT AN OPTION ",
                            zo::coloured(object.get_type()) + "-" + reason + ":" + std::to_string(line));
            return false;
        case destroy_state::not_a_flag:
            break;
    }
    zo::log_error("bad cast destroy any: ", std::string(file) + ":" + std::to_string(guard_line) + " - " +
                                                boost::bad_any_cast().what());
    return false;
}

_zo_object::_zo_object() {
    zo::property_guard guard(*this, source, constructor_line);
    guard.init<bool>("object-destroyed", false, "false");
}

_zo_object::~_zo_object() = default;

zo_object_ptr _zo_object::to_object() { return shared_from_this(); }

std::string _zo_object::get_type() { return "[zo_object]"; }

void _zo_object::destroy(std::string reason, int line) {
    zo::begin_destroy(*this, source, destroy_line, reason, line);
}

std::string _zo_object::describe() {
    const char* held = is_reffed() ? ", referenced" : "";
    const std::string type = get_type();  // a subclass may need locks of its own for it
    zo::property_guard guard(*this, source, destroy_line);
    return type + " with " + std::to_string(property_list.size()) + " properties" + held;
}

void _zo_object::property_lock(std::string, int) { property_mutex_.lock(); }

void _zo_object::property_lock(const char*, int) { property_mutex_.lock(); }

void _zo_object::property_unlock() { property_mutex_.unlock(); }
