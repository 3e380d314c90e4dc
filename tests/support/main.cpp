// SPDX-License-Identifier: MIT
// The main of every test program. A test fails that provokes a message of GLib's log, or leaves an object
// behind.
#include "support/main.hpp"
#include "support/log_check.hpp"
#include "support/loop.hpp"

#include <gtest/gtest.h>
#include <zo_core/zo_core.hpp>

namespace {

constexpr const char* tags[] = {"[zo_window]", "[zo_window_event]", "[zo_window_manager]",
                                "[zo_notification]", "[zo_appindicator]"};

class no_object_stays : public testing::EmptyTestEventListener {
    void OnTestEnd(const testing::TestInfo&) override {
        test::run_tasks();
        for (const char* tag : tags) EXPECT_EQ(zo_object_ref_count(tag), 0) << tag << " left behind";
    }
};

// Set by a program that needs a toolkit; see main.hpp.
bool (*prepare)(int*, char***) = nullptr;

}  // namespace

test::preparation::preparation(bool (*function)(int*, char***)) { prepare = function; }

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    test::watch_glib_log();
    if (prepare && !prepare(&argc, &argv)) return 1;
    testing::TestEventListeners& listeners = testing::UnitTest::GetInstance()->listeners();
    listeners.Append(new no_object_stays);
    return RUN_ALL_TESTS();
}
