// SPDX-License-Identifier: MIT
// A thousand, opened and closed in random order from four threads.
#include "ui/notification/popup.hpp"
#include "ui/window_manager/panel.hpp"

#include <malloc.h>
#include <algorithm>
#include <atomic>
#include <random>
#include <thread>

namespace {

constexpr int threads = 4;
constexpr int each = 250;

class NotificationMany : public testing::Test {
  protected:
    static zo_notification_ptr make(const zo_window_manager_ptr& manager, int i) {
        const zo_notification_ptr notification = zo_notification_new();
        zo_notification_set_title(notification, "title");
        zo_notification_set_content(notification, "content");
        if (i % 3 == 0) zo_notification_add_action(notification, "a", "Action", [](const std::string&) {});
        if (i % 2 == 0) zo_notification_set_manager(notification, manager);
        return notification;
    }

    void work(int seed) {
        std::mt19937 random(static_cast<unsigned>(seed));
        std::vector<zo_notification_ptr> all;
        for (int i = 0; i < each; ++i) {
            all.push_back(make(panel, i));
            zo_notification_on_close(all.back(), [this](const zo_notification_ptr&) { ++closed; });
            zo_notification_open_show(all.back());
            zo_notification_get_id(all.back());
        }
        std::shuffle(all.begin(), all.end(), random);
        for (const zo_notification_ptr& one : all) zo_notification_destroy(one);
    }

    void run_round(int round) {
        std::atomic<int> running{threads};
        std::vector<std::thread> workers;
        for (int i = 0; i < threads; ++i)
            workers.emplace_back([this, &running, seed = round * threads + i] {
                work(seed);
                --running;
            });
        EXPECT_TRUE(test::turn_until([&] { return running == 0; }, std::chrono::seconds(200)));
        for (std::thread& worker : workers) worker.join();
        test::run_tasks();
    }

    test::scoped_panel panel;
    std::atomic<int> closed{0};
};

TEST_F(NotificationMany, ComeAndGoFromFourThreads) {
    panel.show();
    run_round(0);
    EXPECT_EQ(closed, threads * each);
    EXPECT_TRUE(test::container_of(panel).empty());
    EXPECT_TRUE(test::toplevels("zo-notification").empty());
    EXPECT_EQ(zo_object_ref_count("[zo_notification]"), 0);
    const test::scoped_notification next("next");
    EXPECT_TRUE(test::comes_to(next.show(), {50, 75})) << "the stack of the process is empty, too";
}

// The second time needs no more than the first.
TEST_F(NotificationMany, LeaveNoMemoryBehind) {
    panel.show();
    const auto round = [this] {
        std::vector<zo_notification_ptr> all;
        for (int i = 0; i < each; ++i) zo_notification_open_show(all.emplace_back(make(panel, i)));
        test::run_tasks();
        for (const zo_notification_ptr& one : all) zo_notification_destroy(one);
        all.clear();
        test::run_tasks();
        test::settle_desktop();
        return mallinfo2().uordblks;
    };
    round();
    const std::size_t before = round();
    const std::size_t after = round();
    // Caches of the toolkit move a little; one popup alone takes over 10 kB.
    EXPECT_LT(after, before + 100'000);
}

TEST_F(NotificationMany, AreSetUpByAllThreadsAtOnce) {
    const test::scoped_notification shared;
    std::vector<std::thread> workers;
    for (int i = 0; i < threads; ++i)
        workers.emplace_back([&shared, this] {
            for (int j = 0; j < each; ++j) {
                zo_notification_set_title(shared, "t" + std::to_string(j));
                zo_notification_set_content(shared, "c" + std::to_string(j));
                zo_notification_set_timeout(shared, 0);
                zo_notification_set_is_markup(shared, j % 2 == 0);
                zo_notification_set_manager(shared, j % 2 == 0 ? panel.get() : zo_window_manager_ptr());
                zo_notification_add_action(shared, std::to_string(j % 10), "l", [](const std::string&) {});
                zo_notification_on_close(shared, [this](const zo_notification_ptr&) { ++closed; });
                zo_notification_on_activate_link_callback(shared, [](auto, auto) { return true; });
                zo_notification_open_show(shared);
            }
        });
    for (std::thread& worker : workers) worker.join();
    test::run_tasks();
    EXPECT_TRUE(test::state_of(shared).opened);
    shared.close();
    EXPECT_EQ(closed, 1);
}

}  // namespace
