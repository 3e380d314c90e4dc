// SPDX-License-Identifier: MIT
#include "fuzz/calls.hpp"

#include <sstream>

namespace {

constexpr const char* verbs[] = {"open",
                                 "show",
                                 "hide",
                                 "activate",
                                 "restore",
                                 "save",
                                 "move",
                                 "close",
                                 "destroy",
                                 "destroy_for",
                                 "push_event",
                                 "set_title",
                                 "set_popup",
                                 "join",
                                 "leave",
                                 "click_close",
                                 "click_minimize",
                                 "ask_to_close",
                                 "destroy_toplevel",
                                 "click_task",
                                 "click_task_close",
                                 "set_callback",
                                 "clear_callback",
                                 "set_other_callback",
                                 "set_flag",
                                 "add_content",
                                 "drop_and_new",
                                 "manager_open",
                                 "manager_show",
                                 "manager_hide",
                                 "manager_close",
                                 "manager_destroy",
                                 "manager_destroy_for",
                                 "manager_extend",
                                 "manager_retract",
                                 "manager_keep",
                                 "manager_set_callback",
                                 "manager_clear_callback",
                                 "manager_add_widget",
                                 "manager_remove_widget",
                                 "notification_show",
                                 "notification_destroy",
                                 "notification_manager",
                                 "notification_click_close",
                                 "notification_click_action",
                                 "notification_destroy_popup",
                                 "notification_click_link",
                                 "notification_set",
                                 "notification_drop_and_new",
                                 "null_handle",
                                 "timeout",
                                 "indicator_show",
                                 "indicator_action",
                                 "indicator_destroy",
                                 "run",
                                 "click_exit",
                                 "click_hint",
                                 "click_photo",
                                 "click_back",
                                 "click_menu",
                                 "click_menu_entry",
                                 "leave_menu",
                                 "destroy_menu",
                                 "set_title_flags",
                                 "set_built_in_title",
                                 "manager_click_lock",
                                 "manager_drop_and_new",
                                 "indicator_choose"};
static_assert(std::size(verbs) == static_cast<std::size_t>(fuzz::verb::count));

constexpr const char* events[] = {"open",    "show",    "hide",          "close",        "activate",
                                  "restore", "destroy", "close_request", "title_change", "pushed",
                                  "action",  "link",    "exit",          "hint",         "back",
                                  "photo",   "menu",    "menu_entry",    "chosen"};
static_assert(std::size(events) == static_cast<std::size_t>(fuzz::event::count));

constexpr const char* kinds[] = {"window", "manager", "notification", "indicator"};

}  // namespace

std::string fuzz::text_of(const call& made) {
    return std::string(verbs[static_cast<int>(made.what)]) + "(" + std::to_string(made.who) + ", " +
           std::to_string(made.with) + (made.elsewhere ? ", elsewhere)" : ")");
}

std::string fuzz::text_of(const story& told) {
    std::string text;
    for (const step& one : told)
        text += std::string(kinds[static_cast<int>(one.of)]) + std::to_string(one.who) + "." +
                events[static_cast<int>(one.what)] + (one.answers.empty() ? " " : "(" + one.answers + ") ");
    return text;
}

std::string fuzz::text_of(const picture& seen) {
    std::ostringstream text;
    for (const auto& w : seen.windows) {
        text << "window opened " << w.opened << " visible " << w.visible << " destroyed " << w.destroyed
             << " toplevel " << w.toplevel << " mapped " << w.mapped << " task " << w.task << " instance "
             << w.instance << " manager " << w.manager << " title " << w.title << " menu " << w.menu
             << " label " << w.label << " buttons ";
        for (const bool there : w.buttons) text << there;
        text << "\n";
    }
    for (const auto& m : seen.managers) {
        text << "manager opened " << m.opened << " visible " << m.visible << " destroyed " << m.destroyed
             << " keep " << m.keep << " locked " << m.locked << " stack";
        for (const int n : m.stack) text << " " << n;
        text << "\n";
    }
    for (const auto& n : seen.notifications)
        text << "notification opened " << n.opened << " visible " << n.visible << " destroyed " << n.destroyed
             << "\n";
    for (const auto& row : seen.rows) {
        text << "row";
        for (const int w : row) text << " " << w;
        text << "\n";
    }
    text << "items";
    for (const int item : seen.items) text << " " << item;
    text << "\n";
    return text.str();
}
