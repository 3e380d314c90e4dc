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
                                 "manager_open",
                                 "manager_show",
                                 "manager_hide",
                                 "manager_close",
                                 "manager_destroy",
                                 "manager_destroy_for",
                                 "manager_extend",
                                 "manager_retract",
                                 "manager_keep",
                                 "notification_show",
                                 "notification_destroy",
                                 "notification_manager",
                                 "notification_click_close",
                                 "notification_click_action",
                                 "notification_destroy_popup",
                                 "run"};
static_assert(std::size(verbs) == static_cast<std::size_t>(fuzz::verb::count));

constexpr const char* events[] = {"open",    "show",          "hide",         "close",  "activate", "restore",
                                  "destroy", "close_request", "title_change", "pushed", "action"};
static_assert(std::size(events) == static_cast<std::size_t>(fuzz::event::count));

constexpr const char* kinds[] = {"window", "manager", "notification"};

}  // namespace

std::string fuzz::text_of(const call& made) {
    return std::string(verbs[static_cast<int>(made.what)]) + "(" + std::to_string(made.who) + ", " +
           std::to_string(made.with) + ")";
}

std::string fuzz::text_of(const story& told) {
    std::string text;
    for (const step& one : told)
        text += std::string(kinds[static_cast<int>(one.of)]) + std::to_string(one.who) + "." +
                events[static_cast<int>(one.what)] + " ";
    return text;
}

std::string fuzz::text_of(const picture& seen) {
    std::ostringstream text;
    for (const auto& w : seen.windows)
        text << "window opened " << w.opened << " visible " << w.visible << " destroyed " << w.destroyed
             << " toplevel " << w.toplevel << " mapped " << w.mapped << " task " << w.task << " instance "
             << w.instance << " manager " << w.manager << "\n";
    for (const auto& m : seen.managers) {
        text << "manager opened " << m.opened << " visible " << m.visible << " destroyed " << m.destroyed
             << " stack";
        for (const int n : m.stack) text << " " << n;
        text << "\n";
    }
    for (const auto& n : seen.notifications)
        text << "notification opened " << n.opened << " visible " << n.visible << " destroyed " << n.destroyed
             << "\n";
    return text.str();
}
