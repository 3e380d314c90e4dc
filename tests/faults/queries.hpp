// SPDX-License-Identifier: MIT
// The desktop queries, asked about windows that are gone or are going.
#pragma once
#include <istream>
#include <string>

// Everything that takes a window of somebody else's, for each id: how many there were, how many answers were
// not what a window that is gone has, and how many errors reached the process.
std::string query_dead(std::istream& ids);

// Asks about whatever is active: "TIMES PID", the process of the windows that come and go. How often there
// was an answer, how many answers were not those of one whole window, or of none, and how many errors reached
// the process.
std::string query_active(std::istream& words);
