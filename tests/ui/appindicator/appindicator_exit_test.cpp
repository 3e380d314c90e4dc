// SPDX-License-Identifier: MIT
// A program that leaves with its icon in the tray: from main, and in the middle of a callback.
#include "ui/appindicator/indicator.hpp"

namespace {

class AppindicatorExit : public test::with_tray_host, public testing::WithParamInterface<const char*> {
  protected:
    using test::with_tray_host::SetUpTestSuite;
};

TEST_P(AppindicatorExit, TakesTheIconAlong) {
    GError* error = nullptr;
    GSubprocess* const program = g_subprocess_new(
        static_cast<GSubprocessFlags>(G_SUBPROCESS_FLAGS_STDOUT_PIPE | G_SUBPROCESS_FLAGS_STDERR_MERGE),
        &error, LEAVING_PROGRAM, GetParam(), nullptr);
    ASSERT_TRUE(program);
    EXPECT_TRUE(test::turn_until(
        [&] { return test::choose_tray_entry(test::wait_for_tray_item("leaving"), "Leave"); }));
    struct ending {
        bool here = false;
        std::string output;
    } end;
    const auto on_end = [](GObject* source, GAsyncResult* result, gpointer data) {
        char* text = nullptr;
        EXPECT_TRUE(
            g_subprocess_communicate_utf8_finish(G_SUBPROCESS(source), result, &text, nullptr, nullptr));
        static_cast<ending*>(data)->output = text ? text : "";
        static_cast<ending*>(data)->here = true;
        g_free(text);
    };
    g_subprocess_communicate_utf8_async(program, nullptr, nullptr, on_end, &end);
    EXPECT_TRUE(test::turn_until([&] { return end.here; }));
    EXPECT_TRUE(g_subprocess_get_successful(program));
    EXPECT_EQ(end.output, "");
    EXPECT_TRUE(test::tray_items_become("leaving", 0));
    g_object_unref(program);
}

INSTANTIATE_TEST_SUITE_P(Ways, AppindicatorExit, testing::Values("main", "exit"));

}  // namespace
