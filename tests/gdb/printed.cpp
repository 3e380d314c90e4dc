// SPDX-License-Identifier: MIT
// What a debugger is shown: stops nowhere by itself. No display is needed.
#include <zo_ui/zo_ui.hpp>

#include <cstdio>

namespace {

[[gnu::noinline]] void stop_here(const zo_window_ptr& window, const zo_window_ptr& visible,
                                 const zo_object_ptr& object, const zo_window_ptr& none,
                                 const ::property_list& list) {
    std::printf("%d %d %d %d %zu\n", !!window, !!visible, !!object, !!none, list.size());
}

// As it looks on a display, which is not needed here.
zo_window_ptr window_in_state(const char* id, const char* flag) {
    const zo_window_ptr window = zo_window_new(id);
    zo_property_set<bool>(zo_window_to_object(window)->property_list, flag, true);
    return window;
}

}  // namespace

int main() {
    const zo_window_ptr window = zo_window_new("notes");
    zo_window_set_title(window, "My notes");
    const zo_appindicator_ptr indicator = zo_appindicator_new("mail", "My mail", "mail-read");
    const zo_object_ptr object = zo_appindicator_to_object(indicator);
    ::property_list list;
    zo_property_init<int>(list, "number", 7);
    zo_property_init<std::string>(list, "text", "some text");
    zo_property_init<std::function<void()>>(list, "callback", [] {});
    list.emplace("nothing", boost::any());
    stop_here(window, window_in_state("v", "window-visible"), object, {}, list);
}
