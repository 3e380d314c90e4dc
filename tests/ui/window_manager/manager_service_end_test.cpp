// SPDX-License-Identifier: MIT
// After the end of the service a closed panel stays on screen, and does nothing any more. The end is final
// for the process, so everything is one test.
#include "ui/window_manager/panel.hpp"

#include <zo_ui/zo_window/window_p.hpp>
#include <zo_ui/zo_window_manager/manager_p.hpp>

namespace {

struct ending_panel {
    // Opened, shown and kept extended with one window.
    explicit ending_panel(const char* id) : window(zo_window_new(id)) {
        zo_window_set_title(window, id);
        zo_window_set_window_manager(window, manager);
        zo_window_manager_set_keep_extended(manager, true);
        zo_window_manager_open(manager);
        zo_window_manager_show(manager);
        zo_window_open(window);
        test::run_tasks();
        widgets = zo::manager_access::widgets(*manager);
        toplevel = test::toplevel_named(id);
        button = zo::read_task(window).button;
        close_button = zo::read_task(window).close;
        zo_window_manager_on_close(manager, [this](const zo_window_manager_ptr&) { ++closed; });
        EXPECT_TRUE(test::turn_until([this] { return test::is_on_screen(widgets.window); }));
    }

    void click_everything() const {
        for (GtkWidget* clicked : {button, close_button, widgets.lock_button})
            gtk_button_clicked(GTK_BUTTON(clicked));
        test::run_tasks();
        EXPECT_FALSE(test::state_of(window).visible);
        EXPECT_TRUE(test::has_class(widgets.lock_button, "lock-locked"));
        EXPECT_TRUE(zo_window_manager_get_keep_extended(manager));
    }

    // Tasks do not run any more: what they would do is done by hand.
    void let_go() {
        window->_destroy();
        gtk_widget_destroy(toplevel);
        zo_object_unref(zo_window_manager_to_object(manager));
    }

    zo_window_manager_ptr manager = zo_window_manager_new("");
    zo_window_ptr window;
    zo::panel_widgets widgets;
    GtkWidget* toplevel = nullptr;
    GtkWidget* button = nullptr;
    GtkWidget* close_button = nullptr;
    int closed = 0;
};

// Layout, crossings and a grab still reach a panel that nobody remembers.
void expect_still(const ending_panel& panel) {
    const test::place before = test::place_of(panel.widgets.window);
    test::move_pointer(zo_ui_screen_x() + 500, zo_ui_screen_y());
    test::move_pointer(zo_ui_screen_x() + 500, zo_ui_screen_y() + 500);
    gtk_container_add(GTK_CONTAINER(panel.widgets.taskbox_right), gtk_label_new("late"));
    gtk_widget_show_all(panel.widgets.taskbox_right);
    gtk_grab_add(panel.widgets.taskbox_left);
    gtk_grab_remove(panel.widgets.taskbox_left);
    test::settle_desktop();
    EXPECT_EQ(test::place_of(panel.widgets.window).y, before.y);
    EXPECT_TRUE(gtk_widget_get_visible(panel.widgets.window));
}

TEST(ManagerServiceEnd, ForgetsThePanel) {
    ending_panel closed("closed");
    ending_panel outside("outside");
    zo_window_manager_close(closed.manager);
    zo_system_service_end();
    EXPECT_EQ(closed.closed, 1);
    EXPECT_EQ(test::state_of(closed.manager), test::state{});
    EXPECT_TRUE(gtk_widget_get_visible(closed.widgets.window));
    EXPECT_FALSE(zo::manager_access::widgets(*closed.manager).window);
    closed.click_everything();
    expect_still(closed);
    EXPECT_FALSE(zo_window_manager_add_widget_left(closed.manager, closed.widgets.taskbox_right));
    for (const auto operation : {zo_window_manager_open, zo_window_manager_show, zo_window_manager_hide})
        EXPECT_TRUE(operation(closed.manager));
    test::run_tasks();
    EXPECT_EQ(test::state_of(closed.manager), test::state{});

    // A panel that is taken away closes as ever. Its widgets outlive the manager by a moment.
    GtkWidget* label = gtk_label_new("late");
    EXPECT_TRUE(zo_window_manager_add_widget_left(outside.manager, label));
    zo_ui_connect_widget_destroy(
        label, [lock = outside.widgets.lock_button] { gtk_button_clicked(GTK_BUTTON(lock)); });
    zo_window_manager_on_close(outside.manager, nullptr);
    outside.let_go();
    GtkWidget* widget = outside.widgets.window;
    outside.manager.reset();
    EXPECT_EQ(zo_object_ref_count("[zo_window_manager]"), 2);
    gtk_widget_destroy(widget);
    EXPECT_EQ(zo_object_ref_count("[zo_window_manager]"), 1);

    closed.let_go();
    gtk_widget_destroy(closed.widgets.window);
    EXPECT_EQ(closed.manager.use_count(), 1);
}

}  // namespace
