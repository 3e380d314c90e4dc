// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>

#include <set>
#include <vector>

namespace {

using namespace std::string_literals;

// Names that differ before, at and after each border of eight bytes, or in nothing but their length; bytes
// that are negative as characters; a byte that ends a literal.
std::vector<std::string> awkward_names() {
    std::set<std::string> names;
    for (const std::size_t size : {0, 1, 7, 8, 9, 12, 15, 16, 17, 23, 24, 40}) {
        const std::string same(size, 'm');
        names.insert(same);
        for (const std::size_t at : {0, 3, 7, 8, 11, 15, 16, 22, 39})
            for (const char other : {'\0', 'a', 'z', '\x80', '\xff'}) {
                if (at >= size) continue;
                std::string name = same;
                name[at] = other;
                names.insert(name);
            }
    }
    return {names.begin(), names.end()};
}

TEST(PropertyKey, OrdersAsTheListDoes) {
    const std::vector<std::string> names = awkward_names();
    for (const std::string& a : names)
        for (const std::string& b : names) {
            const zo::property_key key(b);
            ASSERT_EQ(a < key, a < b) << testing::PrintToString(a) << testing::PrintToString(b);
            ASSERT_EQ(key < a, b < a) << testing::PrintToString(a) << testing::PrintToString(b);
            ASSERT_EQ(a == key, a == b) << testing::PrintToString(a) << testing::PrintToString(b);
            ASSERT_EQ(a != key, a != b) << testing::PrintToString(a) << testing::PrintToString(b);
        }
}

TEST(PropertyKey, EveryNameIsFoundAndNoOther) {
    const std::vector<std::string> names = awkward_names();
    property_list list;
    for (std::size_t even = 0; even < names.size(); even += 2)
        ASSERT_TRUE(zo_property_init<std::size_t>(list, names[even], even));
    for (std::size_t one = 0; one < names.size(); ++one) {
        std::size_t value = 0;
        ASSERT_EQ(zo_property_get_extract<std::size_t>(list, names[one], &value), one % 2 == 0);
        boost::any any;
        ASSERT_EQ(zo_property_get(list, names[one], any), one % 2 == 0);
        ASSERT_EQ(value, one % 2 == 0 ? one : 0);
    }
}

TEST(PropertyKey, ALiteralEndsWhereItsTextDoes) {
    property_list list;
    zo_property_init<int>(list, "eightchr\0hidden"s, 1);
    EXPECT_FALSE(zo_property_get_extract<int>(list, "eightchr", std::make_unique<int>().get()));
    zo_property_init<int>(list, "eightchr", 2);
    int value = 0;
    EXPECT_TRUE(zo_property_get_extract<int>(list, "eightchr\0another", &value));
    EXPECT_EQ(value, 2);
}

}  // namespace
