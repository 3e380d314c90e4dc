// SPDX-License-Identifier: MIT
#include <zo_ui/toolkit/process_state_p.hpp>

#include <cstdlib>

zo::toolkit_state& zo::toolkit() {
    static toolkit_state& state = []() -> toolkit_state& {
        static auto& kept = *new toolkit_state;
        std::atexit([] { kept = {}; });
        return kept;
    }();
    return state;
}
