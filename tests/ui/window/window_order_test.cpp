// SPDX-License-Identifier: MIT
// The order of flags, widgets, callbacks and the manager's notices.
#include "ui/window/recording_manager.hpp"

namespace {

constexpr test::state none{};
constexpr test::state opened{.opened = true};
constexpr test::state shown{.opened = true, .visible = true};
constexpr test::state destroyed{.destroyed = true};

// Looks at the toplevel from inside the callbacks.
class WindowOrder : public testing::Test {
  protected:
    WindowOrder() {
        log.watch(window);
        zo_window_set_window_manager(window, manager);
        test::run_tasks();
        log.take();
    }

    void run(bool (*operation)(zo_window_ptr)) {
        EXPECT_TRUE(operation(window));
        test::run_tasks();
    }

    // What was told since the last call, each with the state it saw.
    void expect_told(const std::vector<std::pair<std::string, test::state>>& expected) {
        const auto told = log.take();
        ASSERT_EQ(told.size(), expected.size());
        for (std::size_t i = 0; i < told.size(); ++i) {
            EXPECT_EQ(told[i].what, expected[i].first);
            EXPECT_EQ(told[i].seen, expected[i].second) << told[i].what;
        }
    }

    // Runs inside the callback and inside the manager's notice.
    void look(const std::string& callback, const std::string& notice, std::function<void()> at) {
        for (const std::string& what : {callback, "m:" + notice})
            log.inside(what, [this, at](auto&) {
                ++looked;
                at();
            });
    }

    static GtkWidget* toplevel() { return test::toplevel_named("w"); }

