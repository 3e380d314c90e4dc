// SPDX-License-Identifier: MIT
// Requests that are sent together: what becomes of answers, of errors and of what nobody awaits any more.
#include <gtest/gtest.h>
#include <zo_ui/platform/linux.hpp>
#include <zo_ui/platform/linux/pipeline_p.hpp>

#include "platform/x_client.hpp"

#include <malloc.h>

#include <thread>

namespace {

using zo::platform::place_request;
using zo::platform::property_request;

class Pipeline : public testing::Test {
  protected:
    ~Pipeline() override { EXPECT_EQ(errors.count(), 0); }

    test::counted_errors errors;
    test::x_client owner;
    test::x_client asking;
};

TEST_F(Pipeline, ManyRequestsMakeOneRoundTrip) {
    std::vector<place_request> requests;
    test::watch_requests(asking, nullptr);
    for (int i = 0; i < 100; ++i) requests.emplace_back(asking, owner.root());
    for (place_request& request : requests) EXPECT_EQ(request.answer().root, owner.root());
    EXPECT_EQ(test::watched_requests(), 100);
    EXPECT_EQ(test::watched_round_trips(), 1);
    test::stop_watching_requests();
}

TEST_F(Pipeline, AnErrorBelongsToItsRequestAndToNoOther) {
    const Window window = owner.make();
    const Window dead = owner.make_dead();
    place_request first(asking, window), second(asking, dead), third(asking, window);
    property_request without_atom(asking, window, None, AnyPropertyType, 1);
    EXPECT_EQ(third.answer().parent, owner.root());
    EXPECT_EQ(second.answer().root, Window{0});
    EXPECT_EQ(first.answer().parent, owner.root());
    EXPECT_EQ(without_atom.answer().type, Atom{None});
    EXPECT_EQ(XPending(asking), 0) << "no error is left among the events";
}

TEST_F(Pipeline, AnErrorThatNobodyAwaitsIsForgotten) {
    { const place_request forgotten(asking, owner.make_dead()); }
    XSync(asking, False);
    EXPECT_EQ(XPending(asking), 0);
}

TEST_F(Pipeline, AnswersThatNobodyAwaitsAreNotKept) {
    const Window frame = owner.make();
    owner.make_client(frame);
    for (int i = 0; i < 50; ++i) owner.make(frame);
    std::size_t before = 0;
    for (int round = 0; round < 400; ++round) {
        if (round == 200) before = mallinfo2().uordblks;
        EXPECT_NE(get_named_window(asking, frame), 0U);
    }
    EXPECT_LT(mallinfo2().uordblks, before + 20000);
}

TEST_F(Pipeline, ThreadsShareAConnection) {
    const Window window = owner.make();
    const Window dead = owner.make_dead();
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&] {
            for (int round = 0; round < 500; ++round) {
                place_request living(asking, window), gone(asking, dead);
                EXPECT_EQ(living.answer().parent, owner.root());
                EXPECT_EQ(gone.answer().root, Window{0});
            }
        });
    for (int round = 0; round < 500; ++round) XSync(asking, False);
    for (std::thread& thread : threads) thread.join();
}

}  // namespace
