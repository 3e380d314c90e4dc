// SPDX-License-Identifier: MIT
#include <zo_core/zo_unique_id.hpp>

#include <atomic>

unsigned long zo_get_unique_id() {
    static std::atomic<unsigned long> last{0};
    return ++last;
}
