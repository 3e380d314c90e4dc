// SPDX-License-Identifier: MIT
#include "workshop.hpp"

#include "tray.hpp"

#include <algorithm>
#include <utility>

namespace {

struct place {
    double x;  // share of the width and height of the work area
    double y;
};

// The samples stand over the gallery's code, at the right or, right to left, at the left: its controls stay
// within reach.
place place_of(const demo::workshop& shop, const zo_window_ptr& window) {
    const bool turned = gtk_widget_get_default_direction() == GTK_TEXT_DIR_RTL;
    if (window == shop.notes) return {turned ? 0.09 : 0.62, 0.08};
    if (window == shop.studio) return {turned ? 0.13 : 0.58, 0.5};
    return {0.02, 0.065};
}

// A wide screen has room beside the gallery for the notifications of the process.
int left_of_gallery() {
    constexpr int beside_notifications = 560;
    constexpr int margin = 24;
    return std::min(beside_notifications, zo_ui_workarea_width() - demo::gallery_width() - margin);
}

void move_to_place(const demo::workshop& shop, const zo_window_ptr& window) {
    const place wanted = place_of(shop, window);
    const int x =
        window == shop.gallery ? left_of_gallery() : static_cast<int>(wanted.x * zo_ui_workarea_width());
    zo_window_move(window, zo_ui_workarea_x() + x,
                   zo_ui_workarea_y() + static_cast<int>(wanted.y * zo_ui_workarea_height()));
}

void appear(const demo::workshop& shop, const zo_window_ptr& window) {
    zo_window_open(window);
    move_to_place(shop, window);
    zo_window_show(window);
}

}  // namespace

void demo::log_life_cycle(workshop& shop, const zo_window_ptr& window, const std::string& name) {
    const auto says = [&shop, name](const char* what) {
        return [&shop, name, what](zo_window_ptr) { shop.log.add(name, what); };
    };
    zo_window_set_window_show_callback(window, says("show"));
    zo_window_set_window_hide_callback(window, says("hide"));
    zo_window_set_window_close_callback(window, says("close"));
    zo_window_set_window_activate_callback(window, says("activate"));
    zo_window_set_window_restore_callback(window, says("restore"));
    zo_window_set_window_destroy_callback(window, says("destroy"));
    zo_window_set_window_title_text_change_callback(
        window, [&shop, name](zo_window_ptr, std::string title) { shop.log.add(name, "title: " + title); });
    zo_window_set_window_close_request_callback(window, [&shop, name](zo_window_ptr) {
        shop.log.add(name, shop.ask_before_closing ? "close request: refused" : "close request: granted");
        return shop.ask_before_closing;
    });
}

void demo::start(workshop& shop) {
    zo_window_manager_open(shop.panel);
    zo_window_manager_show(shop.panel);
    for (const zo_window_ptr& window : {shop.gallery, shop.notes, shop.studio})
        zo_window_set_window_manager(window, shop.panel);
    appear(shop, shop.gallery);
    zo_window_activate(shop.gallery);
}

void demo::reopen(workshop& shop, const zo_window_ptr& window) {
    zo_window_close(window);
    appear(shop, window);
    zo_window_activate(window);
}

void demo::quit(workshop& shop) {
    if (std::exchange(shop.leaving, true)) return;
    for (const zo_notification_ptr& notification : shop.raised) zo_notification_destroy(notification);
    remove_tray(shop);
    zo_window_manager_close(shop.panel);
    zo_window_manager_destroy(shop.panel);
    // The panel's end posts that of its windows, so the loop's end is posted behind both.
    const auto leave = [] { zo_system_service_exec([] { gtk_main_quit(); }, "demo", __LINE__); };
    zo_window_manager_on_destroy(shop.panel, [leave](zo_window_manager_ptr) { leave(); });
}

void demo::summon(workshop& shop, const zo_window_ptr& window) {
    if (!is_opened(window)) appear(shop, window);
    zo_window_show(window);
    zo_window_activate(window);
}

bool demo::is_opened(const zo_window_ptr& window) {
    bool opened = false;
    return zo_window_is_opened(window, &opened) && opened;
}
