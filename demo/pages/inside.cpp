// SPDX-License-Identifier: MIT
#include "code_regions.hpp"
#include "controls.hpp"
#include "page.hpp"
#include "texts.hpp"

#include <iostream>
#include <sstream>

using demo::_;

namespace {

// begin: inside
// Every class counts its living objects by its tag.
constexpr const char* tags[] = {"[zo_window]", "[zo_window_manager]",
                                "[zo_window_event]", "[zo_notification]",
                                "[zo_appindicator]"};

std::string count_of(const char* tag) {
    return std::to_string(zo_object_ref_count(tag));
}

// The library prints how many callables its connectors hold; a stream
// buffer of one's own catches the lines.
std::string listener_statistics() {
    std::ostringstream caught;
    std::streambuf* before = std::cout.rdbuf(caught.rdbuf());
    zo_ui_output_listeners_stats();
    std::cout.rdbuf(before);
    return caught.str();
}

// A thousand objects that live for one turn of the loop, and are gone
// without a trace.
void make_and_drop() {
    std::vector<zo_window_event_ptr> events;
    for (int i = 0; i < 1000; ++i)
        events.push_back(zo_window_event_new(i));
    zo_system_service_exec([held = std::move(events)] {}, "demo",
                           __LINE__);
}
// end: inside

// The number after "name\t- ".
std::string statistic(const std::string& name) {
    std::istringstream lines(listener_statistics());
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with(name + "\t- "))
            return line.substr(name.size() + 3);
    return {};
}

void fill(demo::workshop& shop, GtkWidget* controls) {
    demo::append(controls,
                 demo::heading_new(_("Living objects of each class")));
    std::vector<demo::fact> counters;
    for (const char* tag : tags)
        counters.push_back({tag, [tag] { return count_of(tag); }});
    demo::append(controls, demo::facts_new(counters));
    demo::append(controls,
                 demo::heading_new(_("Callables that connectors hold")));
    std::vector<demo::fact> listeners;
    for (const char* list : {"button_click_list", "toogle_change_list",
                             "combobox_change_list", "switch_change_list",
                             "editable_text_change"})
        listeners.push_back({list, [list] { return statistic(list); }});
    demo::append(controls, demo::facts_new(listeners));
    demo::append(
        controls,
        demo::buttons_new(
            {{"make-and-drop", _("Make 1,000 and drop them"),
              [&shop] {
                  make_and_drop();
                  shop.log.add(
                      "inside",
                      "events: " + count_of("[zo_window_event]"));
                  zo_system_service_exec(
                      [&shop] {
                          shop.log.add(
                              "inside",
                              "events: " + count_of("[zo_window_event]"));
                      },
                      "demo", __LINE__);
              }},
             {"clear-log", _("Clear the log"),
              [&shop] { shop.log.clear(); }}},
            2));
}

}  // namespace

const demo::page demo::inside_page{
    "inside",       N_("Inside"),
    N_("Counters"), N_("What the library holds at this moment."),
    code::inside,   fill,
};
