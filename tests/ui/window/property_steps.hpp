// SPDX-License-Identifier: MIT
// What reads which property: for tests that take properties away or spoil them. For programs that are linked
// with the library's objects.
#pragma once

#include "support/ui.hpp"

#include <zo_ui/zo_window/window_p.hpp>

#include <string>
#include <vector>

namespace test {

inline void erase_property(const zo_window_ptr& window, const std::string& name) {
    const zo_object_ptr object = zo_window_to_object(window);
    object->property_lock(__FILE__, __LINE__);
    EXPECT_EQ(object->property_list.erase(name), 1U) << name;
    object->property_unlock();
}

struct property_step {
    const char* what;
    std::vector<bool (*)(zo_window_ptr)> before;  // posted operations that bring the window there
    void (*run)(_zo_window& window);
    const char* property;
    std::string expression;  // as a report quotes it
    int check;               // the how-manieth under its lock
};

inline std::string reading(const std::string& type, const std::string& property, const char* variable) {
    return "zo_property_get_extract<" + type + ">(property_list,\"" + property + "\"," + variable + ")";
}

inline std::string reading_callback(const std::string& property) {
    return reading("std::function<void(zo_window_ptr)>", property, "&fn");
}

inline std::vector<property_step> property_steps() {
    const auto show = [](_zo_window& w) { w._show(); };
    const auto hide = [](_zo_window& w) { w._hide(); };
    const auto activate = [](_zo_window& w) { w._activate(); };
    const auto restore = [](_zo_window& w) { w._restore(); };
    const auto close = [](_zo_window& w) { w._close(); };
    const auto destroy = [](_zo_window& w) { w._destroy(); };
    const auto request = [](_zo_window& w) { w.request_close(); };
    const auto open = [](_zo_window& w) { w._open(); };
    const std::string above = reading("bool", "keep-above", "&keep_above");
    const std::string instance = reading("int", "instanceId", "&instanceId");
    return {
        {"open", {}, open, "window-opened", reading("bool", "window-opened", "&value"), 1},
        {"open", {}, open, "window-destroyed", reading("bool", "window-destroyed", "&value"), 1},
        {"show", {zo_window_open}, show, "keep-above", above, 1},
        {"show", {zo_window_open}, show, "window-show", reading_callback("window-show"), 2},
        {"hide", {zo_window_open, zo_window_show}, hide, "window-hide", reading_callback("window-hide"), 1},
        {"activate", {zo_window_open, zo_window_show}, activate, "keep-above", above, 1},
        {"activate",
         {zo_window_open, zo_window_show},
         activate,
         "window-activate",
         reading_callback("window-activate"),
         2},
        {"restore",
         {zo_window_open},
         restore,
         "window-restore-visible",
         reading("bool", "window-restore-visible", "&visible"),
         1},
        {"restore", {zo_window_open}, restore, "window-restore", reading_callback("window-restore"), 2},
        {"close", {zo_window_open}, close, "instanceId", instance, 1},
        {"close", {zo_window_open}, close, "window-close", reading_callback("window-close"), 3},
        {"destroy", {}, destroy, "instanceId", instance, 1},
        {"destroy", {}, destroy, "window-destroy", reading_callback("window-destroy"), 3},
        {"close request",
         {zo_window_open},
         request,
         "window-close-request",
         reading("std::function<bool(zo_window_ptr)>", "window-close-request", "&fn"),
         1},
    };
}

}  // namespace test
