// SPDX-License-Identifier: MIT
// The application, or GTK, destroys the toplevel: the window is closed, and can be opened again.
#include "ui/window/recording_manager.hpp"

namespace {

using handle = const zo_window_ptr&;

void run(handle window, const std::vector<bool (*)(zo_window_ptr)>& operations) {
    for (const auto operation : operations) operation(window);
    test::run_tasks();
}

void destroy_toplevel() {
    GtkWidget* toplevel = test::toplevel_named("w");
    ASSERT_TRUE(toplevel);
    gtk_widget_destroy(toplevel);
}

class WindowOutsideDestroy : public testing::Test {
  protected:
    WindowOutsideDestroy() {
        log.watch(window);
        zo_window_set_window_manager(window, manager);
        test::run_tasks();
        log.take();
    }

    // Closed, and good for another life.
    void expect_closed() {
        EXPECT_EQ(test::state_of(window), test::state());
        EXPECT_TRUE(test::toplevels("zo-window").empty());
        const int instance = zo_window_instance_id(window);
        GtkWidget* label = gtk_label_new("child");
        g_object_ref_sink(label);
        EXPECT_FALSE(zo_window_add_content_child(window, label, true, true, 0, false));
        log.take();
        window.show();
        EXPECT_EQ(log.take_names(), "open m:opened show m:shown");
        EXPECT_TRUE(zo_window_add_content_child(window, label, true, true, 0, false));
        EXPECT_EQ(zo_window_instance_id(window), instance);
        g_object_unref(label);
    }

