// SPDX-License-Identifier: MIT
#include "support/loop.hpp"
#include "support/output.hpp"

#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>

#include <glib.h>
#include <thread>

namespace {

void post(std::function<void()> task) { zo_system_service_exec(std::move(task), "test", __LINE__); }

TEST(Service, TasksRunInTheOrderOfPosting) {
    std::string order;
    for (const char c : std::string("abc")) post([&order, c] { order.push_back(c); });
    EXPECT_EQ(order, "");
    test::run_tasks();
    EXPECT_EQ(order, "abc");
}

TEST(Service, TasksThatPostForEverLetLowPrioritySourcesRun) {
    bool stop = false;
    std::function<void()> again = [&] {
        if (!stop) post(again);
    };
    post(again);
    int drawn = 0;
    const guint drawing = g_timeout_add_full(
        G_PRIORITY_HIGH_IDLE + 20, 1,
        [](gpointer data) -> gboolean {
            ++*static_cast<int*>(data);
            return G_SOURCE_CONTINUE;
        },
        &drawn, nullptr);
    EXPECT_TRUE(test::turn_until([&] { return drawn >= 5; }));
    stop = true;
    g_source_remove(drawing);
    test::run_tasks();
}

}  // namespace
