// SPDX-License-Identifier: MIT
#include "support/output.hpp"

#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>

#include <atomic>
#include <boost/make_shared.hpp>
#include <thread>
#include <vector>

namespace {

using unref_function = void (*)(zo_object_ptr);

class _zo_sample : public _zo_object {
  public:
    explicit _zo_sample(bool& alive) : alive_(alive) { alive_ = true; }
    ~_zo_sample() override {
        if (at_end) at_end(*this);
        alive_ = false;
    }
    std::string get_type() override { return "[zo_sample]"; }
    std::function<void(_zo_sample&)> at_end;

  private:
    bool& alive_;
};

// Both names of giving a reference back do the same.
class Refs : public testing::TestWithParam<unref_function> {
  protected:
    unref_function unref = GetParam();
    bool alive = false;
    boost::shared_ptr<_zo_sample> object = boost::make_shared<_zo_sample>(alive);
    test::captured_output output;
};

TEST_P(Refs, AreCounted) {
    EXPECT_FALSE(object->is_reffed());
    zo_object_ref(object);
    zo_object_ref(object);
    EXPECT_TRUE(object->is_reffed());
    unref(object);
    EXPECT_TRUE(object->is_reffed());
    unref(object);
    EXPECT_FALSE(object->is_reffed());
    EXPECT_EQ(output.text(), "");
}

TEST_P(Refs, KeepTheObjectAliveWithoutAHandle) {
    _zo_sample* const place = object.get();
    zo_object_ref(object);
    zo_object_ref(object);
    object.reset();
    EXPECT_TRUE(alive);
    unref(place->shared_from_this());
    EXPECT_TRUE(alive);
    unref(place->shared_from_this());
    EXPECT_FALSE(alive);
}

TEST_P(Refs, HoldOneHandleHoweverMany) {
    const long before = object.use_count();
    zo_object_ref(object);
    EXPECT_EQ(object.use_count(), before + 1);
    zo_object_ref(object);
    EXPECT_EQ(object.use_count(), before + 1);
    unref(object);
    EXPECT_EQ(object.use_count(), before + 1);
    unref(object);
    EXPECT_EQ(object.use_count(), before);
}

TEST_P(Refs, AreGivenBackInALoop) {
    for (int count = 0; count < 5; ++count) zo_object_ref(object);
    int turns = 0;
    for (; object->is_reffed(); ++turns) unref(object);
    EXPECT_EQ(turns, 5);
    EXPECT_EQ(output.text(), "");
}

TEST_P(Refs, OneTooManyIsReportedAndChangesNothing) {
    const std::string report =
        "\x1b[1;31mZO-SYSTEM**ERROR**\x1b[0;0m: assertion failed: refs > 0 - [zo_sample] - "
        "src/zo_core/zo_object:84\n";
    unref(object);
    EXPECT_EQ(output.text(), report);
    zo_object_ref(object);
    EXPECT_TRUE(object->is_reffed()) << "the failed call has been counted";
    unref(object);
    EXPECT_FALSE(object->is_reffed());
    EXPECT_EQ(output.text(), report);
    EXPECT_TRUE(alive);
}

TEST_P(Refs, TheLastMayEndTheObjectInsideTheCall) {
    bool reffed = true;
    object->at_end = [&](_zo_sample& ending) { reffed = ending.is_reffed(); };
    zo_object_ref(object);
    zo_object_ptr last = object;
    object.reset();
    unref(std::move(last));
    EXPECT_FALSE(alive);
    EXPECT_FALSE(reffed);
}

TEST_P(Refs, AreCountedByManyThreadsAtOnce) {
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 8; ++thread)
        threads.emplace_back([&] {
            for (int turn = 0; turn < 500; ++turn) {
                zo_object_ref(object);
                EXPECT_TRUE(object->is_reffed());
                unref(object);
            }
        });
    for (std::thread& thread : threads) thread.join();
    EXPECT_FALSE(object->is_reffed());
    EXPECT_EQ(object.use_count(), 1);
    EXPECT_EQ(output.text(), "");
}

INSTANTIATE_TEST_SUITE_P(, Refs, testing::Values(&zo_object_unref, &zo_object_unref_real));

TEST(NullRefs, WarnUnderTheirOwnNames) {
    test::captured_output output;
    zo_object_ref({});
    zo_object_unref({});
    zo_object_unref_real({});
    EXPECT_EQ(output.text(), test::null_handle_line("zo_object_ref") +
                                 test::null_handle_line("zo_object_unref") +
                                 test::null_handle_line("zo_object_unref_real"));
}

}  // namespace
