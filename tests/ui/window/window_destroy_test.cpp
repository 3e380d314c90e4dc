// SPDX-License-Identifier: MIT
// The end of a window, and its guard.
#include "ui/window/recording_manager.hpp"
#include "ui/window/window_tables.hpp"

#include <zo_ui/zo_window/window_source_p.hpp>

#include <atomic>
#include <thread>

namespace {

const std::string warning =
    "\x1b[1;35mZO-SYSTEM**WARNING**\x1b[0;0m: CALLING DESTROY MULTIPLE TIMES IS NOT AN OPTION "
    "\x1b[0;35m[zo_window]\x1b[0;0m-";

class WindowDestroy : public testing::Test {
  protected:
    void destroy() {
        EXPECT_TRUE(zo_window_destroy(window));
        test::run_tasks();
    }

    bool is_empty(const char* property) {
        for (const test::window_callback& callback : test::window_callbacks)
            if (std::string(callback.property) == property) return !callback.call(window, property);
        return false;
    }

    test::event_log log;
    test::captured_output output;
    test::scoped_window window;
};

TEST_F(WindowDestroy, EmptiesEveryCallback) {
    int called = 0;
    for (const test::window_callback& callback : test::window_callbacks)
        callback.store(window, [&] { ++called; });
    zo_window_set_window_close_request_callback(window, [&](zo_window_ptr) { return ++called > 0; });
    window.show();
    EXPECT_EQ(called, 3);  // the id, open, show
    destroy();
    EXPECT_EQ(called, 5);  // close, destroy; no close is asked for
    for (const test::window_callback& callback : test::window_callbacks)
        EXPECT_TRUE(is_empty(callback.property)) << callback.property;
    EXPECT_EQ(called, 5);
}

// The close inside still finds its callback, and no other.
TEST_F(WindowDestroy, LeavesTheCloseCallbackForTheCloseInside) {
    for (const test::window_callback& callback : test::window_callbacks) callback.store(window, [] {});
    int closed = 0;
    zo_window_set_window_close_callback(window, [&](zo_window_ptr) {
        if (closed++) return;
        for (const test::window_callback& callback : test::window_callbacks)
            EXPECT_EQ(is_empty(callback.property), std::string(callback.property) != "window-close")
                << callback.property;
    });
    window.open();
    destroy();
    EXPECT_EQ(closed, 2);  // and once by the look above
}

struct on_release {
    explicit on_release(std::function<void()> f) : function(std::move(f)) {}
    ~on_release() { function(); }
    std::function<void()> function;
};

TEST_F(WindowDestroy, LetsTheCallbacksGoInTheirOrder) {
    std::vector<std::string> gone;
    for (const test::window_callback& callback : test::window_callbacks) {
        const std::string name = callback.property;
        callback.store(window,
                       [held = std::make_shared<on_release>([&gone, name] { gone.push_back(name); })] {});
    }
    destroy();
    // The last two are still needed: to be called in the end.
    EXPECT_EQ(gone, (std::vector<std::string>{
                        "window-open", "window-show", "window-hide", "window-activate", "window-restore",
                        "window-close-request", "go-back", "hint-request", "app-exit-request", "handle-photo",
                        "menu-create", "window-title-change", "window-class-change", "window-id-change",
                        "window-on-event", "window-close", "window-destroy"}));
}

TEST_F(WindowDestroy, WithAReasonIsGuarded) {
    log.watch(window);
    EXPECT_TRUE(zo_window_destroy(window, "first", 1));
    EXPECT_EQ(output.text(), "");
    EXPECT_TRUE(zo_window_get_bool_property(window, "object-destroyed"));
    EXPECT_FALSE(test::state_of(window).destroyed);
    EXPECT_TRUE(zo_window_destroy(window, "src/app.cpp", 12));
    EXPECT_EQ(output.text(), warning + "src/app.cpp:12\n");
    test::run_tasks();
    EXPECT_TRUE(test::state_of(window).destroyed);
    EXPECT_EQ(log.take_names(), "destroy");
    EXPECT_EQ(zo_window_instance_id(window), 1);
    EXPECT_TRUE(zo_window_destroy(window, "", -3));
    test::run_tasks();
    EXPECT_EQ(output.text(), warning + "src/app.cpp:12\n" + warning + ":-3\n");
    EXPECT_EQ(zo_window_instance_id(window), 1);
}

TEST_F(WindowDestroy, WithoutAReasonIsNot) {
    log.watch(window);
    zo_window_destroy(window);
    zo_window_destroy(window);
    test::run_tasks();
    EXPECT_FALSE(zo_window_get_bool_property(window, "object-destroyed"));
    zo_window_destroy(window);
    zo_window_destroy(window, "after", 1);
    test::run_tasks();
    EXPECT_EQ(log.take_names(), "destroy");
    EXPECT_EQ(output.text(), "");
    EXPECT_TRUE(zo_window_get_bool_property(window, "object-destroyed"));
    EXPECT_EQ(zo_window_instance_id(window), 1);
}

TEST_F(WindowDestroy, AMarkOfAnotherTypeIsAnErrorLine) {
    const zo_object_ptr object = zo_window_to_object(window);
    zo_property_set<int>(object->property_list, "object-destroyed", 1);
    EXPECT_TRUE(zo_window_destroy(window, "reason", 1));
    EXPECT_EQ(output.text(),
              "\x1b[1;31mZO-SYSTEM**ERROR**\x1b[0;0m: bad cast destroy any: src/zo_ui/zo_window:" +
                  std::to_string(zo::window_source::destroy_guard) +
                  " - boost::bad_any_cast: failed conversion using boost::any_cast\n");
    test::run_tasks();
    EXPECT_FALSE(test::state_of(window).destroyed);
}

TEST_F(WindowDestroy, OfManyThreadsOneIsTheFirst) {
    log.watch(window);
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i) threads.emplace_back([&] { zo_window_destroy(window, "thread", 1); });
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(output.lines().size(), 7U);
    test::run_tasks();
    EXPECT_EQ(log.take_names(), "destroy");
}

