// SPDX-License-Identifier: MIT
// Whatever a callback does to its own window, at once in a nested loop: afterwards flags, widgets and the
// manager's picture agree, and the window can go.
#include "support/lock_probe.hpp"
#include "ui/window/recording_manager.hpp"
#include "ui/window/window_tables.hpp"

namespace {

using handle = const zo_window_ptr&;

struct act {
    const char* name;
    void (*perform)(handle window);
};

const act acts[] = {
    {"nothing", [](handle) {}},
    {"close", [](handle w) { zo_window_close(w); }},
    {"destroy", [](handle w) { zo_window_destroy(w); }},
    {"destroy_with_a_reason", [](handle w) { zo_window_destroy(w, "inside", 1); }},
    {"hide", [](handle w) { zo_window_hide(w); }},
    {"show", [](handle w) { zo_window_show(w); }},
    {"activate", [](handle w) { zo_window_activate(w); }},
    {"hide_and_show", [](handle w) { (zo_window_hide(w), zo_window_show(w)); }},
    {"reopen", [](handle w) { (zo_window_close(w), zo_window_open(w)); }},
    {"reopen_and_show", [](handle w) { (zo_window_close(w), zo_window_open(w), zo_window_show(w)); }},
    {"leave_the_manager", [](handle w) { zo_window_set_window_manager(w, {}); }},
    {"take_the_toplevel",
     [](handle) {
         if (GtkWidget* toplevel = test::toplevel_named("w")) gtk_widget_destroy(toplevel);
     }},
    {"change_the_texts",
     [](handle w) {
         zo_window_set_title(w, "other");
         zo_window_set_class(w, "other");
     }},
    {"empty_the_callbacks",
     [](handle w) {
         for (const test::window_callback& callback : test::window_callbacks) callback.clear(w);
     }},
    {"ask_for_the_lock", [](handle w) { EXPECT_TRUE(test::lock_is_free(w)); }},
};

// How each callback comes about, from a fresh window.
struct way {
    const char* callback;
    std::vector<bool (*)(zo_window_ptr)> steps;
};

bool destroy(zo_window_ptr window) { return zo_window_destroy(window); }
bool push(zo_window_ptr window) { return zo_window_push_event(window, zo_window_event_new(1)); }
bool retitle(zo_window_ptr window) { return zo_window_set_title(window, "changed"); }
bool reclass(zo_window_ptr window) { return zo_window_set_class(window, "changed"); }

bool press_close(zo_window_ptr) {
    gtk_button_clicked(GTK_BUTTON(test::find_class(test::toplevel_named("w"), "title-close")));
    return true;
}

const way ways[] = {
    {"open", {zo_window_open}},
    {"show", {zo_window_open, zo_window_show}},
    {"hide", {zo_window_open, zo_window_show, zo_window_hide}},
    {"activate", {zo_window_open, zo_window_show, zo_window_activate}},
    {"restore", {zo_window_open, zo_window_show, zo_window_save, zo_window_hide, zo_window_restore}},
    {"close", {zo_window_open, zo_window_show, zo_window_close}},
    {"destroy", {zo_window_open, zo_window_show, destroy}},
    {"request", {zo_window_open, zo_window_show, press_close}},
    {"event", {zo_window_open, zo_window_show, push}},
    {"title", {zo_window_open, zo_window_show, retitle}},
    {"class", {zo_window_open, zo_window_show, reclass}},
    {"m:connect", {}},
    {"m:disconnect",
     {zo_window_open, zo_window_show, [](zo_window_ptr w) { return zo_window_set_window_manager(w, {}); }}},
    {"m:opened", {zo_window_open}},
    {"m:shown", {zo_window_open, zo_window_show}},
    {"m:hidden", {zo_window_open, zo_window_show, zo_window_hide}},
    {"m:closed", {zo_window_open, zo_window_show, zo_window_close}},
    {"m:destroyed", {zo_window_open, zo_window_show, destroy}},
    {"m:title", {zo_window_open, zo_window_show, retitle}},
};

class WindowReentry : public testing::TestWithParam<std::tuple<way, act>> {
  protected:
    WindowReentry() {
        log.watch(window);
        zo_window_set_window_close_request_callback(window, [this](handle w) {
            log.note("request", w);
            return false;
        });
        zo_window_set_window_event_callback(window,
                                            [this](handle w, zo_window_event_ptr) { log.note("event", w); });
        zo_window_set_window_title_text_change_callback(
            window, [this](handle w, std::string) { log.note("title", w); });
        zo_window_set_window_class_change_callback(window,
                                                   [this](handle w, std::string) { log.note("class", w); });
    }

    void expect_agreement() {
        const test::state s = test::state_of(window);
        const std::vector<GtkWidget*> trees = test::toplevels("zo-window");
        EXPECT_EQ(trees.size(), s.opened ? 1U : 0U) << s;
        EXPECT_EQ(!trees.empty() && gtk_widget_get_visible(trees[0]), s.visible) << s;
        EXPECT_FALSE(s.opened && s.destroyed) << s;
        EXPECT_FALSE(s.visible && !s.opened) << s;
        // What the manager was told last, if the window is still its own.
        bool known_open = false;
        bool known_shown = false;
        for (const auto& entry : log.take()) {
            if (entry.what == "m:opened") known_open = true;
            // A close that its own callback took back is not told to the manager.
            if (entry.what == "close" || entry.what == "m:closed" || entry.what == "m:destroyed")
                known_open = known_shown = false;
            if (entry.what == "m:shown") known_shown = true;
            if (entry.what == "m:hidden") known_shown = false;
        }
        if (!zo_window_get_window_manager(window)) return;
        EXPECT_EQ(known_open, s.opened) << s;
        EXPECT_EQ(known_shown, s.visible) << s;
    }

    test::event_log log;
    boost::shared_ptr<test::recording_manager> manager = test::recording_manager_new(log);
    test::scoped_window window;
};

TEST_P(WindowReentry, LeavesEverythingInAgreement) {
    const auto& [way, act] = GetParam();
    bool performed = false;
    log.inside(way.callback, [&, perform = act.perform](handle w) {
        perform(w);
        test::run_tasks();
        performed = true;
    });
    zo_window_set_window_manager(window, manager);
    test::run_tasks();
    for (const auto step : way.steps) {
        step(window);
        test::run_tasks();
    }
    EXPECT_TRUE(performed);
    expect_agreement();
}

// The same with only a posted act, carried out after the callback.
TEST_P(WindowReentry, PostedLeavesEverythingInAgreement) {
    const auto& [way, act] = GetParam();
    log.inside(way.callback, act.perform);
    zo_window_set_window_manager(window, manager);
    for (const auto step : way.steps) {
        if (step == press_close) test::run_tasks();
        step(window);
    }
    test::run_tasks();
    expect_agreement();
}

INSTANTIATE_TEST_SUITE_P(Every, WindowReentry,
                         testing::Combine(testing::ValuesIn(ways), testing::ValuesIn(acts)),
                         [](const auto& tested) {
                             std::string name = std::get<0>(tested.param).callback;
                             if (name[1] == ':') name = "manager_" + name.substr(2);
                             return name + "_" + std::get<1>(tested.param).name;
                         });

}  // namespace
