// SPDX-License-Identifier: MIT
#include <zo_ui/platform/linux/client_search_p.hpp>

#include <zo_ui/platform/linux/pipeline_p.hpp>

#include <optional>

namespace zo::platform {
namespace {

struct asked_window {
    Window window;
    property_request state;
    std::optional<place_request> place;
};

// The children of one window.
using siblings = std::vector<asked_window>;

siblings ask_states(Display* display, Atom wm_state, const std::vector<Window>& windows) {
    siblings asked;
    asked.reserve(windows.size());
    for (const Window window : windows)
        asked.push_back({window, {display, window, wm_state, AnyPropertyType, 0}, std::nullopt});
    return asked;
}

void ask_places(Display* display, siblings& windows) {
    for (asked_window& asked : windows)
        if (!asked.place) asked.place.emplace(display, asked.window);
}

Window first_with_state(siblings& windows) {
    for (asked_window& asked : windows)
        if (asked.state.answer().type != None) return asked.window;
    return 0;
}

}  // namespace

Window client_below(Display* display, Atom wm_state, Window window, const std::vector<Window>& children,
                    likely_depth depth) {
    if (wm_state == None) return 0;
    property_request own_state(display, window, wm_state, AnyPropertyType, 0);
    std::vector<siblings> level;
    level.push_back(ask_states(display, wm_state, children));
    if (depth == likely_depth::any) ask_places(display, level.front());
    if (own_state.answer().type != None) return 0;
    Window client = 0;
    while (!level.empty()) {
        std::vector<siblings> next;
        for (siblings& group : level) {
            if (const Window found = first_with_state(group)) {
                // The groups after it come later, with all that is below them. What is below those before it
                // comes earlier still.
                client = found;
                break;
            }
            ask_places(display, group);
            for (asked_window& asked : group) {
                const x_place place = asked.place->answer();
                if (place.children.empty()) continue;
                next.push_back(ask_states(display, wm_state, place.children));
                ask_places(display, next.back());
            }
        }
        level = std::move(next);
    }
    return client;
}

}  // namespace zo::platform
