// SPDX-License-Identifier: MIT
#include "support/output.hpp"

#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>
#include <zo_core/zo_object_p.hpp>

#include <atomic>
#include <boost/make_shared.hpp>
#include <thread>
#include <vector>

namespace {

class _zo_sample : public _zo_object {
  public:
    std::string get_type() override { return "[zo_sample]"; }
    void destroy(std::string reason, int line) override {
        if (zo::begin_destroy(*this, "src/zo_ui/zo_sample", 77, reason, line)) ++destroyed;
    }
    std::atomic<int> destroyed{0};
};

class DestroyGuard : public testing::Test {
  protected:
    bool marked() {
        bool value = false;
        EXPECT_TRUE(zo_property_get_extract<bool>(object->property_list, "object-destroyed", &value));
        return value;
    }
    boost::shared_ptr<_zo_sample> object = boost::make_shared<_zo_sample>();
    test::captured_output output;
};

TEST_F(DestroyGuard, TheFirstCallMarksTheObjectAndGoesOn) {
    EXPECT_FALSE(marked());
    object->destroy("here", 5);
    EXPECT_EQ(object->destroyed, 1);
    EXPECT_TRUE(marked());
    EXPECT_EQ(output.text(), "");
}

TEST_F(DestroyGuard, EveryLaterCallOnlyWarns) {
    object->destroy("first", 1);
    const std::size_t properties = object->property_list.size();
    object->destroy("src/app.cpp", 12);
    object->destroy("again", -3);
    EXPECT_EQ(object->destroyed, 1);
    EXPECT_TRUE(marked());
    EXPECT_EQ(object->property_list.size(), properties);
    const std::string warning =
        "\x1b[1;35mZO-SYSTEM**WARNING**\x1b[0;0m: CALLING DESTROY MULTIPLE TIMES IS NOT AN "
        "OPTION \x1b[0;35m[zo_sample]\x1b[0;0m-";
    EXPECT_EQ(output.text(), warning + "src/app.cpp:12\n" + warning + "again:-3\n");
}

constexpr const char* bad_cast =
    "\x1b[1;31mZO-SYSTEM**ERROR**\x1b[0;0m: bad cast destroy any: src/zo_ui/zo_sample:77 - "
    "boost::bad_any_cast: failed conversion using boost::any_cast\n";

TEST_F(DestroyGuard, AMarkOfAnotherTypeIsAnError) {
    zo_property_set<int>(object->property_list, "object-destroyed", 1);
    object->destroy("here", 5);
    EXPECT_EQ(object->destroyed, 0);
    EXPECT_EQ(output.text(), bad_cast);
    int value = 0;
    EXPECT_TRUE(zo_property_get_extract<int>(object->property_list, "object-destroyed", &value));
    EXPECT_EQ(value, 1);
}

TEST_F(DestroyGuard, ALostMarkIsAnErrorToo) {
    object->property_list.erase("object-destroyed");
    object->destroy("here", 5);
    EXPECT_EQ(object->destroyed, 0);
    EXPECT_EQ(output.text(), bad_cast);
}

TEST_F(DestroyGuard, OfManyThreadsOneIsTheFirst) {
    constexpr int count = 8;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < count; ++thread)
        threads.emplace_back([&] { object->destroy("thread", 1); });
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(object->destroyed, 1);
    EXPECT_EQ(output.lines().size(), static_cast<std::size_t>(count - 1));
}

TEST_F(DestroyGuard, TheBaseIsGuardedAsWell) {
    const auto base = boost::make_shared<_zo_object>();
    base->destroy("first", 1);
    EXPECT_EQ(output.text(), "");
    base->destroy("second", 2);
    EXPECT_EQ(output.text(),
              "\x1b[1;35mZO-SYSTEM**WARNING**\x1b[0;0m: CALLING DESTROY MULTIPLE TIMES IS NOT AN OPTION "
              "\x1b[0;35m[zo_object]\x1b[0;0m-second:2\n");
    EXPECT_EQ(base->property_list.size(), 1U);
}

}  // namespace
