// SPDX-License-Identifier: MIT
#pragma once

namespace test {

// A static object of this type in a test program runs `function` before the first test; false ends the
// program.
struct preparation {
    explicit preparation(bool (*function)(int*, char***));
};

}  // namespace test
