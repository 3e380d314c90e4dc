// SPDX-License-Identifier: MIT
// A process that leaves while widgets are connected. Each scene is a process of its own, which says on
// standard error what happened.
#define ZO_TEST_WITHOUT_UI_INIT
#include "support/ui.hpp"

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

void say(const char* line) { std::fputs(line, stderr); }

GtkWidget* button_new() { return GTK_WIDGET(g_object_ref_sink(gtk_button_new())); }

// To be captured by a callable.
std::shared_ptr<void> on_release(std::function<void()> at_end) {
    return {nullptr, [at_end = std::move(at_end)](void*) { at_end(); }};
}

class ToolkitExit : public testing::Test {
  protected:
    // A scene runs this very program again, since a fork would share the connection to the X server.
    void SetUp() override { testing::GTEST_FLAG(death_test_style) = "threadsafe"; }
};

GtkWidget* last_button = nullptr;

// Whoever is last to leave still presses it.
void press_last_button() {
    gtk_button_clicked(GTK_BUTTON(last_button));
    say("pressed\n");
}

[[noreturn]] void leave_with_a_button_that_is_pressed_later() {
    std::atexit(press_last_button);
    last_button = button_new();
    zo_ui_connect_button_click_signal(last_button, [](GtkWidget*) { say("called\n"); });
    std::exit(0);
}

TEST_F(ToolkitExit, AfterwardsNoSignalReachesACallable) {
    EXPECT_EXIT(leave_with_a_button_that_is_pressed_later(), testing::ExitedWithCode(0), "^pressed\n$");
}

void connect_in_every_way(GtkWidget* button, const std::shared_ptr<void>& held) {
    zo_ui_connect_button_click_signal(button, [held](GtkWidget*) {});
    zo_ui_connect_event_click_signal(button, [held](GtkWidget*, GdkEventButton*) { return 0; });
    zo_ui_connect_event_button_release_signal(button, [held](GtkWidget*, GdkEventButton*) { return 0; });
    zo_ui_connect_on_draw_signal(button, [held](GtkWidget*, cairo_t*) { return false; });
    zo_ui_connect_widget_destroy(button, [held] { say("a destroy callable is called\n"); });
}

// What the callables hold ends in their lists' order; each end destroys all the buttons for good, which are
// in the same and in other lists.
[[noreturn]] void leave_with_captures_that_destroy() {
    static std::vector<GtkWidget*> buttons;
    for (int i = 0; i < 4; ++i) buttons.push_back(gtk_button_new());
    for (GtkWidget* button : buttons) {
        g_object_ref_sink(button);
        connect_in_every_way(button, on_release([] {
                                 say(".");
                                 for (GtkWidget* other : std::exchange(buttons, {})) {
                                     gtk_widget_destroy(other);
                                     g_object_unref(other);
                                 }
                             }));
    }
    std::exit(0);
}

TEST_F(ToolkitExit, WhatCallablesHoldMayDestroyTheWidgets) {
    EXPECT_EXIT(leave_with_captures_that_destroy(), testing::ExitedWithCode(0), "^\\.\\.\\.\\.$");
}

[[noreturn]] void leave_with_captures_that_connect() {
    static GtkWidget* const buttons[] = {button_new(), button_new()};
    for (GtkWidget* button : buttons)
        connect_in_every_way(button, on_release([] {
                                 for (GtkWidget* other : buttons) {
                                     const auto pressed = [](GtkWidget*) { say("pressed "); };
                                     say(zo_ui_connect_button_click_signal(other, pressed) ? "new " : "old ");
                                     gtk_button_clicked(GTK_BUTTON(other));
                                 }
                             }));
    std::exit(0);
}

TEST_F(ToolkitExit, WhatCallablesHoldMayConnectAnew) {
    EXPECT_EXIT(leave_with_captures_that_connect(), testing::ExitedWithCode(0),
                "^new pressed new pressed old pressed old pressed $");
}

// The task was there before the toolkit was first used.
[[noreturn]] void leave_with_a_task_that_presses() {
    static GtkWidget* button = nullptr;
    zo_system_service_exec(
        [] {
            say(zo_system_service_done() ? "done " : "open ");
            gtk_button_clicked(GTK_BUTTON(button));
        },
        "test", 1);
    zo_ui_init();
    button = button_new();
    zo_ui_connect_button_click_signal(
        button, [held = on_release([] { say("gone\n"); })](GtkWidget*) { say("called "); });
    std::exit(0);
}

TEST_F(ToolkitExit, TheLastTasksStillFindTheirWidgetsConnected) {
    EXPECT_EXIT(leave_with_a_task_that_presses(), testing::ExitedWithCode(0), "^done called gone\n$");
}

[[noreturn]] void leave_with_a_request() {
    zo_ui_init();
    GtkClipboard* nobodys = gtk_clipboard_get(gdk_atom_intern("ZO_NOBODY_OWNS_THIS", FALSE));
    zo_ui_get_clipboard_text(nobodys,
                             [held = on_release([] { say("gone\n"); })](GtkClipboard*, const char*) {});
    std::exit(0);
}

TEST_F(ToolkitExit, AnUnansweredRequestLetsItsCallableGo) {
    EXPECT_EXIT(leave_with_a_request(), testing::ExitedWithCode(0), "^gone\n$");
}

}  // namespace
