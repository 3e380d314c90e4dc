// SPDX-License-Identifier: MIT
// What the desktop's window manager is told, as another program reads it.
#include "support/desktop.hpp"
#include "support/ui.hpp"

namespace {

class WindowHints : public testing::Test {
  protected:
    void SetUp() override {
        if (test::session_wm() == "none") return;
        window_ = std::make_unique<test::scoped_window>("hints");
        toplevel_ = window_->show();
    }

    void expect_all_hints() {
        for (const char* hint :
             {"_NET_WM_STATE_ABOVE", "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"})
            EXPECT_TRUE(test::x_property_becomes(toplevel_, "_NET_WM_STATE", hint)) << hint;
    }

    std::unique_ptr<test::scoped_window> window_;
    GtkWidget* toplevel_ = nullptr;
};

TEST_F(WindowHints, AreSetWhenTheWindowIsShown) {
    if (toplevel_) expect_all_hints();
}

// Window managers take the state of a withdrawn window away, after GTK has written it for the next showing.
TEST_F(WindowHints, SurviveAHideFollowedByAShowAtOnce) {
    for (int round = 0; toplevel_ && round < 30; ++round) {
        zo_window_hide(*window_);
        zo_window_show(*window_);
        test::run_tasks();
        EXPECT_TRUE(test::turn_until([&] { return test::is_on_screen(toplevel_); }));
        test::settle_desktop();
        expect_all_hints();
    }
}

// Each hint is that of its own flag.
TEST_F(WindowHints, AreLeftOutWhereTheirFlagIsOff) {
    const struct {
        const char* hint;
        bool (*set)(zo_window_ptr, bool);
    } rows[] = {{"_NET_WM_STATE_ABOVE", zo_window_set_keep_above},
                {"_NET_WM_STATE_SKIP_TASKBAR", zo_window_set_skip_taskbar_hint},
                {"_NET_WM_STATE_SKIP_PAGER", zo_window_set_skip_pager}};
    for (const auto& off : rows) {
        if (!toplevel_) return;
        zo_window_close(*window_);
        for (const auto& row : rows) row.set(*window_, row.hint != off.hint);
        toplevel_ = window_->show();
        test::settle_desktop();
        for (const auto& row : rows)
            EXPECT_TRUE(test::x_property_becomes(toplevel_, "_NET_WM_STATE", row.hint, row.hint != off.hint))
                << row.hint << " without " << off.hint;
        EXPECT_TRUE(test::x_property_becomes(toplevel_, "_NET_WM_STATE", "_NET_WM_STATE_BELOW", false));
        zo_window_hide(*window_);
        zo_window_show(*window_);
        test::run_tasks();
        test::settle_desktop();
        EXPECT_TRUE(test::x_property_becomes(toplevel_, "_NET_WM_STATE", off.hint, false))
            << off.hint << " after hiding";
    }
}

TEST_F(WindowHints, AskForAFrameOnlyWhereTheDesktopDecorates) {
    if (!toplevel_) return;
    const auto frame_wanted = [&] {
        const std::string hints = test::x_property(toplevel_, "_MOTIF_WM_HINTS");
        return hints.find("0x2, 0x0, 0x0, 0x0, 0x0") == std::string::npos;
    };
    EXPECT_FALSE(frame_wanted());
    zo_window_close(*window_);
    zo_window_set_use_system_decoration(*window_, true);
    toplevel_ = window_->show();
    EXPECT_TRUE(frame_wanted());
    EXPECT_TRUE(test::x_property_becomes(toplevel_, "_NET_FRAME_EXTENTS", "= 0, 0, 0, 0", false));
}

}  // namespace