    test::event_log log;
    boost::shared_ptr<test::recording_manager> manager = test::recording_manager_new(log);
    test::captured_output output;
    test::scoped_window window;
};

TEST_F(WindowOutsideDestroy, WhileOpened) {
    run(window, {zo_window_open});
    log.take();
    log.inside("close", [&](handle w) {
        EXPECT_EQ(test::state_of(w), test::state());
        EXPECT_EQ(zo_window_instance_id(w), 1);
    });
    destroy_toplevel();
    EXPECT_EQ(log.take_names(), "close m:closed");  // at once
    EXPECT_EQ(zo_window_instance_id(window), 1);
    test::run_tasks();
    EXPECT_EQ(log.take_names(), "");
    expect_closed();
    EXPECT_EQ(output.text(), "");
}

TEST_F(WindowOutsideDestroy, WhileShown) {
    window.show();
    log.take();
    destroy_toplevel();
    EXPECT_EQ(log.take_names(), "close m:closed");
    expect_closed();
}

TEST_F(WindowOutsideDestroy, WhileHidden) {
    run(window, {zo_window_open, zo_window_show, zo_window_hide});
    log.take();
    destroy_toplevel();
    EXPECT_EQ(log.take_names(), "close m:closed");
    expect_closed();
}

TEST_F(WindowOutsideDestroy, TakesTheToolMenuAlong) {
    zo_window_set_enable_title_menu(window, true);
    zo_window_set_menu_create_handler(window, [](handle, GtkGrid*) {});
    window.show();
    gtk_button_clicked(GTK_BUTTON(test::find_class(test::toplevel_named("w"), "title-menu")));
    ASSERT_EQ(test::toplevels("tool-menu").size(), 1U);
    destroy_toplevel();
    EXPECT_TRUE(test::toplevels("tool-menu").empty());
    expect_closed();
}

// The toplevel goes first; what the application does about it may take the menu away.
TEST_F(WindowOutsideDestroy, AHandlerMayDestroyTheToolMenuFirst) {
    zo_window_set_enable_title_menu(window, true);
    zo_window_set_menu_create_handler(window, [](handle, GtkGrid*) {});
    const auto destroy_menu = +[](GtkWidget*, gpointer) {
        for (GtkWidget* menu : test::toplevels("tool-menu")) gtk_widget_destroy(menu);
    };
    for (const bool outside : {false, true}) {
        GtkWidget* toplevel = window.show();
        g_signal_connect(toplevel, "destroy", G_CALLBACK(destroy_menu), nullptr);
        gtk_button_clicked(GTK_BUTTON(test::find_class(toplevel, "title-menu")));
        ASSERT_EQ(test::toplevels("tool-menu").size(), 1U);
        if (outside)
            destroy_toplevel();
        else
            run(window, {zo_window_close});
        EXPECT_TRUE(test::toplevels("tool-menu").empty());
    }
    expect_closed();
}

TEST_F(WindowOutsideDestroy, WithOperationsUnderWay) {
    run(window, {zo_window_open, zo_window_show});
    log.take();
    for (const auto operation : {zo_window_hide, zo_window_show, zo_window_activate, zo_window_close})
        operation(window);
    zo_window_move(window, 1, 2);
    zo_window_set_title(window, "late");
    destroy_toplevel();
    test::run_tasks();
    EXPECT_EQ(log.take_names(), "close m:closed");
    expect_closed();
}

struct inside {
    const char* callback;
    std::vector<bool (*)(zo_window_ptr)> steps;
    const char* told;
};

bool destroy(zo_window_ptr window) { return zo_window_destroy(window); }

TEST_F(WindowOutsideDestroy, InsideOwnCallbacks) {
    const inside cases[] = {
        {"open", {zo_window_open}, "open close m:closed"},
        {"show", {zo_window_open, zo_window_show}, "open m:opened show close m:closed"},
        {"hide",
         {zo_window_open, zo_window_show, zo_window_hide},
         "open m:opened show m:shown hide close m:closed"},
        {"activate",
         {zo_window_open, zo_window_show, zo_window_activate},
         "open m:opened show m:shown activate close m:closed"},
        {"restore",
         {zo_window_open, zo_window_show, zo_window_save, zo_window_hide, zo_window_restore},
         "open m:opened show m:shown hide m:hidden show m:shown restore close m:closed"},
        {"m:opened", {zo_window_open}, "open m:opened close m:closed"},
        {"m:shown", {zo_window_open, zo_window_show}, "open m:opened show m:shown close m:closed"},
    };
    for (const inside& c : cases) {
        log.inside(c.callback, [](handle) { destroy_toplevel(); });
        for (const auto step : c.steps) run(window, {step});
        EXPECT_EQ(log.take_names(), c.told) << c.callback;
        expect_closed();
        run(window, {zo_window_close});
        log.take();
    }
}

TEST_F(WindowOutsideDestroy, InsideTheCloseRequest) {
    for (const bool veto : {false, true}) {
        zo_window_set_window_close_request_callback(window, [veto](handle) {
            destroy_toplevel();
            return veto;
        });
        window.show();
        log.take();
        gtk_button_clicked(GTK_BUTTON(test::find_class(test::toplevel_named("w"), "title-close")));
        EXPECT_EQ(log.take_names(), "close m:closed");
        EXPECT_EQ(test::state_of(window), test::state());
    }
}

// The end comes while GTK destroys the toplevel: closing is over, destroying goes on.
TEST_F(WindowOutsideDestroy, WithTheEndInsideTheCloseCallback) {
    run(window, {zo_window_open});
    log.take();
    log.inside("close", [](handle w) { run(w, {destroy}); });
    destroy_toplevel();
    EXPECT_EQ(log.take_names(), "close destroy m:destroyed");
    EXPECT_EQ(test::state_of(window), test::state{.destroyed = true});
    EXPECT_EQ(zo_window_instance_id(window), 2);
}

// An application's handler of "destroy" runs after the window knows: it finds a closed window.
TEST_F(WindowOutsideDestroy, AHandlerOfTheApplicationFindsAClosedWindow) {
    window.show();
    const auto handler = +[](GtkWidget*, const zo_window_ptr* w) {
        EXPECT_EQ(test::state_of(*w), test::state());
        EXPECT_FALSE(zo_window_add_content_child(*w, nullptr, true, true, 0, false));
        run(*w, {zo_window_open, zo_window_show});
    };
    g_signal_connect(test::toplevel_named("w"), "destroy", G_CALLBACK(handler),
                     const_cast<zo_window_ptr*>(&window.get()));
    destroy_toplevel();
    EXPECT_EQ(test::state_of(window), (test::state{.opened = true, .visible = true}));
    EXPECT_EQ(test::toplevels("zo-window").size(), 1U);
}

// Between the hiding and the "destroy" of GTK's own teardown.
TEST_F(WindowOutsideDestroy, WithTheEndInsideAHandlerOfHide) {
    window.show();
    log.take();
    const auto handler = +[](GtkWidget*, const zo_window_ptr* w) { run(*w, {zo_window_close}); };
    g_signal_connect(test::toplevel_named("w"), "hide", G_CALLBACK(handler),
                     const_cast<zo_window_ptr*>(&window.get()));
    destroy_toplevel();
    EXPECT_EQ(log.take_names(), "close m:closed");
    expect_closed();
}

TEST(WindowOutsideDestroyAlone, TheLastHoldOnTheWindowGoesWithTheToplevel) {
    test::event_log log;
    boost::weak_ptr<_zo_window> watched;
    {
        const zo_window_ptr window = zo_window_new("w");
        watched = window;
        log.watch(window);
        run(window, {zo_window_open, zo_window_show});
        zo_object_unref(zo_window_to_object(window));
    }
    ASSERT_FALSE(watched.expired());
    destroy_toplevel();
    EXPECT_TRUE(watched.expired());
    EXPECT_EQ(log.take_names(), "open show close");
}

}  // namespace
