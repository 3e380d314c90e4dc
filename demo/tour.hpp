// SPDX-License-Identifier: MIT
#pragma once

#include "workshop.hpp"

#include <string>

namespace demo {

// Works the windows with a real pointer once the loop runs, writes numbered screenshots to `folder`, and
// leaves through the exit button. `result` becomes 1 when a step did not happen.
void schedule_tour(workshop& shop, const std::string& folder, int& result);

}  // namespace demo
