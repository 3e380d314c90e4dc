// SPDX-License-Identifier: MIT
// ours_notifications COUNT oldest|random|all
#include <desktop/desktop.hpp>
#include <notifications/burst.hpp>

#include <zo_ui/zo_ui.hpp>

namespace {

zo_notification_ptr notification(int number) {
    const zo_notification_ptr made = zo_notification_new();
    zo_notification_set_title(made, bench::notification_title(number));
    zo_notification_set_content(made, bench::notification_text(number));
    zo_notification_open_show(made);
    return made;
}

}  // namespace

int main(int, char** arguments) {
    const int count = std::atoi(arguments[1]);
    const bench::closing how = bench::closing_of(arguments[2]);
    bench::begin();
    zo_ui_init();
    std::vector<zo_notification_ptr> shown;
    {
        const bench::drawn_popups drawn;
        const bench::step step("show", count);
        for (int i = 0; i < count; ++i) shown.push_back(notification(i));
        bench::turn_until([&] { return drawn.count() >= count; });
        bench::whole_turn();
    }
    {
        const bench::step step("close", count);
        for (const std::size_t index : bench::closing_order(count, how)) {
            zo_notification_destroy(shown[index]);
            shown[index].reset();
            if (how != bench::closing::in_one_turn) bench::whole_turn();
        }
        if (how == bench::closing::in_one_turn) bench::whole_turn();
    }
    return bench::none_left();
}
