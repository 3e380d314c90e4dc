// SPDX-License-Identifier: MIT
// Real clicks on the task row, and buttons that outlive their place in it.
#include "ui/window_manager/panel.hpp"

#include <zo_ui/zo_window_manager/manager_p.hpp>

namespace {

class ManagerTaskClicks : public testing::Test {
  protected:
    ManagerTaskClicks() {
        panel.keep_extended(true);
        panel.show();
    }

    static void click(GtkWidget* button) {
        ASSERT_TRUE(button);
        ASSERT_TRUE(test::turn_until([&] { return gtk_widget_get_allocated_width(button) > 1; }));
        test::settle_desktop();
        test::click(button);
    }

    static zo::task task_of(const zo_window_ptr& window) { return zo::read_task(window); }

    test::scoped_panel panel;
};

TEST_F(ManagerTaskClicks, HideAWindowAndBringItBackActive) {
    test::joined_window a(panel, "a");
    int activated = 0;
    zo_window_set_window_activate_callback(a, [&](const zo_window_ptr&) { ++activated; });
    a.show();
    click(test::task_button("a"));
    EXPECT_TRUE(test::turn_until([&] { return !test::state_of(a.get()).visible; }));
    EXPECT_EQ(activated, 0);
    click(test::task_button("a"));
    EXPECT_TRUE(test::turn_until([&] { return test::state_of(a.get()).visible; }));
    EXPECT_TRUE(test::turn_until([&] { return activated == 1; }));
}

TEST_F(ManagerTaskClicks, TheCloseButtonCloses) {
    test::joined_window a(panel, "a");
    a.show();
    click(test::close_button("a"));
    EXPECT_TRUE(test::turn_until([&] { return !test::state_of(a.get()).opened; }));
    EXPECT_EQ(test::row(), "");
    EXPECT_FALSE(test::state_of(a.get()).destroyed);
}

// The window goes while its own handler runs.
TEST_F(ManagerTaskClicks, MayDestroyTheWindow) {
    zo_window_ptr window = zo_window_new("a");
    panel.join(window);
    zo_window_open(window);
    zo_window_show(window);
    zo_window_set_window_hide_callback(window, [&](const zo_window_ptr& w) {
        zo_window_destroy(w);
        window.reset();
        test::run_tasks();
    });
    test::run_tasks();
    click(test::task_button("a"));
    EXPECT_TRUE(test::turn_until([&] { return !window; }));
    EXPECT_EQ(test::row(), "");
}

TEST_F(ManagerTaskClicks, LeavingLeavesThePaddingInTheRow) {
    test::joined_window a(panel, "a");
    test::joined_window b(panel, "b");
    a.open();
    b.open();
    zo_window_set_window_manager(a, {});
    test::run_tasks();
    EXPECT_EQ(test::row(), "b x _ _");
    EXPECT_FALSE(task_of(a).button || task_of(a).close || task_of(a).click);
    panel.join(a);
    EXPECT_TRUE(task_of(a).click);
    EXPECT_EQ(test::row(), "a x b x _ _");
    click(test::task_button("a"));
    EXPECT_TRUE(test::turn_until([&] { return test::state_of(a.get()).visible; }));
}

TEST_F(ManagerTaskClicks, JoiningTwiceRegistersOnce) {
    test::joined_window a(panel, "a");
    a.open();
    const auto* click = task_of(a).click;
    panel.get()->connect_window(a);
    EXPECT_EQ(zo::manager_access::registered(*panel.get()).snapshot().size(), 1U);
    EXPECT_EQ(task_of(a).click, click);
    EXPECT_EQ(test::row(), "a x");
}

// The manager deletes it in the end, like its own.
TEST_F(ManagerTaskClicks, AHandlerThatIsThereBeforeJoiningStays) {
    test::scoped_window window("a");
    int clicked = 0;
    auto* own = new std::function<void(GtkWidget*)>([&](GtkWidget*) { ++clicked; });
    zo_property_set<std::function<void(GtkWidget*)>*>(zo_window_to_object(window)->property_list,
                                                      "manager-click-cb", own);
    panel.join(window);
    window.open();
    EXPECT_EQ(task_of(window).click, own);
    gtk_button_clicked(GTK_BUTTON(test::task_button("a")));
    EXPECT_EQ(clicked, 1);
    EXPECT_FALSE(test::state_of(window).visible);
}

// Opened once more it is the last in order, and its buttons stay where they are.
TEST_F(ManagerTaskClicks, ButtonsThatExistAreKept) {
    test::joined_window a(panel, "a");
    test::joined_window b(panel, "b");
    a.open();
    b.open();
    const zo::task before = task_of(a);
    panel.get()->on_window_open(a);
    EXPECT_EQ(test::row(), "b x a x");
    EXPECT_EQ(task_of(a).button, before.button);
    EXPECT_EQ(task_of(a).close, before.close);
    panel.close();
    panel.open();
    EXPECT_EQ(test::row(), "a x b x");
}

TEST_F(ManagerTaskClicks, StrangersAreIgnored) {
    test::captured_output output;
    test::scoped_window stranger("a");
    stranger.show();
    _zo_window_manager& manager = *panel.get();
    for (const auto event : {&_zo_window_manager::on_window_open, &_zo_window_manager::on_window_title,
                             &_zo_window_manager::on_window_shown, &_zo_window_manager::on_window_hidden,
                             &_zo_window_manager::on_window_close, &_zo_window_manager::on_window_destroy,
                             &_zo_window_manager::disconnect_window})
        (manager.*event)(stranger);
    EXPECT_EQ(test::row(), "");
    EXPECT_TRUE(zo::manager_access::shown(manager).empty());
    panel.close();
    manager.on_window_shown(stranger);
    EXPECT_TRUE(test::state_of(stranger).visible);
    EXPECT_EQ(output.text(), "");
}

TEST_F(ManagerTaskClicks, ADestroyedWindowIsNotRegistered) {
    test::scoped_window window("a");
    zo_window_destroy(window);
    test::run_tasks();
    panel.get()->connect_window(window);
    EXPECT_TRUE(zo::manager_access::registered(*panel.get()).empty());
}

TEST_F(ManagerTaskClicks, AReopenedWindowKeepsItsHandler) {
    test::joined_window a(panel, "a");
    a.open();
    const auto* click = task_of(a).click;
    ASSERT_TRUE(click);
    a.run(zo_window_close);
    EXPECT_FALSE(task_of(a).button || task_of(a).close);
    a.open();
    EXPECT_EQ(task_of(a).click, click);
}

TEST_F(ManagerTaskClicks, CloseForgetsOnlyTheTaskButton) {
    test::joined_window a(panel, "a");
    a.open();
    const zo::task before = task_of(a);
    panel.close();
    EXPECT_FALSE(task_of(a).button);
    EXPECT_EQ(task_of(a).close, before.close);
    EXPECT_EQ(task_of(a).click, before.click);
    // The stale pointer is never taken for a widget.
    a.run(zo_window_show);
    a.run(zo_window_close);
    EXPECT_FALSE(task_of(a).close);
    a.open();
    panel.open();
    EXPECT_EQ(test::row(), "a x");
}

// Somebody else still holds the button: it does nothing any more.
TEST_F(ManagerTaskClicks, AHeldButtonOutlivesItsHandler) {
    test::joined_window a(panel, "a");
    a.open();
    GtkWidget* closed = GTK_WIDGET(g_object_ref(test::task_button("a")));
    a.run(zo_window_close);
    a.open();
    GtkWidget* left = GTK_WIDGET(g_object_ref(test::task_button("a")));
    zo_window_set_window_manager(a, {});
    test::run_tasks();
    for (GtkWidget* button : {closed, left}) {
        gtk_button_clicked(GTK_BUTTON(button));
        g_object_unref(button);
    }
    EXPECT_FALSE(test::state_of(a.get()).visible);
}

// A window that is shown while the panel is closed goes out of sight, and comes back with the panel.
TEST_F(ManagerTaskClicks, AClosedPanelHidesItsWindows) {
    test::joined_window a(panel, "a");
    panel.close();
    a.open();
    a.run(zo_window_show);
    EXPECT_EQ(test::state_of(a.get()), test::state{.opened = true});
    EXPECT_TRUE(zo_window_get_bool_property(a, "window-restore-visible"));
    panel.show();
    EXPECT_EQ(test::state_of(a.get()), (test::state{.opened = true, .visible = true}));
    EXPECT_EQ(gtk_widget_get_opacity(test::task_button("a")), 1.0);
}

TEST_F(ManagerTaskClicks, HidingThePanelHidesItsWindowsUnsaved) {
    test::joined_window a(panel, "a");
    a.show();
    panel.run(zo_window_manager_hide);
    EXPECT_FALSE(test::state_of(a.get()).visible);
    panel.show();
    EXPECT_FALSE(test::state_of(a.get()).visible);
    a.run(zo_window_show);
    zo_window_save(a);
    panel.run(zo_window_manager_hide);
    panel.show();
    EXPECT_TRUE(test::state_of(a.get()).visible);
}

}  // namespace
