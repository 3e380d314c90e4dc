// SPDX-License-Identifier: MIT
#pragma once

#include "support/ui.hpp"

#include <future>
#include <memory>
#include <thread>

namespace test {

// Can somebody else take the object's property lock? The thread that holds it may take it again, so another
// one has to try.
inline bool lock_is_free(const zo_object_ptr& object) {
    const auto taken = std::make_shared<std::promise<void>>();
    std::future<void> done = taken->get_future();
    std::thread other([object, taken] {
        object->property_lock("another thread", 1);
        object->property_unlock();
        taken->set_value();
    });
    const bool free = done.wait_for(std::chrono::seconds(10)) == std::future_status::ready;
    if (free)
        other.join();
    else
        other.detach();
    return free;
}

inline bool lock_is_free(const zo_window_ptr& window) { return lock_is_free(zo_window_to_object(window)); }

}  // namespace test
