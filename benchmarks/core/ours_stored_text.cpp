// SPDX-License-Identifier: MIT
// A text property by its name, which nothing on the loop follows, as the GObject's.
#include <core/access.hpp>

#include <zo_core/zo_object.hpp>
#include <zo_ui/zo_window.hpp>

namespace {

void set_title(const zo_object_ptr& object, std::string text) {
    object->property_lock(__FILE__, __LINE__);
    zo_property_set<std::string>(object->property_list, "window-title-text", std::move(text));
    object->property_unlock();
}

}  // namespace

int main(int count, char** arguments) {
    const zo_object_ptr object = zo_window_to_object(zo_window_new(""));
    set_title(object, bench::texts[1]);
    return bench::access_main(
        count, arguments, [](int) {}, [&](int turn) { set_title(object, bench::texts[turn % 2]); });
}