TEST_F(WindowDestroy, GivesEverythingBack) {
    const auto manager = test::recording_manager_new(log);
    GtkWidget* toplevel = window.show();
    g_object_add_weak_pointer(G_OBJECT(toplevel), reinterpret_cast<gpointer*>(&toplevel));
    zo_window_set_window_manager(window, manager);
    test::run_tasks();
    EXPECT_EQ(manager.use_count(), 2);
    destroy();
    EXPECT_EQ(toplevel, nullptr);
    EXPECT_EQ(manager.use_count(), 1);
    EXPECT_FALSE(zo_window_get_window_manager(window));
    EXPECT_FALSE(zo_window_to_object(window)->is_reffed());
    EXPECT_EQ(window.get().use_count(), 1);
    EXPECT_TRUE(test::toplevels("zo-window").empty());
}

// Somebody else took a reference of the core: the library gives back its own alone.
TEST_F(WindowDestroy, LeavesReferencesOfOthers) {
    const zo_object_ptr object = zo_window_to_object(window);
    zo_object_ref(object);
    destroy();
    EXPECT_TRUE(object->is_reffed());
    zo_object_unref(object);
    EXPECT_FALSE(object->is_reffed());
    EXPECT_EQ(output.text(), "");
}

// A manager that keeps the window gave the library's reference back already.
TEST_F(WindowDestroy, GivesBackNoMoreThanItHolds) {
    zo_object_unref(zo_window_to_object(window));
    destroy();
    EXPECT_EQ(output.text(), "");
}

TEST_F(WindowDestroy, AfterTheEndNothingHappensAnyMore) {
    destroy();
    log.watch(window);
    for (const test::window_operation& operation : test::window_operations)
        EXPECT_TRUE(operation.post(window));
    zo_window_move(window, 1, 2);
    test::run_tasks();
    EXPECT_EQ(log.take_names(), "");
    EXPECT_EQ(test::state_of(window), test::state{.destroyed = true});
    EXPECT_EQ(zo_window_instance_id(window), 1);
    EXPECT_EQ(output.text(), "");
}

TEST_F(WindowDestroy, NothingOpensItFromInside) {
    log.watch(window);
    window.open();
    log.take();
    const auto reopen = [&](const zo_window_ptr& w) {
        zo_window_open(w);
        zo_window_show(w);
        zo_window_destroy(w);
        test::run_tasks();
    };
    log.inside("close", reopen);
    log.inside("destroy", reopen);
    destroy();
    EXPECT_EQ(log.take_names(), "close destroy");
    EXPECT_TRUE(test::toplevels("zo-window").empty());
    EXPECT_EQ(zo_window_instance_id(window), 2);
}

}  // namespace
