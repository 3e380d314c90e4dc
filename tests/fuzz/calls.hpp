// SPDX-License-Identifier: MIT
// The language of the calls fuzzer: what a program may call, on what, and what its callbacks do in turn. The
// real library and the model are given the same program and have to tell the same story.
#pragma once

#include <array>
#include <map>
#include <string>
#include <tuple>
#include <utility>
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
    // The codes of what came later stand behind the others', so that older inputs mean what they meant:
    // windows
    click_exit,
    click_hint,
    click_photo,
    click_back,
    click_menu,
    click_menu_entry,
    leave_menu,
    destroy_menu,
    set_title_flags,
    set_built_in_title,
    // managers
    manager_click_lock,
    manager_drop_and_new,
    // the process
    indicator_choose,
    count
};

// What a call is made on.
enum class subject { window, manager, notification, process };
constexpr subject subject_of(verb what) {
    if (what < verb::manager_open || (what >= verb::click_exit && what <= verb::set_built_in_title))
        return subject::window;
    if (what < verb::notification_show ||
        (what >= verb::manager_click_lock && what <= verb::manager_drop_and_new))
        return subject::manager;
    return what < verb::null_handle ? subject::notification : subject::process;
}

// A press of something that few windows have: of the first one, from the named one on, that has it.
constexpr bool looks_further(verb what) { return what >= verb::click_exit && what <= verb::destroy_menu; }

// What a person or the desktop does to a window.
constexpr bool is_press(verb what) {
    return (what >= verb::click_close && what < verb::set_callback) || looks_further(what);
}

enum class title_button { exit, hint, photo, close, minimize, menu, back, count };
constexpr int title_buttons_count = static_cast<int>(title_button::count);
using title_flags = std::array<bool, title_buttons_count>;
constexpr std::pair<verb, title_button> title_presses[] = {
    {verb::click_exit, title_button::exit},         {verb::click_hint, title_button::hint},
    {verb::click_photo, title_button::photo},       {verb::click_close, title_button::close},
    {verb::click_minimize, title_button::minimize}, {verb::click_menu, title_button::menu},
    {verb::click_back, title_button::back}};

constexpr int indicator_actions = 6;

struct call {
    verb what = verb::run;
    int who = 0;             // index among the objects of the verb's kind
    int with = 0;            // a manager's index, a flag, a text, a row of a table
    bool elsewhere = false;  // from another thread, which ends before the next call
};

// The call on the first window, from the named one on, that can make it.
template <typename Make>
bool first_window(const call& made, Make make) {
    call one = made;
    for (int w = 0; w < windows_count; ++w) {
        one.who = (made.who + w) % windows_count;
        if (make(one)) return true;
    }
    return false;
}

enum class kind { window, manager, notification, indicator };
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
    exit,
    hint,
    back,
    photo,
    menu,
    menu_entry,
    chosen,
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
        int instance, title;
        int manager;          // -1: none, -2: one that the program has forgotten
        int menu;             // the tool menu: 0 none, 1 hidden, 2 shown
        std::string label;    // of the title bar; empty without one
        title_flags buttons;  // which of them are in the title bar
        bool operator==(const window&) const = default;
    };
    struct manager {
        bool opened, visible, destroyed, keep;
        int locked;  // as its lock button looks; -1 without a panel
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
    std::vector<int> items;              // of the indicator's menu
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
constexpr event title_events[] = {event::exit, event::hint, event::back, event::photo, event::menu};
constexpr event manager_events[] = {event::open, event::show, event::hide, event::close, event::destroy};

std::string text_of(const story& told);
std::string text_of(const picture& seen);
std::string text_of(const call& made);

}  // namespace fuzz
