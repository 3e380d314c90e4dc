// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>

namespace test {

// The place of a virtual operation in its class's table: a pointer to it begins with its offset there
// (Itanium C++ ABI). The destructor has the first two places.
template <typename Function>
std::ptrdiff_t slot_of(Function function) {
    std::ptrdiff_t words[2];
    static_assert(sizeof function == sizeof words);
    std::memcpy(words, &function, sizeof words);
    EXPECT_EQ(words[1], 0) << "a slot of the object's own table";
    return words[0] / static_cast<std::ptrdiff_t>(sizeof(void*));
}

}  // namespace test
