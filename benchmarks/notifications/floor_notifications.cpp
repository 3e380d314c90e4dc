// SPDX-License-Identifier: MIT
// floor_notifications COUNT oldest|random|all [bare]: the same popups in plain GTK calls, with remembered
// sizes, and stacked once a turn; bare ones go without the toolkit's walk over all windows.
#include <desktop/desktop.hpp>
#include <notifications/burst.hpp>
#include <notifications/floor_popup.hpp>

#include <memory>

namespace {

using popups = std::vector<std::unique_ptr<floor_popup::popup>>;

popups show(int count) {
    popups shown;
    int y = floor_popup::top;
    for (int i = 0; i < count; ++i) {
        shown.push_back(std::make_unique<floor_popup::popup>(
            floor_popup::show(bench::notification_title(i), bench::notification_text(i), y)));
        y += shown.back()->height + floor_popup::gap;
    }
    return shown;
}

void restack(const popups& shown) {
    int y = floor_popup::top;
    for (const auto& each : shown) {
        if (!each) continue;
        floor_popup::move(*each, y);
        y += each->height + floor_popup::gap;
    }
}

void end_turn(const popups& shown) {
    restack(shown);
    bench::whole_turn();
}

// GTK takes the background of every window away and gives it back when it unmaps a popup. Of one that it does
// not know to be mapped the X server takes all off the screen.
void forget_mapped(GtkWidget* popup) {
    gtk_widget_unmap(gtk_bin_get_child(GTK_BIN(popup)));
    gtk_widget_set_mapped(popup, FALSE);
}

}  // namespace

int main(int, char** arguments) {
    const int count = std::atoi(arguments[1]);
    const bench::closing how = bench::closing_of(arguments[2]);
    const bool bare = arguments[3] != nullptr;
    bench::begin();
    popups shown;
    {
        const bench::drawn_popups drawn;
        const bench::step step("show", count);
        shown = show(count);
        bench::turn_until([&] { return drawn.count() >= count; });
        bench::whole_turn();
    }
    {
        const bench::step step("close", count);
        for (const std::size_t index : bench::closing_order(count, how)) {
            if (bare) forget_mapped(shown[index]->window);
            gtk_widget_destroy(shown[index]->window);
            shown[index].reset();
            if (how != bench::closing::in_one_turn) end_turn(shown);
        }
        if (how == bench::closing::in_one_turn) end_turn(shown);
    }
    return bench::none_left();
}
