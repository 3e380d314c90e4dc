// SPDX-License-Identifier: MIT
// What all contenders show.
#pragma once

#include <string>

namespace bench {

inline std::string notification_title(int number) { return "Message " + std::to_string(number); }

inline std::string notification_text(int number) {
    return "Somebody wrote to you about the " + std::to_string(number) +
           " things that are left to be done today.";
}

}  // namespace bench
