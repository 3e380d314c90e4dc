// SPDX-License-Identifier: MIT
// Every operation in every state: the state it leads to, and what it tells on the way.
#include "ui/window/event_log.hpp"

namespace {

enum stage { fresh, opened, shown, hidden, closed, destroyed };
constexpr const char* stage_names[] = {"fresh", "opened", "shown", "hidden", "closed", "destroyed"};

enum operation { open, show, hide, activate, restore_visible, restore_hidden, close, destroy, move, save };
constexpr const char* operation_names[] = {
    "open",           "show",  "hide",    "activate", "restore_visible",
    "restore_hidden", "close", "destroy", "move",     "save"};

struct transition {
    stage from;
    operation what;
    stage to;
    const char* told;
};

// What is not listed changes nothing and tells nothing.
constexpr transition transitions[] = {
    {fresh, open, opened, "open"},    {fresh, destroy, destroyed, "destroy"},
    {opened, show, shown, "show"},    {opened, restore_visible, shown, "show restore"},
    {opened, close, closed, "close"}, {opened, destroy, destroyed, "close destroy"},
    {shown, hide, hidden, "hide"},    {shown, activate, shown, "activate"},
    {shown, close, closed, "close"},  {shown, destroy, destroyed, "close destroy"},
    {hidden, show, shown, "show"},    {hidden, restore_visible, shown, "show restore"},
    {hidden, close, closed, "close"}, {hidden, destroy, destroyed, "close destroy"},
    {closed, open, opened, "open"},   {closed, destroy, destroyed, "destroy"},
};

test::state flags_of(stage s) {
    switch (s) {
        case opened:
        case hidden:
            return {.opened = true};
        case shown:
            return {.opened = true, .visible = true};
        case destroyed:
            return {.destroyed = true};
        default:
            return {};
    }
}

bool post(const zo_window_ptr& window, operation what) {
    switch (what) {
        case open:
            return zo_window_open(window);
        case show:
            return zo_window_show(window);
        case hide:
            return zo_window_hide(window);
        case activate:
            return zo_window_activate(window);
        case restore_visible:
        case restore_hidden:
            zo_window_set_bool_property(window, "window-restore-visible", what == restore_visible);
            return zo_window_restore(window);
        case close:
            return zo_window_close(window);
        case destroy:
            return zo_window_destroy(window);
        case move:
            return zo_window_move(window, 5, 6);
        case save:
            return zo_window_save(window);
    }
    return false;
}

void bring_to(const zo_window_ptr& window, stage s) {
    const std::vector<operation> ways[] = {
        {}, {open}, {open, show}, {open, show, hide}, {open, close}, {open, show, destroy}};
    for (const operation what : ways[s]) post(window, what);
    test::run_tasks();
    ASSERT_EQ(test::state_of(window), flags_of(s)) << stage_names[s];
}

class WindowLifecycle : public testing::TestWithParam<std::tuple<stage, operation>> {
  protected:
    test::event_log log;
    test::captured_output output;
    test::scoped_window window;
};

TEST_P(WindowLifecycle, Step) {
    const auto [from, what] = GetParam();
    transition expected{from, what, from, ""};
    for (const transition& t : transitions)
        if (t.from == from && t.what == what) expected = t;
    bring_to(window, from);
    log.watch(window);
    const int instance = zo_window_instance_id(window);

    EXPECT_TRUE(post(window, what));
    EXPECT_EQ(test::state_of(window), flags_of(from)) << "before the task";
    EXPECT_EQ(log.take_names(), "") << "before the task";
    test::run_tasks();

    EXPECT_EQ(log.take_names(), expected.told);
    EXPECT_EQ(test::state_of(window), flags_of(expected.to));
    const bool ends_a_tree = flags_of(from).opened && !flags_of(expected.to).opened;
    const bool ends = expected.to == destroyed && from != destroyed;
    EXPECT_EQ(zo_window_instance_id(window), instance + ends_a_tree + ends);
    GtkWidget* toplevel = test::toplevel_named("w");
    EXPECT_EQ(toplevel != nullptr, flags_of(expected.to).opened);
    EXPECT_EQ(toplevel && gtk_widget_get_visible(toplevel), flags_of(expected.to).visible);
    EXPECT_EQ(output.text(), "");
}

INSTANTIATE_TEST_SUITE_P(Of, WindowLifecycle,
                         testing::Combine(testing::Values(fresh, opened, shown, hidden, closed, destroyed),
                                          testing::Values(open, show, hide, activate, restore_visible,
                                                          restore_hidden, close, destroy, move, save)),
                         [](const auto& step) {
                             return std::string(stage_names[std::get<0>(step.param)]) + "_" +
                                    operation_names[std::get<1>(step.param)];
                         });

// The destroyed mark alone stops every operation, whatever the other flags say.
TEST(WindowGuards, ADestroyedMarkStopsEveryOperation) {
    for (const stage s : {opened, shown, hidden, closed}) {
        for (const operation what : {open, show, hide, activate, restore_visible, close, destroy}) {
            test::event_log log;
            test::scoped_window window;
            bring_to(window, s);
            log.watch(window);
            zo_window_set_bool_property(window, "window-destroyed", true);
            post(window, what);
            test::run_tasks();
            EXPECT_EQ(log.take_names(), "") << stage_names[s] << " " << operation_names[what];
            EXPECT_EQ(test::toplevel_named("w") != nullptr, flags_of(s).opened);
            zo_window_set_bool_property(window, "window-destroyed", false);
            EXPECT_EQ(test::state_of(window), flags_of(s));
        }
    }
}

// Without the flag an existing toplevel is not moved or renamed, but still keeps a second tree from being
// built.
TEST(WindowGuards, AToplevelWithoutTheFlagIsLeftAlone) {
    test::event_log log;
    test::scoped_window window;
    GtkWidget* toplevel = window.open();
    log.watch(window);
    int x = 0;
    int y = 0;
    gtk_window_get_position(GTK_WINDOW(toplevel), &x, &y);
    zo_window_set_bool_property(window, "window-opened", false);
    zo_window_open(window);
    zo_window_move(window, x + 70, y + 80);
    zo_window_set_id(window, "other");
    test::run_tasks();
    EXPECT_STREQ(gtk_widget_get_name(toplevel), "w");
    int moved_x = 0;
    int moved_y = 0;
    gtk_window_get_position(GTK_WINDOW(toplevel), &moved_x, &moved_y);
    EXPECT_EQ(std::pair(moved_x, moved_y), std::pair(x, y));
    EXPECT_EQ(log.take_names(), "");
    EXPECT_FALSE(test::state_of(window).opened);
    EXPECT_EQ(test::toplevels("zo-window"), std::vector<GtkWidget*>{toplevel});
    zo_window_set_bool_property(window, "window-opened", true);
}

// The flag without a tree: an application that writes it gets no widget of another window.
TEST(WindowGuards, TheOpenedFlagAloneShowsNothing) {
    test::scoped_window window;
    zo_window_set_bool_property(window, "window-opened", true);
    for (const operation what : {show, activate, hide, move, restore_visible, close}) post(window, what);
    test::run_tasks();
    EXPECT_TRUE(test::toplevels("zo-window").empty());
}

TEST(WindowInstance, CountsClosingsAndTheEnd) {
    test::scoped_window window;
    for (int round = 0; round < 5; ++round) {
        EXPECT_EQ(zo_window_instance_id(window), round);
        bring_to(window, shown);
        EXPECT_EQ(zo_window_instance_id(window), round);
        post(window, close);
        test::run_tasks();
    }
    bring_to(window, opened);
    post(window, destroy);
    test::run_tasks();
    EXPECT_EQ(zo_window_instance_id(window), 7);
    post(window, destroy);
    post(window, close);
    test::run_tasks();
    EXPECT_EQ(zo_window_instance_id(window), 7);
}

// A task keeps the window, also when nobody else does any more.
TEST(WindowLife, APostedOperationHoldsTheWindow) {
    test::event_log log;
    boost::weak_ptr<_zo_window> watched;
    {
        const zo_window_ptr window = zo_window_new("held");
        watched = window;
        log.watch(window);
        zo_window_open(window);
        zo_window_show(window);
        zo_window_close(window);
        zo_object_unref(zo_window_to_object(window));
    }
    EXPECT_FALSE(watched.expired());
    test::run_tasks();
    EXPECT_EQ(log.take_names(), "open show close");
    EXPECT_TRUE(watched.expired());
}

// GTK may still call into an opened window: its toplevel keeps it.
TEST(WindowLife, AnOpenedWindowIsHeldByItsToplevel) {
    test::event_log log;
    boost::weak_ptr<_zo_window> watched;
    {
        const zo_window_ptr window = zo_window_new("held");
        watched = window;
        log.watch(window);
        bring_to(window, shown);
        zo_object_unref(zo_window_to_object(window));
    }
    EXPECT_FALSE(watched.expired());
    zo_window_close(watched.lock());
    test::run_tasks();
    EXPECT_EQ(log.take_names(), "open show close");
    EXPECT_TRUE(watched.expired());
}

}  // namespace
