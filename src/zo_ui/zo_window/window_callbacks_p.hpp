// SPDX-License-Identifier: MIT
#pragma once

#include <zo_ui/zo_window/window_p.hpp>

#include <boost/any.hpp>
#include <vector>

namespace zo {

// One callback property: how it comes into being and how it is emptied.
struct window_callback_row {
    const char* name;
    void (*init)(property_guard& guard, const char* name);
    boost::any (*clear)(property_guard& guard, const char* name);  // the callable that stood there
};

// Empties the callbacks in the table's order. The caller lets the result outlive the lock: destroying a
// callable may run code of the application.
std::vector<boost::any> clear_window_callbacks(property_guard& guard);

}  // namespace zo
