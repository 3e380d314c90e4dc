// SPDX-License-Identifier: MIT
// What the tests of the task service share.
#pragma once

#include <zo_core/zo_service.hpp>

#include <functional>
#include <memory>
#include <utility>

namespace test {

inline void post(std::function<void()> task) { zo_system_service_exec(std::move(task), "test", 1); }

inline unsigned long after(unsigned long milliseconds, std::function<void()> task) {
    return zo_system_service_timeout(std::move(task), milliseconds, "test", 1);
}

// To be captured by a callable: `at_end` runs when the last copy of it goes.
inline std::shared_ptr<void> on_release(std::function<void()> at_end) {
    return {nullptr, [at_end = std::move(at_end)](void*) { at_end(); }};
}

}  // namespace test
