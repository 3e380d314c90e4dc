// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>

#include <boost/make_shared.hpp>
#include <cstring>
#include <type_traits>

namespace {

class _zo_sample : public _zo_object {
  public:
    std::string get_type() override { return "[zo_sample]"; }
    virtual int appended() { return 7; }
};

// The place of a virtual operation in the table, as the platform's C++ ABI spells it in a pointer to member.
template <typename Member>
std::size_t slot(Member member) {
    std::ptrdiff_t parts[2];
    static_assert(sizeof member == sizeof parts);
    std::memcpy(parts, &member, sizeof parts);
    EXPECT_EQ(parts[0] % 2, 1) << "not a virtual operation";
    return static_cast<std::size_t>(parts[0] - 1) / sizeof(void*);
}

TEST(Object, VirtualOperationsStandInTheirFixedOrder) {
    // The two destructors come first, at 0 and 1.
    EXPECT_EQ(slot(&_zo_object::to_object), 2U);
    EXPECT_EQ(slot(&_zo_object::get_type), 3U);
    EXPECT_EQ(slot(&_zo_object::destroy), 4U);
    EXPECT_EQ(slot(&_zo_object::describe), 5U);
    EXPECT_EQ(slot(&_zo_sample::appended), 6U) << "a seventh operation stands in the base";
    EXPECT_TRUE(std::has_virtual_destructor_v<_zo_object>);
}

TEST(Object, TheBaseIsTheSharedFromThisBase) {
    EXPECT_TRUE((std::is_base_of_v<boost::enable_shared_from_this<_zo_object>, zo_object_base>));
    EXPECT_TRUE((std::is_base_of_v<zo_object_base, _zo_object>));
    EXPECT_TRUE((std::is_same_v<zo_object_ptr, boost::shared_ptr<_zo_object>>));
    EXPECT_FALSE(std::is_copy_constructible_v<_zo_object>);
    EXPECT_FALSE(std::is_copy_assignable_v<_zo_object>);
}

TEST(Object, StartsWithOneProperty) {
    const auto object = boost::make_shared<_zo_object>();
    ASSERT_EQ(object->property_list.size(), 1U);
    bool destroyed = true;
    object->property_lock("test", 1);
    EXPECT_TRUE(zo_property_get_extract<bool>(object->property_list, "object-destroyed", &destroyed));
    object->property_unlock();
    EXPECT_FALSE(destroyed);
}

TEST(Object, GivesItsOwnHandle) {
    const auto sample = boost::make_shared<_zo_sample>();
    const zo_object_ptr object = sample->to_object();
    EXPECT_EQ(object.get(), sample.get());
    EXPECT_EQ(object.use_count(), 2);
    EXPECT_EQ(sample->shared_from_this(), object);
}

TEST(Object, WithoutAHandleHasNoneToGive) {
    _zo_object object;
    EXPECT_THROW(object.to_object(), boost::bad_weak_ptr);
    EXPECT_THROW(object.shared_from_this(), boost::bad_weak_ptr);
}

TEST(Object, IsDestroyedThroughItsBase) {
    static bool gone = false;
    struct _zo_watched : _zo_object {
        ~_zo_watched() override { gone = true; }
    };
    zo_object_ptr object(static_cast<_zo_object*>(new _zo_watched));
    const zo_object_ptr second = object;
    object.reset();
    EXPECT_FALSE(gone);
    const_cast<zo_object_ptr&>(second).reset();
    EXPECT_TRUE(gone);
}

TEST(Object, TellsItsTypeAndDescribesItself) {
    const auto object = boost::make_shared<_zo_object>();
    EXPECT_EQ(object->get_type(), "[zo_object]");
    const zo_object_ptr sample = boost::make_shared<_zo_sample>();
    EXPECT_EQ(sample->get_type(), "[zo_sample]");
    EXPECT_EQ(sample->describe(), "[zo_sample] with 1 properties");
    zo_object_ref(sample);
    EXPECT_EQ(sample->describe(), "[zo_sample] with 1 properties, referenced");
    zo_object_unref(sample);
}

}  // namespace
