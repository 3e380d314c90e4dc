// SPDX-License-Identifier: MIT
#include <zo_ui/platform/linux/search_p.hpp>

#include <zo_ui/platform/linux/pipeline_p.hpp>

using zo::platform::place_request;

namespace {

struct wanted {
    const char* res_name;
    const char* res_class;
};

Window search(Display* display, Window window, const wanted& what);

Window search_children(Display* display, Window window, const wanted& what) {
    for (const Window child : place_request(display, window).answer().children)
        if (const Window found = search(display, child, what)) return found;
    return 0;
}

// For windows that are below a root and so have a top window, which need not be asked for again.
Window search(Display* display, Window window, const wanted& what) {
    std::string res_name, res_class;
    const Window client = get_named_window(display, window);
    if (client != 0 && get_window_class(display, client, res_name, res_class) && res_name == what.res_name &&
        res_class == what.res_class)
        return client;
    return search_children(display, window, what);
}

}  // namespace

Window find_window_by_class(Display* display, Window window, const char* res_name, const char* res_class) {
    if (!display) return 0;
    const wanted what{res_name, res_class};
    // 0 stands for the root, which then counts as its own top; a root that is named has none.
    if (window == 0) return search(display, DefaultRootWindow(display), what);
    return get_top_window(display, window) != 0 ? search(display, window, what)
                                                : search_children(display, window, what);
}
