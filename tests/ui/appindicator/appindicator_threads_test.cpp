// SPDX-License-Identifier: MIT
// Eight threads call everything that any thread may call while the loop runs. The thread sanitizer watches.
#include "ui/appindicator/indicator.hpp"

#include <atomic>
#include <thread>

namespace {

constexpr int threads_count = 8;

class AppindicatorThreads : public test::with_tray_host {
  protected:
    template <typename Work>
    static void on_all_threads(const Work& work) {
        std::atomic<int> running{threads_count};
        std::vector<std::thread> threads;
        for (int number = 0; number < threads_count; ++number)
            threads.emplace_back([&, number] {
                work(number);
                --running;
            });
        EXPECT_TRUE(test::turn_until([&] { return running == 0; }));
        for (std::thread& thread : threads) thread.join();
        test::run_tasks();
    }
};

TEST_F(AppindicatorThreads, ShareOneIndicator) {
    const std::thread::id loop = std::this_thread::get_id();
    test::scoped_indicator indicator("shared");
    std::atomic<int> called{0};
    on_all_threads([&](int number) {
        for (int turn = 0; turn < 50; ++turn) {
            const std::string name = "action-" + std::to_string(turn % 10);
            EXPECT_TRUE(zo_appindicator_add_action(indicator, name, name, [&, loop](auto, auto&) {
                EXPECT_EQ(std::this_thread::get_id(), loop);
                ++called;
            }));
            const zo_object_ptr object = zo_appindicator_to_object(indicator);
            EXPECT_TRUE(zo_is_appindicator(object));
            EXPECT_EQ(zo_appindicator_from_object(object), indicator.get());
            const bool shows = turn > 40 && number % 2;
            EXPECT_TRUE(!shows || zo_appindicator_show(indicator));
        }
    });
    const test::tray_item item = test::wait_for_tray_item("shared");
    EXPECT_EQ(test::menus().size(), 1U);
    EXPECT_TRUE(test::turn_until([&] { return test::tray_labels(item).size() == 10; }));
    EXPECT_TRUE(test::turn_until([&] { return test::choose_tray_entry(item, "action-7"); }));
    EXPECT_TRUE(test::turn_until([&] { return called == 1; }));
}

TEST_F(AppindicatorThreads, HaveIndicatorsOfTheirOwn) {
    on_all_threads([](int number) {
        for (int turn = 0; turn < 5; ++turn) {
            const zo_appindicator_ptr own = zo_appindicator_new("own" + std::to_string(number), "T", "icon");
            zo_appindicator_add_action(own, "a", "A", nullptr);
            zo_appindicator_show(own);
            zo_appindicator_to_object(own)->destroy("thread", number);
        }
    });
    EXPECT_EQ(zo_object_ref_count("[zo_appindicator]"), 0);
    EXPECT_TRUE(test::menus().empty());
}

// The last handle of a shown indicator goes on another thread.
TEST_F(AppindicatorThreads, LetTheLastHandleGo) {
    zo_appindicator_ptr indicator = zo_appindicator_new("leaving", "T", "icon");
    zo_appindicator_show(indicator);
    test::run_tasks();
    test::wait_for_tray_item("leaving");
    zo_object_unref(zo_appindicator_to_object(indicator));
    std::thread([last = std::move(indicator)]() mutable { last.reset(); }).join();
    test::run_tasks();
    EXPECT_TRUE(test::menus().empty());
    EXPECT_TRUE(test::tray_items_become("leaving", 0));
}

// One of them destroys it in the middle.
TEST_F(AppindicatorThreads, MeetTheEnd) {
    test::captured_output output;
    test::scoped_indicator indicator("ending");
    on_all_threads([&](int number) {
        for (int turn = 0; turn < 20; ++turn) {
            zo_appindicator_add_action(indicator, std::to_string(turn), "label", [](auto, auto&) {});
            zo_appindicator_show(indicator);
            if (turn == 10 && number < 2) indicator.object()->destroy("thread", number);
        }
    });
    EXPECT_EQ(output.lines().size(), 1U);  // the second destroy
    EXPECT_TRUE(test::menus().empty());
    EXPECT_EQ(indicator.get().use_count(), 1);
    indicator.let_go();
}

}  // namespace
