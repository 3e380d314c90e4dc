// SPDX-License-Identifier: MIT
// A stranger's program: knows the installed headers only. Opens a window, sees it on screen, destroys it.
#include <zo_core/zo_core.hpp>
#include <zo_ui/platform/linux.hpp>
#include <zo_ui/zo_ui.hpp>

#include "signatures.hpp"

#include <cstdio>

namespace {

// An object of an application's own class.
class counted : public _zo_object {
  public:
    counted() { zo_object_ref_increment("[counted]"); }
    ~counted() override { zo_object_ref_decrement("[counted]"); }
    std::string get_type() override { return "[counted]"; }
};

bool properties_work() {
    const zo_object_ptr object(new counted);
    ::property_list& list = object->property_list;
    int number = 0;
    boost::any any;
    object->property_lock(__FILE__, __LINE__);
    const bool works = zo_property_init<int>(list, "number", 1) &&
                       !zo_property_init<int>(list, "number", 2) &&
                       zo_property_set<int>(list, std::string("number"), 3) &&
                       zo_property_get_extract<int>(list, "number", &number) &&
                       zo_property_get(list, "number", any) && list.count("number") == 1 && number == 3;
    object->property_unlock();
    return works && object->to_object() == object && zo_object_ref_count("[counted]") == 1;
}

int fail(const char* what) {
    std::printf("consumer: %s\n", what);
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    check_core_signatures();
    check_ui_signatures();
    check_linux_signatures();
    if (!properties_work() || zo_object_ref_count("[counted]") != 0) return fail("properties");

    if (!gtk_init_check(&argc, &argv)) return fail("no display");
    zo_ui_init();
    std::string order;
    zo_window_ptr window = zo_window_new("consumer");
    zo_window_set_window_open_callback(window, [&](zo_window_ptr w) {
        order += "open ";
        zo_window_add_content_child(w, gtk_label_new("hello"), true, true, 0, false);
    });
    zo_window_set_window_show_callback(window, [&](zo_window_ptr) { order += "show "; });
    zo_window_set_window_event_callback(window, [&](zo_window_ptr w, zo_window_event_ptr) {
        order += "event ";
        zo_window_destroy(w);
    });
    zo_window_set_window_destroy_callback(window, [&](zo_window_ptr) {
        order += "destroy";
        gtk_main_quit();
    });
    zo_window_open(window);
    zo_window_show(window);
    zo_window_push_event(window, zo_window_event_ptr(new _zo_window_event(7)));
    window.reset();
    gtk_main();
    if (order != "open show event destroy") return fail(order.c_str());
    return zo_object_ref_count("[zo_window]") == 0 ? 0 : fail("a window was left behind");
}
