// SPDX-License-Identifier: MIT
#include <zo_ui/toolkit/process_state_p.hpp>

#include <zo_core/zo_service.hpp>

#include <cstdlib>
#include <utility>

namespace {

// Never destroyed; see the header.
zo::toolkit_state& kept() {
    static auto& state = *new zo::toolkit_state;
    return state;
}

// The last tasks still find their widgets connected, whoever was used first, the tasks or the widgets. A
// callable that goes may destroy widgets and connect others: by then no widget calls it any more, and what it
// finds are new, empty lists.
void forget_everything() {
    zo_system_service_end();
    zo::toolkit_state old = std::exchange(kept(), {});
    old.disconnect();
}

}  // namespace

void zo::toolkit_state::disconnect() {
    const auto each = [](auto&... lists) { (lists.disconnect(), ...); };
    each(button_click_list, toogle_change_list, combobox_change_list, switch_change_list,
         editable_text_change, scale_change_list, menuitem_click_list, label_link_list, draw_list,
         button_press_list, button_release_list, widget_destroy_list);
}

zo::toolkit_state& zo::toolkit() {
    static const int hook = std::atexit(forget_everything);
    static_cast<void>(hook);
    return kept();
}
