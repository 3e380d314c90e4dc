// SPDX-License-Identifier: MIT
// The language of the calls fuzzer: what a program may call, on what, and what its callbacks do in turn. The
// real library and the model are given the same program and have to tell the same story.
#pragma once

#include <array>
#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace fuzz {

constexpr int windows_count = 3;
constexpr int managers_count = 2;
constexpr int notifications_count = 3;
constexpr int widget_places = 3;  // of a panel: left, right, toolbar

enum class verb {
    // windows
    open,
    show,
    hide,
    activate,
    restore,
    save,
    move,
    close,
    destroy,
    destroy_for,
    push_event,
    set_title,
    set_popup,
    join,
    leave,
    click_close,
    click_minimize,
    ask_to_close,
    destroy_toplevel,
    click_task,
    click_task_close,
    set_callback,
    clear_callback,
    set_other_callback,
    set_flag,
    add_content,
    drop_and_new,
    // managers
    manager_open,
    manager_show,
    manager_hide,
    manager_close,
    manager_destroy,
    manager_destroy_for,
    manager_extend,
    manager_retract,
    manager_keep,
    manager_set_callback,
    manager_clear_callback,
    manager_add_widget,
    manager_remove_widget,
    // notifications
    notification_show,
    notification_destroy,
    notification_manager,
    notification_click_close,
    notification_click_action,
    notification_destroy_popup,
    notification_click_link,
    notification_set,
    notification_drop_and_new,
    // the process
    null_handle,
    timeout,
    indicator_show,
    indicator_action,
    indicator_destroy,
    run,  // the loop
    count
};

struct call {
    verb what = verb::run;
    int who = 0;             // index among the objects of the verb's kind
    int with = 0;            // a manager's index, a flag, a text, a row of a table
    bool elsewhere = false;  // from another thread, which ends before the next call
};

enum class kind { window, manager, notification };
enum class event {
    open,
    show,
    hide,
    close,
    activate,
    restore,
    destroy,
    close_request,
    title_change,
    pushed,
    action,
    link,
    count
};

// One callback: what it calls, how often it does, and what it answers when it is asked.
struct reaction {
    bool present = false;
    std::vector<call> calls;
    int left = 0;
    bool veto = false;
};

using occasion = std::tuple<kind, int, event>;
using reactions = std::map<occasion, reaction>;

struct step {
    kind of;
    int who;
    event what;
    std::string answers;  // of the calls that were made in it: "1" for true
    bool operator==(const step&) const = default;
};
using story = std::vector<step>;

// What an observer sees of each object when nothing is left to do.
struct picture {
    struct window {
        bool opened, visible, destroyed, toplevel, mapped, task;
        int instance, manager, title;
        std::string label;  // of the title bar; empty without one
        bool operator==(const window&) const = default;
    };
    struct manager {
        bool opened, visible, destroyed, keep;
        std::vector<int> stack;
        bool operator==(const manager&) const = default;
    };
    struct notification {
        bool opened, visible, destroyed;
        bool operator==(const notification&) const = default;
    };
    std::array<window, windows_count> windows;
    std::array<manager, managers_count> managers;
    std::array<notification, notifications_count> notifications;
    std::vector<std::vector<int>> rows;  // the windows whose buttons stand in a panel, in their order; sorted
    bool operator==(const picture&) const = default;
};

// The event whose callback `made` sets or clears.
template <std::size_t N>
event event_of(const call& made, const event (&table)[N]) {
    return table[static_cast<std::size_t>(made.with) % N];
}
constexpr event window_events[] = {event::open,         event::show,    event::hide,    event::close,
                                   event::activate,     event::restore, event::destroy, event::close_request,
                                   event::title_change, event::pushed};
constexpr event manager_events[] = {event::open, event::show, event::hide, event::close, event::destroy};

std::string text_of(const story& told);
std::string text_of(const picture& seen);
std::string text_of(const call& made);

}  // namespace fuzz
