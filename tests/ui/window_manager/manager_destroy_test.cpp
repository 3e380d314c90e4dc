// SPDX-License-Identifier: MIT
// The end of the panel: its windows, its references, and a panel that is still on screen. That every counter
// is back at 0 is checked after each test.
#include "ui/window_manager/panel.hpp"

namespace {

bool is_destroyed(const zo_window_ptr& window) { return test::state_of(window).destroyed; }

bool is_held(const zo_window_manager_ptr& manager) {
    return zo_window_manager_to_object(manager)->is_reffed();
}

struct handles {
    zo_window_manager_ptr manager = zo_window_manager_new("ignored");
    zo_window_ptr a = zo_window_new("a");
    zo_window_ptr b = zo_window_new("b");

    void join() const {
        for (const zo_window_ptr& window : {a, b}) {
            zo_window_set_window_manager(window, manager);
            zo_window_open(window);
        }
        test::run_tasks();
    }
};

TEST(ManagerDestroy, TakesItsWindowsAlong) {
    const handles all;
    all.join();
    std::string told;
    const auto seen = [&](const std::string& name, int left) { told += name + std::to_string(left) + " "; };
    zo_window_set_window_destroy_callback(all.a, [&](const zo_window_ptr& w) {
        seen("a", static_cast<bool>(zo_window_get_window_manager(w)));
    });
    zo_window_set_window_destroy_callback(all.b, [&](const zo_window_ptr& w) {
        seen("b", static_cast<bool>(zo_window_get_window_manager(w)));
    });
    zo_window_manager_on_destroy(all.manager, [&](const zo_window_manager_ptr& m) {
        EXPECT_TRUE(test::state_of(m).destroyed);
        EXPECT_TRUE(is_held(m));
        seen("manager", !is_destroyed(all.a) && !is_destroyed(all.b));
    });
    zo_window_manager_destroy(all.manager);
    zo_window_manager_destroy(all.manager);
    test::run_tasks();
    EXPECT_EQ(told, "manager1 a0 b0 ");
    EXPECT_TRUE(is_destroyed(all.a) && is_destroyed(all.b));
    EXPECT_FALSE(is_held(all.manager));
    EXPECT_EQ(all.manager.use_count(), 1);
    EXPECT_EQ(all.a.use_count(), 1);
}

// Its own end was asked for before.
TEST(ManagerDestroy, NamesItselfToAWindowThatWasToGoAnyway) {
    const handles all;
    all.join();
    test::captured_output output;
    zo_window_manager_destroy(all.manager);
    zo_window_destroy(all.a, "src/app.cpp", 12);
    test::run_tasks();
    EXPECT_EQ(output.text(),
              "\x1b[1;35mZO-SYSTEM**WARNING**\x1b[0;0m: CALLING DESTROY MULTIPLE TIMES IS NOT AN OPTION "
              "\x1b[0;35m[zo_window]\x1b[0;0m-src/zo_ui/zo_window_manager:472\n");
    EXPECT_TRUE(is_destroyed(all.a) && is_destroyed(all.b));
}

// A window's leaving and a window's end are tasks: in between the manager is still held.
TEST(ManagerDestroy, LetsGoAfterTheLastWindowHasLeft) {
    const handles all;
    all.join();
    zo_window_manager_destroy(all.manager);
    std::vector<bool> held;
    const auto leave = [&](const zo_window_ptr& window) {
        zo_window_set_window_close_callback(
            window, [&](const zo_window_ptr&) { held.push_back(is_held(all.manager)); });
    };
    zo_window_manager_on_destroy(all.manager, [&](const zo_window_manager_ptr&) {
        leave(all.a);
        leave(all.b);
        // Between the two departures.
        zo_system_service_exec([&] { held.push_back(is_held(all.manager)); }, "test", 1);
    });
    test::run_tasks();
    // a leaves, a is closed, b leaves (and the manager is let go), b is closed.
    EXPECT_EQ(held, (std::vector<bool>{true, false, false}));
}

TEST(ManagerDestroy, OfAnEmptyOneLetsGoAtOnce) {
    const zo_window_manager_ptr manager = zo_window_manager_new("");
    EXPECT_EQ(manager.use_count(), 2);
    bool reffed = false;
    zo_window_manager_on_destroy(manager, [&](const zo_window_manager_ptr& m) { reffed = is_held(m); });
    zo_window_manager_destroy(manager, "reason", 1);
    test::run_tasks();
    EXPECT_TRUE(reffed);
    EXPECT_FALSE(is_held(manager));
    EXPECT_EQ(manager.use_count(), 1);
}

// The windows leave inside its callback, and the application has a reference of its own.
TEST(ManagerDestroy, LetsGoOfItsOwnReferenceOnly) {
    const handles all;
    all.join();
    const zo_object_ptr object = zo_window_manager_to_object(all.manager);
    zo_window_manager_on_destroy(all.manager, [&](const zo_window_manager_ptr&) {
        zo_object_ref(object);
        test::run_tasks();
        EXPECT_TRUE(is_destroyed(all.a) && is_destroyed(all.b));
    });
    zo_window_manager_destroy(all.manager);
    test::run_tasks();
    EXPECT_TRUE(is_held(all.manager));
    if (is_held(all.manager)) zo_object_unref(object);
    EXPECT_FALSE(is_held(all.manager));
}

TEST(ManagerDestroy, EmptiesTheCallbacks) {
    const auto held = std::make_shared<int>();
    const test::scoped_panel panel;
    const auto callback = [held](const zo_window_manager_ptr&) {};
    for (const auto setter : {zo_window_manager_on_open, zo_window_manager_on_show, zo_window_manager_on_hide,
                              zo_window_manager_on_close, zo_window_manager_on_destroy})
        setter(panel, callback);
    EXPECT_EQ(held.use_count(), 7);
    panel.run(zo_window_manager_destroy);
    EXPECT_EQ(held.use_count(), 2);
}

// The panel itself is not touched: it slides and locks as before.
TEST(ManagerDestroy, LeavesAnOpenedPanelOnScreen) {
    GtkWidget* widget = nullptr;
    {
        test::scoped_panel panel;
        test::joined_window window(panel, "a");
        widget = panel.show();
        window.show();
        panel.run(zo_window_manager_destroy);
        EXPECT_TRUE(is_destroyed(window));
        EXPECT_EQ(test::row(), "_ _");
        EXPECT_TRUE(zo_window_manager_add_widget_left(panel, gtk_label_new("late")));
    }
    EXPECT_EQ(zo_object_ref_count("[zo_window_manager]"), 1);
    test::run_tasks();
    ASSERT_EQ(test::panel(), widget);
    EXPECT_TRUE(gtk_widget_get_mapped(widget));
    test::move_pointer(zo_ui_screen_x() + 500, zo_ui_screen_y());
    EXPECT_TRUE(test::is_extended());
    test::draw_again(widget);  // the late label pushes the lock aside
    test::click(test::part("lock-unlocked"));
    EXPECT_TRUE(test::turn_until([] { return test::part("lock-locked"); }));
    test::click(test::part("lock-locked"));
    EXPECT_TRUE(test::turn_until([] { return test::part("lock-unlocked"); }));
    test::move_pointer(zo_ui_screen_x() + 500, zo_ui_screen_y() + 500);
    EXPECT_TRUE(test::is_retracted());
    gtk_widget_destroy(widget);
}

TEST(ManagerDestroy, APanelDestroyedByOthersIsClosed) {
    test::scoped_panel panel;
    test::joined_window window(panel, "a");
    int closed = 0;
    zo_window_manager_on_close(panel, [&](const zo_window_manager_ptr&) { ++closed; });
    GtkWidget* first = panel.show();
    window.show();
    gtk_widget_destroy(first);
    EXPECT_EQ(test::state_of(panel), test::state{});
    EXPECT_EQ(closed, 1);
    test::run_tasks();
    EXPECT_FALSE(test::state_of(window).visible);
    EXPECT_FALSE(zo_window_manager_add_widget_left(panel, nullptr));
    ASSERT_TRUE(panel.show());
    EXPECT_EQ(test::row(), "a x");
    EXPECT_EQ(closed, 1);
}

TEST(ManagerDestroy, APanelMayEndWhileItIsShown) {
    const test::scoped_panel panel;
    panel.open();
    int told = 0;
    zo_window_manager_on_show(panel, [&](const zo_window_manager_ptr&) { ++told; });
    const auto end = +[](GtkWidget* widget, const test::scoped_panel* shown) {
        shown->run(zo_window_manager_destroy);
        gtk_widget_destroy(widget);
    };
    g_signal_connect(test::panel(), "show", G_CALLBACK(end), const_cast<test::scoped_panel*>(&panel));
    panel.run(zo_window_manager_show);
    EXPECT_TRUE(test::state_of(panel).destroyed);
    EXPECT_FALSE(test::panel());
    EXPECT_EQ(told, 0);
}

TEST(ManagerDestroy, LastHandlesMayGoInsideTheCallbacks) {
    for (const auto setter : {zo_window_manager_on_open, zo_window_manager_on_show, zo_window_manager_on_hide,
                              zo_window_manager_on_close, zo_window_manager_on_destroy}) {
        auto all = std::make_unique<handles>();
        all->join();
        setter(all->manager, [&](const zo_window_manager_ptr& m) {
            zo_window_manager_close(m);
            zo_window_manager_destroy(m);
            all.reset();
        });
        const zo_window_manager_ptr manager = all->manager;
        for (const auto operation : {zo_window_manager_open, zo_window_manager_show, zo_window_manager_hide,
                                     zo_window_manager_close})
            operation(manager);
        zo_window_manager_destroy(manager);
        test::run_tasks();
        EXPECT_FALSE(all);
        EXPECT_EQ(manager.use_count(), 1);
    }
}

TEST(ManagerDestroy, AWindowThatIsDestroyedLeaves) {
    test::scoped_panel panel;
    {
        test::joined_window window(panel, "a");
        window.open();
    }
    EXPECT_EQ(panel.get().use_count(), 2);
    panel.open();
    EXPECT_EQ(test::row(), "");
}

TEST(ManagerDestroy, ADestroyedManagerTakesNoWindow) {
    test::scoped_panel panel;
    panel.open();
    panel.run(zo_window_manager_destroy);
    test::scoped_window window("a");
    panel.join(window);
    window.open();
    EXPECT_EQ(test::row(), "");
    EXPECT_TRUE(zo_window_to_object(window)->is_reffed());
    gtk_widget_destroy(test::panel());
}

}  // namespace
