// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>

#include <boost/make_shared.hpp>

struct widget;  // known to nobody here, as GTK's are to the core

namespace {

const std::string name = "a-name-that-is-longer-than-a-small-string";

TEST(PropertyList, InitInsertsAndNeverOverwrites) {
    property_list list;
    EXPECT_TRUE(zo_property_init<int>(list, name, 1));
    EXPECT_FALSE(zo_property_init<int>(list, name, 2));
    EXPECT_FALSE(zo_property_init<std::string>(list, name, "of another type"));
    int value = 0;
    EXPECT_TRUE(zo_property_get_extract<int>(list, name, &value));
    EXPECT_EQ(value, 1);
    EXPECT_EQ(list.size(), 1U);
}

TEST(PropertyList, SetReplacesAndCreates) {
    property_list list;
    EXPECT_TRUE(zo_property_set<int>(list, name, 1));
    EXPECT_TRUE(zo_property_set<int>(list, name, 2));
    int value = 0;
    EXPECT_TRUE(zo_property_get_extract<int>(list, name, &value));
    EXPECT_EQ(value, 2);
    EXPECT_EQ(list.size(), 1U);
}

TEST(PropertyList, SetTakesAnotherTypeThanBefore) {
    property_list list;
    zo_property_init<int>(list, name, 1);
    EXPECT_TRUE(zo_property_set<std::string>(list, name, "text"));
    std::string value;
    EXPECT_TRUE(zo_property_get_extract<std::string>(list, name, &value));
    EXPECT_EQ(value, "text");
}

TEST(PropertyList, ExtractOfAMissingNameLeavesTheValue) {
    property_list list;
    zo_property_init<bool>(list, "a", true);
    bool value = true;
    EXPECT_FALSE(zo_property_get_extract<bool>(list, name, &value));
    EXPECT_TRUE(value);
    EXPECT_EQ(list.size(), 1U);
}

TEST(PropertyList, ExtractOfAnotherTypeThrows) {
    property_list list;
    zo_property_init<int>(list, name, 5);
    long value = 9;
    try {
        zo_property_get_extract<long>(list, name, &value);
        ADD_FAILURE() << "nothing thrown";
    } catch (const boost::bad_any_cast& error) {
        EXPECT_STREQ(error.what(), "boost::bad_any_cast: failed conversion using boost::any_cast");
    }
    EXPECT_EQ(value, 9);
    list[name] = boost::any();
    EXPECT_THROW(zo_property_get_extract<long>(list, name, &value), boost::bad_any_cast);
}

TEST(PropertyList, GetCopiesTheStoredValue) {
    property_list list;
    zo_property_init<std::string>(list, name, "text");
    boost::any out = 5;
    EXPECT_TRUE(zo_property_get(list, name, out));
    EXPECT_EQ(boost::any_cast<std::string>(out), "text");
    boost::any_cast<std::string&>(out) = "changed";
    std::string stored;
    EXPECT_TRUE(zo_property_get_extract<std::string>(list, name, &stored));
    EXPECT_EQ(stored, "text");
}

TEST(PropertyList, GetOfAMissingNameEmptiesTheValue) {
    property_list list;
    boost::any out = 5;
    EXPECT_FALSE(zo_property_get(list, name, out));
    EXPECT_TRUE(out.empty());
    EXPECT_TRUE(list.empty());
}

TEST(PropertyList, NamesAreKeptAsWritten) {
    property_list list;
    zo_property_init<int>(list, "instanceId", 1);
    zo_property_init<bool>(list, "use_scroll", true);
    int value = 0;
    EXPECT_FALSE(zo_property_get_extract<int>(list, "instanceid", &value));
    EXPECT_FALSE(zo_property_get_extract<int>(list, "instance", &value));
    EXPECT_FALSE(zo_property_get_extract<int>(list, "use-scroll", &value));
    EXPECT_TRUE(zo_property_get_extract<int>(list, "instanceId", &value));
    EXPECT_EQ(value, 1);
}

template <typename T>
void expect_kept(const T& first, const T& second) {
    property_list list;
    EXPECT_TRUE(zo_property_init<T>(list, name, first));
    T value = second;
    EXPECT_TRUE(zo_property_get_extract<T>(list, name, &value));
    EXPECT_TRUE(value == first);
    EXPECT_TRUE(zo_property_set<T>(list, name, second));
    EXPECT_TRUE(zo_property_get_extract<T>(list, name, &value));
    EXPECT_TRUE(value == second);
}

TEST(PropertyList, KeepsEveryTypeThatTheLibraryStores) {
    expect_kept<bool>(true, false);
    expect_kept<int>(-3, 4);
    expect_kept<std::string>("first", "");
    expect_kept<unsigned long>(~0UL, 0);
    expect_kept<zo_object_ptr>(boost::make_shared<_zo_object>(), {});
    int place = 0;
    expect_kept<widget*>(reinterpret_cast<widget*>(&place), nullptr);
}

TEST(PropertyList, KeepsCallbacksAndTellsEmptyOnes) {
    using callback = std::function<bool(zo_object_ptr)>;
    property_list list;
    EXPECT_TRUE(zo_property_init<callback>(list, name, nullptr));
    callback read = [](zo_object_ptr) { return false; };
    EXPECT_TRUE(zo_property_get_extract<callback>(list, name, &read));
    EXPECT_FALSE(read);
    EXPECT_TRUE(zo_property_set<callback>(list, name, [](zo_object_ptr object) { return !object; }));
    EXPECT_TRUE(zo_property_get_extract<callback>(list, name, &read));
    EXPECT_TRUE(read({}));
}

struct type_of_another_library : std::type_info {
    explicit type_of_another_library(const char* name) : std::type_info(name) {}
};

TEST(PropertyList, TypesAreComparedByName) {
    const std::string copy = typeid(property_list).name();
    EXPECT_TRUE(zo::same_type(type_of_another_library(copy.c_str()), typeid(property_list)));
    EXPECT_TRUE(zo::same_type(type_of_another_library(("*" + copy).c_str()), typeid(property_list)));
    EXPECT_FALSE(zo::same_type(type_of_another_library((copy + "x").c_str()), typeid(property_list)));
    EXPECT_FALSE(zo::same_type(typeid(int), typeid(unsigned)));
}

}  // namespace