    int looked = 0;
    test::event_log log;
    boost::shared_ptr<test::recording_manager> manager = test::recording_manager_new(log);
    test::scoped_window window;
};

TEST_F(WindowOrder, Open) {
    look("open", "opened", [] {
        ASSERT_TRUE(toplevel());
        EXPECT_TRUE(test::find_class(toplevel(), "window-content"));
        EXPECT_FALSE(gtk_widget_get_visible(toplevel()));
    });
    run(zo_window_open);
    expect_told({{"open", opened}, {"m:opened", opened}});
    EXPECT_EQ(looked, 2);
}

// The callback comes before the widgets, the manager after them.
TEST_F(WindowOrder, Show) {
    run(zo_window_open);
    log.take();
    log.inside("show", [](auto&) { EXPECT_FALSE(gtk_widget_get_visible(toplevel())); });
    log.inside("m:shown", [](auto&) {
        EXPECT_TRUE(gtk_widget_get_visible(toplevel()));
        EXPECT_TRUE(gtk_widget_get_visible(test::find_class(toplevel(), "window-content")));
    });
    run(zo_window_show);
    expect_told({{"show", shown}, {"m:shown", shown}});
}

// Mirrored: here both come after the widgets.
TEST_F(WindowOrder, Hide) {
    run(zo_window_open);
    run(zo_window_show);
    log.take();
    look("hide", "hidden", [] {
        EXPECT_FALSE(gtk_widget_get_visible(toplevel()));
        EXPECT_TRUE(gtk_widget_get_visible(test::find_class(toplevel(), "window-content")));
    });
    run(zo_window_hide);
    expect_told({{"hide", opened}, {"m:hidden", opened}});
    EXPECT_EQ(looked, 2);
}

TEST_F(WindowOrder, ActivateTellsNoManager) {
    run(zo_window_open);
    run(zo_window_show);
    log.take();
    log.inside("activate", [](auto&) {
        EXPECT_TRUE(test::has_class(toplevel(), "active"));
        EXPECT_TRUE(gdk_window_has_native(gtk_widget_get_window(toplevel())));
    });
    run(zo_window_activate);
    expect_told({{"activate", shown}});
}

TEST_F(WindowOrder, RestoreShowsFirst) {
    run(zo_window_open);
    run(zo_window_show);
    zo_window_save(window);
    run(zo_window_hide);
    log.take();
    log.inside("restore", [](auto&) { EXPECT_TRUE(gtk_widget_get_visible(toplevel())); });
    run(zo_window_restore);
    expect_told({{"show", shown}, {"m:shown", shown}, {"restore", shown}});
}

TEST_F(WindowOrder, Close) {
    run(zo_window_open);
    run(zo_window_show);
    log.take();
    look("close", "closed", [this] {
        EXPECT_FALSE(toplevel());
        EXPECT_EQ(zo_window_instance_id(window), 1);
        EXPECT_EQ(zo_window_get_window_manager(window), manager);
    });
    run(zo_window_close);
    expect_told({{"close", none}, {"m:closed", none}});
    EXPECT_EQ(looked, 2);
}

TEST_F(WindowOrder, Destroy) {
    run(zo_window_open);
    run(zo_window_show);
    log.take();
    const zo_object_ptr object = zo_window_to_object(window);
    const auto expect = [this, object](int instance) {
        EXPECT_FALSE(toplevel());
        EXPECT_EQ(zo_window_instance_id(window), instance);
        EXPECT_EQ(zo_window_get_window_manager(window), manager);
        EXPECT_TRUE(object->is_reffed());
    };
    look("close", "closed", [expect] { expect(2); });
    look("destroy", "destroyed", [expect] { expect(2); });
    run([](zo_window_ptr w) { return zo_window_destroy(w); });
    expect_told({{"close", none}, {"m:closed", none}, {"destroy", destroyed}, {"m:destroyed", destroyed}});
    EXPECT_EQ(looked, 4);
    EXPECT_FALSE(zo_window_get_window_manager(window));
    EXPECT_FALSE(object->is_reffed());
    EXPECT_EQ(manager.use_count(), 1);
}

TEST_F(WindowOrder, DestroyOfAWindowThatIsNotOpened) {
    run([](zo_window_ptr w) { return zo_window_destroy(w); });
    expect_told({{"destroy", destroyed}, {"m:destroyed", destroyed}});
    EXPECT_EQ(zo_window_instance_id(window), 1);
}

TEST_F(WindowOrder, ATitleIsToldToTheCallbackAndThenToTheManager) {
    zo_window_set_window_title_text_change_callback(
        window, [this](const zo_window_ptr& w, std::string) { log.note("text", w); });
    zo_window_set_window_id_change_callback(
        window, [this](const zo_window_ptr& w, std::string) { log.note("text", w); });
    zo_window_set_window_class_change_callback(
        window, [this](const zo_window_ptr& w, std::string) { log.note("text", w); });
    zo_window_set_title(window, "not opened");
    test::run_tasks();
    expect_told({{"text", none}});
    run(zo_window_open);
    log.take();
    zo_window_set_title(window, "a");
    zo_window_set_title(window, "a");
    zo_window_set_class(window, "b");
    zo_window_set_id(window, "c");
    test::run_tasks();
    expect_told({{"text", opened}, {"m:title", opened}, {"text", opened}, {"text", opened}});
}

// Posted together, carried out one by one.
TEST_F(WindowOrder, ARowOfOperations) {
    for (const auto operation : {zo_window_open, zo_window_show, zo_window_hide, zo_window_show,
                                 zo_window_activate, zo_window_close, zo_window_open})
        operation(window);
    test::run_tasks();
    expect_told({{"open", opened},
                 {"m:opened", opened},
                 {"show", shown},
                 {"m:shown", shown},
                 {"hide", opened},
                 {"m:hidden", opened},
                 {"show", shown},
                 {"m:shown", shown},
                 {"activate", shown},
                 {"close", none},
                 {"m:closed", none},
                 {"open", opened},
                 {"m:opened", opened}});
}

// A manager that is out of sight sends the window out of sight as well, in its own notice.
TEST_F(WindowOrder, AManagerMayHideTheWindowInItsNotice) {
    run(zo_window_open);
    zo_window_set_bool_property(window, "window-restore-visible", true);
    log.take();
    log.inside("m:shown", [](const zo_window_ptr& w) {
        zo_window_hide(w);
        test::run_tasks();
    });
    run(zo_window_restore);
    expect_told({{"show", shown}, {"m:shown", shown}, {"hide", opened}, {"m:hidden", opened}});
}

}  // namespace
