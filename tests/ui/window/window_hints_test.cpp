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

}  // namespace
