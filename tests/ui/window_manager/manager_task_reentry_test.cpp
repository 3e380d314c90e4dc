// SPDX-License-Identifier: MIT
// A button that leaves the row runs the application's "destroy" handler, which may do anything.
#include "ui/window_manager/panel.hpp"

#include <zo_ui/zo_window_manager/manager_p.hpp>

namespace {

class ManagerTaskReentry : public testing::Test {
  protected:
    ManagerTaskReentry() {
        panel.open();
        a.open();
    }

    // Runs when the present task button goes.
    void on_button_destroy(std::function<void()> action) {
        zo_ui_connect_widget_destroy(test::task_button("a"), [this, action = std::move(action)] {
            ++gone;
            action();
        });
    }

    void expect_working_button() {
        const zo::task task = zo::read_task(a.get());
        ASSERT_TRUE(test::task_button("a"));
        EXPECT_EQ(task.button, test::task_button("a"));
        EXPECT_EQ(task.close, test::close_button("a"));
        EXPECT_TRUE(task.click);
        gtk_button_clicked(GTK_BUTTON(task.button));
        EXPECT_TRUE(test::state_of(a.get()).visible);
        EXPECT_EQ(gone, 1);
    }

    int gone = 0;
    test::scoped_panel panel;
    test::joined_window a{panel, "a"};
};

TEST_F(ManagerTaskReentry, JoiningAgainWhileLeaving) {
    on_button_destroy([this] { panel.get()->connect_window(a); });
    panel.get()->disconnect_window(a);
    EXPECT_EQ(test::row(), "a x _ _");
    expect_working_button();
}

TEST_F(ManagerTaskReentry, OpeningAgainWhileClosing) {
    on_button_destroy([this] { a.open(); });
    a.run(zo_window_close);
    EXPECT_EQ(test::row(), "a x");
    expect_working_button();
    a.run(zo_window_close);
    EXPECT_EQ(test::row(), "");
}

TEST_F(ManagerTaskReentry, ClosingThePanelWhileAWindowLeaves) {
    on_button_destroy([this] { panel.close(); });
    zo_window_set_window_manager(a, {});
    test::run_tasks();
    EXPECT_EQ(gone, 1);
    EXPECT_FALSE(test::panel());
    panel.open();
    EXPECT_EQ(test::row(), "");
}

TEST_F(ManagerTaskReentry, ClosingThePanelWhileAWindowCloses) {
    on_button_destroy([this] { panel.close(); });
    a.run(zo_window_close);
    EXPECT_EQ(gone, 1);
    EXPECT_FALSE(test::panel());
    a.open();
    panel.open();
    EXPECT_EQ(test::row(), "a x");
}

}  // namespace
