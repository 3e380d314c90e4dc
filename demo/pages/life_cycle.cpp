// SPDX-License-Identifier: MIT
#include "code_regions.hpp"
#include "controls.hpp"
#include "page.hpp"
#include "texts.hpp"

using demo::_;
using demo::N_;

namespace {

// begin: life_cycle
struct operation {
    const char* name;
    const char* label;
    bool (*run)(zo_window_ptr);
};

// Each is posted to the loop; what does not fit the state is ignored.
constexpr operation operations[] = {
    {"open", N_("Open"), zo_window_open},
    {"show", N_("Show"), zo_window_show},
    {"activate", N_("Activate"), zo_window_activate},
    {"hide", N_("Hide"), zo_window_hide},
    {"save", N_("Save"), zo_window_save},
    {"restore", N_("Restore"), zo_window_restore},
    {"close", N_("Close"), zo_window_close},
    {"move", N_("Move"),
     [](zo_window_ptr window) {
         return zo_window_move(window, zo_ui_workarea_x() + 40,
                               zo_ui_workarea_y() + 60);
     }},
    {"push-event", N_("Push an event"),
     [](zo_window_ptr window) {
         return zo_window_push_event(window, zo_window_event_new(42));
     }},
};

void log_events(demo::workshop& shop, const zo_window_ptr& window) {
    zo_window_set_window_event_callback(
        window, [&shop](zo_window_ptr, zo_window_event_ptr event) {
            const int code = zo_window_event_get_code(event);
            shop.log.add("sample", "event: " + std::to_string(code));
        });
}
// end: life_cycle

std::string yes_or_no(bool (*ask)(zo_window_ptr, bool*),
                      const zo_window_ptr& window) {
    bool value = false;
    ask(window, &value);
    return value ? _("yes") : _("no");
}

void fill(demo::workshop& shop, GtkWidget* controls) {
    demo::append(controls, demo::subject_chooser_new(shop, {}));
    for (const zo_window_ptr& sample : {shop.studio, shop.notes})
        log_events(shop, sample);
    demo::append(controls,
                 demo::buttons_new(
                     {{"summon", _("Open, show and activate"),
                       [&shop] { demo::summon(shop, shop.subject); }}},
                     1));
    demo::append(controls, demo::heading_new(_("One step at a time")));
    std::vector<demo::button_text> steps;
    for (const operation& step : operations)
        steps.push_back({step.name, _(step.label),
                         [&shop, &step] { step.run(shop.subject); }});
    demo::append(controls, demo::buttons_new(steps));
    demo::append(controls, demo::heading_new(_("State")));
    demo::append(
        controls,
        demo::facts_new({
            {_("Opened"),
             [&shop] {
                 return yes_or_no(zo_window_is_opened, shop.subject);
             }},
            {_("Visible"),
             [&shop] {
                 return yes_or_no(zo_window_is_visible, shop.subject);
             }},
            {_("Times closed"),
             [&shop] {
                 return std::to_string(
                     zo_window_instance_id(shop.subject));
             }},
        }));
    demo::append(
        controls,
        demo::note_new(
            _("A window is new, opened or shown. Closing takes its "
              "widgets down and "
              "keeps its properties, so that it may be opened again.")));
}

}  // namespace

const demo::page demo::life_cycle_page{
    "life-cycle",
    N_("Windows"),
    N_("Life cycle"),
    N_("Open, show, hide and close a window, from any thread."),
    code::life_cycle,
    fill,
};
