// SPDX-License-Identifier: MIT
// Building the panel:
//
//     panel ─ #manager-fixed ─ event box ─ #manager-wrapper ─┬─ .manager-taskbox ─┬─ left: widgets, lock
//     button
//                                                            │                    ├─ scroller ─ center: task
//                                                            buttons ├─ .manager-toolbar  └─ right: widgets
//                                                            └─ ...
#include <zo_ui/zo_window_manager/manager_p.hpp>

#include <zo_ui/platform/linux/on_top_p.hpp>
#include <zo_ui/toolkit/style_p.hpp>
#include <zo_ui/zo_ui_connect.hpp>
#include <zo_ui/zo_ui_screen.hpp>
#include <zo_ui/zo_ui_tools.hpp>
#include <zo_ui/zo_ui_widgets.hpp>
#include <zo_ui/zo_window_manager/task_row_p.hpp>

#include <algorithm>

namespace {

constexpr int row_height = 34;
constexpr int lock_size = 32;
constexpr int bottom_margin = 1;
constexpr int not_scrolled = 50;  // what the first layout leaves of the screen beside the scroller

GtkWidget* region_new(const char* style_class) {
    GtkWidget* region = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    zo::add_class(region, style_class);
    return region;
}

}  // namespace

void _zo_window_manager::build_panel() {
    build_panel_window();
    build_left_region();
    build_center_region();
    build_right_region();
    auto* panel = GTK_WINDOW(widgets_.window);
    gtk_container_add(GTK_CONTAINER(panel), widgets_.fixed);
    zo_ui_gtk_fix_visual_rgba(widgets_.window);
    g_signal_connect(panel, "screen-changed", G_CALLBACK(zo_ui_gtk_fix_visual_rgba_on_screen_changed),
                     nullptr);
    set_opened(true);
    connect_panel();
    // The callable holds the manager for as long as GTK may call into it.
    zo_ui_connect_widget_destroy(
        widgets_.window, [self = handle(), window = widgets_.window] { self->on_panel_destroyed(window); });
    widgets_.x = zo_ui_screen_x();
    widgets_.y = zo_ui_screen_y();
    gtk_window_move(panel, widgets_.x, widgets_.y);
}

void _zo_window_manager::build_panel_window() {
    widgets_.window = gtk_window_new(GTK_WINDOW_POPUP);
    auto* panel = GTK_WINDOW(widgets_.window);
    gtk_widget_set_can_focus(widgets_.window, TRUE);
    gtk_window_set_skip_taskbar_hint(panel, TRUE);
    gtk_window_set_skip_pager_hint(panel, TRUE);
    gtk_window_set_decorated(panel, FALSE);
    gtk_window_set_resizable(panel, FALSE);
    gtk_window_set_keep_above(panel, TRUE);
    zo::platform::keep_on_top(widgets_.window);
    zo::add_class(widgets_.window, "zo-manager");
    zo::add_class(widgets_.window, "tab-manager");

    widgets_.fixed = gtk_fixed_new();
    gtk_widget_set_name(widgets_.fixed, "manager-fixed");
    widgets_.event_box = gtk_event_box_new();
    gtk_widget_set_name(widgets_.event_box, "manager-wrapper-event_box");
    widgets_.wrapper = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
    gtk_widget_set_name(widgets_.wrapper, "manager-wrapper");
    gtk_widget_set_size_request(widgets_.wrapper, zo_ui_screen_width(), row_height);
    gtk_container_add(GTK_CONTAINER(widgets_.event_box), widgets_.wrapper);
    gtk_fixed_put(GTK_FIXED(widgets_.fixed), widgets_.event_box, 0, 0);
    gtk_widget_set_size_request(widgets_.window, zo_ui_screen_width(), row_height);
    gtk_widget_set_margin_bottom(widgets_.wrapper, bottom_margin);

    widgets_.taskbox = region_new("manager-taskbox");
    gtk_box_pack_start(GTK_BOX(widgets_.wrapper), widgets_.taskbox, TRUE, TRUE, 0);
}

void _zo_window_manager::build_left_region() {
    widgets_.taskbox_left = region_new("manager-taskbox-left");
    gtk_box_pack_start(GTK_BOX(widgets_.taskbox), widgets_.taskbox_left, FALSE, FALSE, 0);
    widgets_.lock_button = gtk_button_new();
    zo::add_class(widgets_.lock_button, "size-32");
    style_lock_button(get_keep_extended());
    gtk_widget_set_size_request(widgets_.lock_button, lock_size, lock_size);
    GtkWidget* wrapper = zo_ui_get_left_padding_widget(widgets_.lock_button, true);
    gtk_box_pack_end(GTK_BOX(widgets_.taskbox_left), wrapper, FALSE, FALSE, 0);
}

void _zo_window_manager::style_lock_button(bool locked) {
    zo::remove_class(widgets_.lock_button, locked ? "lock-unlocked" : "lock-locked");
    zo::add_class(widgets_.lock_button, locked ? "lock-locked" : "lock-unlocked");
    zo::set_tooltip(widgets_.lock_button,
                    zo_ui_get_translate(locked ? "toolbar-locked" : "toolbar-unlocked"));
}

void _zo_window_manager::build_center_region() {
    widgets_.taskbox_scroll = gtk_scrolled_window_new(nullptr, nullptr);
    zo::add_class(widgets_.taskbox_scroll, "manager-taskbox-scroll");
    auto* scroll = GTK_SCROLLED_WINDOW(widgets_.taskbox_scroll);
    gtk_scrolled_window_set_placement(scroll, GTK_CORNER_BOTTOM_RIGHT);
    gtk_scrolled_window_set_policy(scroll, GTK_POLICY_AUTOMATIC, GTK_POLICY_NEVER);
    gtk_scrolled_window_set_min_content_width(scroll, std::max(zo_ui_screen_width() - not_scrolled, 0));
    widgets_.taskbox_center = zo::task_row_new(scroll);
    gtk_widget_set_halign(widgets_.taskbox_center, GTK_ALIGN_START);
    gtk_widget_set_valign(widgets_.taskbox_center, GTK_ALIGN_CENTER);
    zo::add_class(widgets_.taskbox_center, "manager-taskbox-center");
    gtk_box_pack_start(GTK_BOX(widgets_.taskbox), widgets_.taskbox_scroll, TRUE, TRUE, 0);
}

void _zo_window_manager::build_right_region() {
    widgets_.taskbox_right = region_new("manager-taskbox-right");
    gtk_box_pack_start(GTK_BOX(widgets_.taskbox), widgets_.taskbox_right, FALSE, FALSE, 0);
}
