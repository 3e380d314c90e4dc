// SPDX-License-Identifier: MIT
#include <core/objects.hpp>

#include <zo_core/zo_object.hpp>
#include <zo_ui/zo_window.hpp>

int main() {
    return bench::objects_main([] {
        const zo_window_ptr window = zo_window_new("");
        zo_object_unref(zo_window_to_object(window));  // what keeps it until it is destroyed
    });
}
