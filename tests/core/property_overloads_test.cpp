// SPDX-License-Identifier: MIT
// Reads and writes happen at every turn of a program: their usual way allocates nothing.
#include <glib.h>
#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>
#include <zo_core/zo_property_access_p.hpp>

#include <boost/make_shared.hpp>
#include <cstdlib>
#include <new>

namespace {

thread_local long allocations = 0;

}  // namespace

// Not inlined: the compiler would take the pair of them apart and warn of a mismatch.
[[gnu::noinline]] void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

constexpr const char* file = "src/a/source/file/with/a/name/longer/than/a/small/string";
constexpr const char* name = "a-name-that-is-longer-than-a-small-string";

class PropertyOverloads : public testing::Test {
  protected:
    void SetUp() override {
        zo_property_init<int>(object->property_list, name, 3);
        zo_property_init<std::string>(object->property_list, "text", std::string(100, 'x'));
    }
    template <typename Operation>
    long allocations_in(Operation operation) {
        const long before = allocations;
        operation();
        return allocations - before;
    }

    boost::shared_ptr<_zo_object> object = boost::make_shared<_zo_object>();
};

TEST_F(PropertyOverloads, AReadAllocatesNothing) {
    int value = 0;
    const long count = allocations_in([&] {
        object->property_lock(file, 1);
        zo_assertion_faild(zo_property_get_extract<int>(object->property_list, name, &value), {}, {}, {}, 1);
        object->property_unlock();
    });
    EXPECT_EQ(count, 0);
    EXPECT_EQ(value, 3);
}

TEST_F(PropertyOverloads, AMissAllocatesNothing) {
    int value = 0;
    bool found = true;
    const char* missing = "another-name-that-is-longer-than-a-small-string";
    EXPECT_EQ(
        allocations_in([&] { found = zo_property_get_extract<int>(object->property_list, missing, &value); }),
        0);
    EXPECT_FALSE(found);
}

TEST_F(PropertyOverloads, AWriteAllocatesNothing) {
    std::string value(200, 'y');
    EXPECT_EQ(allocations_in([&] {
                  zo_property_set<int>(object->property_list, name, 4);
                  zo_property_set<std::string>(object->property_list, "text", std::move(value));
                  zo_property_init<int>(object->property_list, name, 5);
              }),
              0);
    int number = 0;
    EXPECT_TRUE(zo_property_get_extract<int>(object->property_list, std::string(name), &number));
    EXPECT_EQ(number, 4);
}

TEST_F(PropertyOverloads, TheLibrarysOwnAccessAllocatesNothing) {
    int value = 0;
    const long count = allocations_in([&] {
        zo::property_guard guard(*object, file, 1);
        guard.read<int>(name, value, {"&value"});
        value = 9;
        guard.write<int>(name, value, {"value"});
    });
    EXPECT_EQ(count, 0);
    EXPECT_EQ(value, 3);
}

TEST_F(PropertyOverloads, AnExchangeAllocatesNothing) {
    std::string value(200, 'y');
    std::string old;
    const long count = allocations_in([&] {
        zo::property_guard guard(*object, file, 1);
        guard.exchange("text", value, old, {"&old"}, {"value"});
    });
    EXPECT_EQ(count, 0);
    EXPECT_EQ(old, std::string(100, 'x'));
}

TEST_F(PropertyOverloads, ATextThatFitsIsReadWithoutAllocating) {
    std::string value(100, 'y');
    const long count = allocations_in([&] {
        zo::property_guard guard(*object, file, 1);
        EXPECT_TRUE(guard.read("text", value, {"&value"}));
    });
    EXPECT_EQ(count, 0);
    EXPECT_EQ(value, std::string(100, 'x'));
}

TEST(ServiceOverloads, APostByLiteralBuildsNoString) {
    int ran = 0;
    long count = 0;
    for (int turn = 1; turn <= 3; ++turn) {  // the queue's memory is there after two
        const long before = allocations;
        zo_system_service_exec([&ran] { ++ran; }, file, 1);
        count = allocations - before;
        while (g_main_context_iteration(nullptr, FALSE)) {
        }
        EXPECT_EQ(ran, turn);
    }
    EXPECT_EQ(count, 0);
}

TEST_F(PropertyOverloads, GetByLiteralBuildsNoName) {
    boost::any out;
    const long by_literal =
        allocations_in([&] { EXPECT_TRUE(zo_property_get(object->property_list, name, out)); });
    EXPECT_EQ(by_literal, 1) << "the copy of the value, and nothing else";
    EXPECT_EQ(boost::any_cast<int>(out), 3);
    EXPECT_FALSE(zo_property_get(object->property_list, "missing", out));
    EXPECT_TRUE(out.empty());
}

TEST_F(PropertyOverloads, LiteralAndStringMeanTheSame) {
    EXPECT_TRUE(zo_property_init<int>(object->property_list, "new", 1));
    EXPECT_FALSE(zo_property_init<int>(object->property_list, std::string("new"), 2));
    EXPECT_TRUE(zo_property_set<int>(object->property_list, "newer", 3));
    int value = 0;
    EXPECT_TRUE(zo_property_get_extract<int>(object->property_list, "new", &value));
    EXPECT_EQ(value, 1);
    EXPECT_TRUE(zo_property_get_extract<int>(object->property_list, std::string("newer"), &value));
    EXPECT_EQ(value, 3);
    EXPECT_THROW(zo_property_get_extract<bool>(object->property_list, "new", nullptr), boost::bad_any_cast);
}

}  // namespace
