// SPDX-License-Identifier: MIT
// A session's two monitors (script/session -m), put where a test wants them.
#pragma once

#include <cstdlib>
#include <map>
#include <string>

namespace test {

// Before the toolkit looks at the screen: the second monitor stands "beside" (right of), "before" or "above"
// the first. The last command has the driver look at its outputs again.
inline bool arrange_monitors(const std::string& second) {
    static const std::map<std::string, std::string> arrangements{
        {"beside", "xrandr --output DUMMY0 --pos 0x0 --output DUMMY1 --pos 1024x0"},
        {"before", "xrandr --output DUMMY0 --pos 1024x0 --output DUMMY1 --pos 0x0"},
        {"above", "xrandr --output DUMMY0 --pos 0x768 --output DUMMY1 --pos 0x0"}};
    return std::system((arrangements.at(second) + " && xrandr >/dev/null").c_str()) == 0;
}

}  // namespace test
