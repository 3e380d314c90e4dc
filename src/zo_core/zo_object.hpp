// SPDX-License-Identifier: MIT
/// @file
/// The base of every object of the library: its handle, its property list and lock, its destroy guard, and
/// the counted references that keep it alive beside the handles.
#pragma once

#include <zo_core/zo_export.hpp>
#include <zo_core/zo_property.hpp>
#include <zo_core/zo_property_mutex.hpp>

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>
#include <mutex>
#include <string>

class _zo_object;

namespace zo {
class property_guard;
}

/// A shared handle of any object. The application, the tasks in flight and the containers that hold an object
/// share it; the object dies with its last handle.
using zo_object_ptr = boost::shared_ptr<_zo_object>;

/// Gives an object its own handle. `shared_from_this()` of an object that no handle owns is a programming
/// error: `boost::bad_weak_ptr` leaves the call.
class ZO_EXPORT zo_object_base : public boost::enable_shared_from_this<_zo_object> {};

/// The base of all objects. Applications hold handles and call functions; only classes of their own need
/// this.
/// @thread any, for every operation
class ZO_EXPORT _zo_object : public zo_object_base {
  public:
    /// Starts with one property, "object-destroyed" (bool, false).
    _zo_object();
    _zo_object(const _zo_object&) = delete;
    _zo_object& operator=(const _zo_object&) = delete;

    // The virtual operations. Their order is fixed: programs were built against it.

    /// Runs where the last handle goes.
    virtual ~_zo_object();

    /// The object's own handle.
    virtual zo_object_ptr to_object();

    /// The class's tag, such as `[zo_window]`.
    virtual std::string get_type();

    /// Ends the object, once. `reason` and `line` name the caller and appear in the warning that a second
    /// call writes.
    virtual void destroy(std::string reason, int line);

    /// One readable line for logs and debuggers, such as
    /// `[zo_window] id "notes", title "My notes", visible, referenced`. What it consists of may change.
    virtual std::string describe();

    /// @{
    /// Takes the property lock. The thread that holds it may take it again, since copying or destroying a
    /// stored callable may run code of the application. `file` and `line` name the caller, for whoever looks
    /// with a debugger; the overload for literals builds no string.
    void property_lock(std::string file, int line);
    void property_lock(const char* file, int line);
    /// @}

    /// Gives the lock back, as often as it was taken.
    void property_unlock();

    /// True while zo_object_ref() holds the object.
    bool is_reffed();

    /// What the object knows. Touched only by a thread that holds the property lock.
    ::property_list property_list;

  private:
    friend void zo_object_ref(zo_object_ptr);
    friend void zo_object_unref_real(zo_object_ptr);
    friend class zo::property_guard;

    zo::property_mutex property_mutex_;
    std::mutex refs_mutex_;
    int refs_ = 0;        // guarded by refs_mutex_
    zo_object_ptr held_;  // guarded by refs_mutex_; the object's own handle while refs_ is above 0
};

/// Takes one counted reference of `object`: while there is one, the object lives without any handle.
/// @thread any
/// @empty writes the null-handle warning, nothing else
/// @state works on a destroyed object, too
ZO_EXPORT void zo_object_ref(zo_object_ptr object);

/// @{
/// Gives one counted reference back, at once. The object may die in this call if `object` is its last handle.
/// Both names do the same.
/// @thread any
/// @empty writes the null-handle warning, nothing else
/// @state one more than were taken is reported as a failed assertion and changes nothing
ZO_EXPORT void zo_object_unref(zo_object_ptr object);
ZO_EXPORT void zo_object_unref_real(zo_object_ptr object);
/// @}

/// @{
/// Count living objects by `tag`: every class adds one in its constructor and takes one away in its
/// destructor.
/// @thread any
ZO_EXPORT void zo_object_ref_increment(std::string tag);
ZO_EXPORT void zo_object_ref_decrement(std::string tag);
/// @}

/// How many objects with this `tag` live now, such as `[zo_window]`; 0 for an unknown tag.
/// @thread any
ZO_EXPORT long zo_object_ref_count(std::string tag);
