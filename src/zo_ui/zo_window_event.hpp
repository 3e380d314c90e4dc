// SPDX-License-Identifier: MIT
// An application-defined event for a window. The library carries it to the window's event callback and never
// looks at its code.
#pragma once

#include <zo_ui/zo_handles.hpp>

class ZO_EXPORT _zo_window_event : public _zo_object {
  public:
    explicit _zo_window_event(int type);

    // The virtual operations continue those of the base. Their order is fixed: programs were built against
    // it.

    ~_zo_window_event() override;
    std::string get_type() override;

    // The event's own handle. Any thread.
    virtual zo_window_event_ptr to_event();

    // The code given at construction. Any thread.
    int get_code() const { return code_; }

  private:
    const int code_;
};

// A new event with the application's own code. Any thread.
ZO_EXPORT zo_window_event_ptr zo_window_event_new(int type);

// The event's code. Any thread. 0 and the null-handle warning for an empty handle.
ZO_EXPORT int zo_window_event_get_code(zo_window_event_ptr event);

// True when `object` is an event or of a subclass; false for an empty handle, without a warning. Any thread.
ZO_EXPORT bool zo_is_window_event(zo_object_ptr object);

// The handle as that of the base, and back. Any thread. Empty with the null-handle warning for an empty
// handle; an object of another class gives an empty handle without a warning.
ZO_EXPORT zo_object_ptr zo_window_event_to_object(zo_window_event_ptr event);
ZO_EXPORT zo_window_event_ptr zo_window_event_from_object(zo_object_ptr object);
