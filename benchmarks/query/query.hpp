// SPDX-License-Identifier: MIT
// What all contenders of this group have in common: their main.
#pragma once

#include "clients.hpp"

namespace bench {

// Asks about the active window among as many clients as the argument says, often enough to measure it, and
// prints "us" and "cpu_us" of one question, and its "round_trips" and "requests".
int run_query(int argc, char** argv, facts (*ask)());

}  // namespace bench
