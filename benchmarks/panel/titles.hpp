// SPDX-License-Identifier: MIT
// What the windows of all contenders are called.
#pragma once

#include <string>

namespace bench {

constexpr int retitles = 1000;

// So many of the newest windows have their buttons on screen; they are retitled in turn.
constexpr int in_sight = 10;

// So many windows a program starts with.
constexpr int started_windows = 10;

// So many more windows join the panel in one burst.
constexpr int joining = 10;

// Titles of several widths, some longer than a button shows.
inline std::string title(int number) {
    static const char* const texts[] = {"Mail",        "Terminal",          "Letter to the landlord - Writer",
                                        "Photographs", "Concert, Saturday", "Accounts 2024 - Sheets",
                                        "Settings",    "Downloads - Files"};
    return std::to_string(number) + " " + texts[number % 8];
}

}  // namespace bench
