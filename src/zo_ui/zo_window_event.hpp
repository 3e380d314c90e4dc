// SPDX-License-Identifier: MIT
/// @file
/// An application-defined event for a window. The library carries it to the window's event callback and never
/// looks at its code.
///
/// @thread any
/// @empty 0 or the empty handle, with the null-handle warning
/// @state an event has no states: it works as long as it lives
#pragma once

#include <zo_ui/zo_handles.hpp>

/// The event itself, for classes of events of the application's own.
/// @thread any, for every operation
class ZO_EXPORT _zo_window_event : public _zo_object {
  public:
    /// Keeps the code, `type`.
    explicit _zo_window_event(int type);

    // The virtual operations continue those of the base. Their order is fixed: programs were built against
    // it.

    /// Runs where the last handle goes.
    ~_zo_window_event() override;

    /// The tag `[zo_window_event]`.
    std::string get_type() override;

    /// The event's own handle.
    virtual zo_window_event_ptr to_event();

    /// The code given at construction.
    int get_code() const { return code_; }

  private:
    const int code_;
};

/// A new event with the application's own code, `type`.
ZO_EXPORT zo_window_event_ptr zo_window_event_new(int type);

/// The code of `event`.
ZO_EXPORT int zo_window_event_get_code(zo_window_event_ptr event);

/// True when `object` is an event or of a subclass.
/// @empty false, without a warning
/// @state answers for a destroyed object, too
ZO_EXPORT bool zo_is_window_event(zo_object_ptr object);

/// The handle of `event` as that of the base.
/// @empty the empty handle, with the null-handle warning
/// @state works on a destroyed object, too
ZO_EXPORT zo_object_ptr zo_window_event_to_object(zo_window_event_ptr event);

/// The handle of `object` as that of its class. An object of another class gives an empty handle, without a
/// warning.
/// @empty the empty handle, with the null-handle warning
/// @state works on a destroyed object, too
ZO_EXPORT zo_window_event_ptr zo_window_event_from_object(zo_object_ptr object);
