// SPDX-License-Identifier: MIT
// No class has got a further virtual operation: a program's subclass puts its first own one where it was put
// when the program was built. The order of those before it is pinned beside each class.
#include <gtest/gtest.h>

#include <zo_ui/zo_appindicator/appindicator_p.hpp>
#include <zo_ui/zo_notification/notification_p.hpp>
#include <zo_ui/zo_window/window_p.hpp>
#include <zo_ui/zo_window_event.hpp>
#include <zo_ui/zo_window_manager/manager_p.hpp>

#include <cstring>

namespace {

template <typename Class>
class extended : public Class {
  public:
    virtual void appended() {}
};

// A pointer to a virtual member function begins with its offset in the table (Itanium C++ ABI).
template <typename Class>
std::ptrdiff_t operations_of() {
    const auto first_own = &extended<Class>::appended;
    std::ptrdiff_t words[2];
    static_assert(sizeof first_own == sizeof words);
    std::memcpy(words, &first_own, sizeof words);
    EXPECT_EQ(words[0] % 2, 1) << "not a virtual operation";
    return (words[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

// The two destructors are among them.
TEST(VirtualEnds, EachTableIsAsLongAsItWas) {
    EXPECT_EQ(operations_of<_zo_object>(), 6);
    EXPECT_EQ(operations_of<_zo_window_event>(), 7);
    EXPECT_EQ(operations_of<_zo_window>(), 18);
    EXPECT_EQ(operations_of<_zo_window_manager>(), 27);
    EXPECT_EQ(operations_of<_zo_notification>(), 6);
    EXPECT_EQ(operations_of<_zo_appindicator>(), 6);
}

}  // namespace
