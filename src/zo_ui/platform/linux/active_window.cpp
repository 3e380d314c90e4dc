// SPDX-License-Identifier: MIT
// Finding the active window, by the input focus rather than by what the window manager announces.
#include <zo_ui/platform/linux.hpp>

#include <zo_ui/platform/linux/client_search_p.hpp>
#include <zo_ui/platform/linux/connection_p.hpp>
#include <zo_ui/platform/linux/window_facts_p.hpp>

#include <optional>

using namespace zo::platform;

namespace {

// 0 for none, with the windows in it.
struct top_window {
    Window window = 0;
    std::vector<Window> children;
    likely_depth client = likely_depth::any;
};

// With the atom, asks on the way whether the child of the top that was passed is the client.
top_window top_of(Display* display, Window window, Atom wm_state = None) {
    // The focus may be on nothing, on whatever root the pointer is on, or on a root: no top there, and none
    // to ask for.
    if (window == PointerRoot || is_root(display, window)) return {};
    likely_depth client = likely_depth::any;
    while (window != 0) {
        place_request asked(display, window);
        std::optional<property_request> state;
        if (wm_state != None) state.emplace(display, window, wm_state, AnyPropertyType, 0);
        x_place place = asked.answer();
        if (place.root == 0) return {};
        if (place.parent == place.root) return {window, std::move(place.children), client};
        client = state && state->answer().type != None ? likely_depth::child : likely_depth::any;
        window = place.parent;
    }
    return {};
}

// The focus is asked for before the atoms, which then come with it.
struct active_window {
    explicit active_window(Display* display) : focus(display), atoms(display) {
        const top_window top = top_of(display, focus.answer(), atoms.wm_state);
        if (top.window != 0)
            window = client_below(display, atoms.wm_state, top.window, top.children, top.client);
    }

    focus_request focus;
    known_atoms atoms;
    Window window = 0;
};

}  // namespace

Window get_focus_window(Display* display) { return display ? focus_request(display).answer() : 0; }

Window get_top_window(Display* display, Window window) {
    return display ? top_of(display, window).window : 0;
}

Window get_named_window(Display* display, Window window) {
    if (!display || window == 0 || window == PointerRoot) return 0;
    place_request place(display, window);
    const known_atoms atoms(display);
    return client_below(display, atoms.wm_state, window, place.answer().children);
}

Window getActiveWindow(Display* display) { return display ? active_window(display).window : 0; }

Window getActiveWindow() {
    const own_connection own;
    return getActiveWindow(own.display());
}

bool getActiveWindowInfo(unsigned long& window, std::string& title, std::string& res_name,
                         std::string& res_class, int& pid) {
    window = 0;
    pid = 0;
    const own_connection own;
    Display* display = own.display();
    if (!display) return false;
    const active_window active(display);
    if (active.window == 0) return false;
    name_request name(display, active.window);
    class_request class_hint(display, active.window);
    pid_request process(display, active.window, active.atoms);
    if (!name.answer(title) || !class_hint.answer(res_name, res_class)) return false;
    pid = process.answer();
    if (pid <= 0) return false;
    window = active.window;
    return true;
}
