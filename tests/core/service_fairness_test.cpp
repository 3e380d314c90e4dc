// SPDX-License-Identifier: MIT
// Tasks and drawing share one loop: neither may keep the other waiting for good.
#include "core/posting.hpp"
#include "support/loop.hpp"

#include <glib.h>
#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>

#include <atomic>
#include <chrono>
#include <thread>

namespace {

using test::after;
using test::post;

constexpr int drawing = G_PRIORITY_HIGH_IDLE + 20;
constexpr int resizing = G_PRIORITY_HIGH_IDLE + 10;

// A source that is always ready, as a window that draws at every turn.
class steady_source {
  public:
    explicit steady_source(int priority) : id_(g_idle_add_full(priority, turn, this, nullptr)) {}
    ~steady_source() { g_source_remove(id_); }
    steady_source(const steady_source&) = delete;
    steady_source& operator=(const steady_source&) = delete;
    int turns = 0;

  private:
    static gboolean turn(gpointer self) {
        ++static_cast<steady_source*>(self)->turns;
        return G_SOURCE_CONTINUE;
    }
    guint id_;
};

// Tasks that post themselves for as long as this lives.
class flood {
  public:
    explicit flood(int width = 1) : left_(width) {
        for (int count = 0; count < width; ++count) post([this] { step(); });
    }
    ~flood() {
        stop_ = true;
        EXPECT_TRUE(test::turn_until([this] { return left_ == 0; }));
    }
    flood(const flood&) = delete;
    flood& operator=(const flood&) = delete;
    int runs = 0;

  private:
    void step() {
        ++runs;
        if (stop_)
            --left_;
        else
            post([this] { step(); });
    }
    int left_;
    bool stop_ = false;
};

// A timeout that arms itself again before it does its work, for as long as this lives.
class endless_timeout {
  public:
    explicit endless_timeout(std::function<void()> work) : work_(std::move(work)) {
        after(0, [this] { step(); });
    }
    ~endless_timeout() {
        stop_ = true;
        EXPECT_TRUE(test::turn_until([this] { return stopped_; }));
    }
    endless_timeout(const endless_timeout&) = delete;
    endless_timeout& operator=(const endless_timeout&) = delete;
    int runs = 0;

  private:
    void step() {
        ++runs;
        if (stop_)
            stopped_ = true;
        else
            after(0, [this] { step(); });
        work_();
    }
    std::function<void()> work_;
    bool stop_ = false;
    bool stopped_ = false;
};

void work(std::chrono::microseconds duration) {
    const auto end = std::chrono::steady_clock::now() + duration;
    while (std::chrono::steady_clock::now() < end) std::this_thread::yield();
}

class ServiceFairness : public testing::TestWithParam<int> {};

TEST_P(ServiceFairness, AFloodOfTasksAndSteadyWorkOfOthersShareTheLoop) {
    for (const int width : {1, 50}) {
        flood tasks(width);
        steady_source other(GetParam());
        EXPECT_TRUE(test::turn_until([&] { return other.turns >= 50 && tasks.runs >= 50 * width; }))
            << other.turns << " turns, " << tasks.runs << " tasks";
    }
}

// Some loops ask whether anything is pending before each turn, some more than once.
TEST_P(ServiceFairness, AskingBeforeEachTurnChangesNothing) {
    for (const int questions : {1, 2, 3, 5}) {
        flood tasks;
        steady_source other(GetParam());
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while ((other.turns < 50 || tasks.runs < 10) && std::chrono::steady_clock::now() < end) {
            for (int count = 0; count < questions; ++count) ASSERT_TRUE(g_main_context_pending(nullptr));
            g_main_context_iteration(nullptr, FALSE);
        }
        EXPECT_GE(other.turns, 50) << questions << " questions";
        EXPECT_GE(tasks.runs, 10) << questions << " questions";
    }
}

TEST_P(ServiceFairness, ATimeoutThatArmsItselfLetsOthersWork) {
    endless_timeout timeout([] { work(std::chrono::milliseconds(3)); });  // longer than the shortest delay
    steady_source other(GetParam());
    ASSERT_TRUE(test::turn_until([&] { return timeout.runs >= 2; }));
    const int before = other.turns;
    EXPECT_TRUE(test::turn_until([&] { return other.turns >= before + 20; }));
}

TEST_P(ServiceFairness, AFloodFromAnotherThreadLetsOthersWork) {
    std::atomic<bool> stop{false};
    std::atomic<int> waiting{0};
    std::thread poster([&] {
        while (!stop)
            if (waiting < 100) {
                ++waiting;
                post([&] { --waiting; });
            }
    });
    {
        steady_source other(GetParam());
        EXPECT_TRUE(test::turn_until([&] { return other.turns >= 50; }));
    }
    stop = true;
    poster.join();
    test::run_tasks();
}

INSTANTIATE_TEST_SUITE_P(Events, ServiceFairness, testing::Values(G_PRIORITY_DEFAULT));
INSTANTIATE_TEST_SUITE_P(Flush, ServiceFairness, testing::Values(G_PRIORITY_DEFAULT + 1));
INSTANTIATE_TEST_SUITE_P(Resizing, ServiceFairness, testing::Values(resizing));
INSTANTIATE_TEST_SUITE_P(Drawing, ServiceFairness, testing::Values(drawing));

TEST(ServicePriority, ATaskComesBeforeTheWorkOfOthers) {
    for (const int priority : {G_PRIORITY_DEFAULT + 1, resizing, drawing, drawing}) {
        steady_source other(priority);
        int turns_before = -1;
        post([&] { turns_before = other.turns; });
        EXPECT_TRUE(test::turn_until([&] { return turns_before >= 0; }));
        EXPECT_EQ(turns_before, 0);
    }
}

TEST(ServicePriority, TasksThatPostThemselvesHaveAPartInEveryTurnThatDraws) {
    flood tasks;
    steady_source other(drawing);
    EXPECT_TRUE(test::turn_until([&] { return other.turns >= 5000; }));
    EXPECT_GE(tasks.runs, 2500);
}

TEST(ServicePriority, TheLoopIsPendingAsLongAsTasksWait) {
    int left = 20;
    std::function<void()> again = [&] {
        if (--left > 0) post(again);
    };
    post(again);
    while (left > 0) {
        for (int question = 0; question < 6; ++question) ASSERT_TRUE(g_main_context_pending(nullptr)) << left;
        g_main_context_iteration(nullptr, FALSE);
    }
    test::run_tasks();
    EXPECT_FALSE(g_main_context_pending(nullptr));
}

TEST(ServicePriority, ShortTimeoutsLetIdleSourcesWork) {
    endless_timeout timeout([] {});
    steady_source idle(G_PRIORITY_LOW);
    EXPECT_TRUE(test::turn_until([&] { return idle.turns >= 20; }));
}

}  // namespace
