// SPDX-License-Identifier: MIT
// Building the widget tree of a window:
//
//     toplevel ─ #window-fixed ─ #window-wrapper ─┬─ .title-event-box ─ .window-title          (built-in
//     title)
//                                                 ├─ .window-ads-container (advertisement) └─ .window-scroll
//                                                 ─ event box ─ .window-content
//
// Without scrolling the event box stands in the wrapper itself; a popup's advertisement stands below its
// content.
#include <zo_ui/zo_window/window_p.hpp>

#include <zo_ui/toolkit/style_p.hpp>
#include <zo_ui/zo_ui_connect.hpp>
#include <zo_ui/zo_ui_screen.hpp>
#include <zo_ui/zo_ui_tools.hpp>
#include <zo_ui/zo_window/window_active_p.hpp>

#include <algorithm>

namespace {

// Room that a window leaves on the work area for what is not its own.
constexpr int height_left_free = 120;

// A screen that was never read bounds nothing.
void bound_by_workarea(GtkWindow* window) {
    if (zo_ui_workarea_width() <= 0 || zo_ui_workarea_height() <= 0) return;
    GdkGeometry geometry{};
    geometry.max_width = zo_ui_workarea_width();
    geometry.max_height = std::max(zo_ui_workarea_height() - height_left_free, 1);
    gtk_window_set_geometry_hints(window, nullptr, &geometry, GDK_HINT_MAX_SIZE);
}

GtkWidget* toplevel_new(bool popup) {
    if (popup) return gtk_window_new(GTK_WINDOW_POPUP);
    GtkWidget* window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_window_set_type_hint(GTK_WINDOW(window), GDK_WINDOW_TYPE_HINT_DIALOG);
    return window;
}

}  // namespace

void _zo_window::build_tree(const zo::window_settings& settings) {
    popup_ = settings.popup_window;
    managed_ = settings.window_managed;
    moving_focus_ = false;
    build_toplevel(settings);
    widgets_.fixed = gtk_fixed_new();
    gtk_widget_set_name(widgets_.fixed, "window-fixed");
    widgets_.wrapper = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
    gtk_widget_set_name(widgets_.wrapper, "window-wrapper");
    gtk_fixed_put(GTK_FIXED(widgets_.fixed), widgets_.wrapper, 0, 0);
    if (settings.use_built_in_title) build_title_bar(settings);
    if (settings.enable_content_ads && !popup_) build_ads();
    build_content(settings);
    if (settings.enable_content_ads && popup_) build_ads();
    connect_tree(settings);
    gtk_container_add(GTK_CONTAINER(widgets_.window), widgets_.fixed);
    if (settings.use_rgba_visual) {
        zo_ui_gtk_fix_visual_rgba(widgets_.window);
        g_signal_connect(widgets_.window, "screen-changed",
                         G_CALLBACK(zo_ui_gtk_fix_visual_rgba_on_screen_changed), nullptr);
    }
    // The callable holds the window for as long as GTK may call into it.
    zo_ui_connect_widget_destroy(widgets_.window, [self = handle(), window = widgets_.window] {
        self->on_toplevel_destroyed(window);
    });
    gtk_window_set_position(GTK_WINDOW(widgets_.window), GTK_WIN_POS_CENTER);
}

void _zo_window::build_toplevel(const zo::window_settings& settings) {
    widgets_.window = toplevel_new(popup_);
    auto* window = GTK_WINDOW(widgets_.window);
    bound_by_workarea(window);
    gtk_widget_set_can_focus(widgets_.window, TRUE);
    gtk_window_set_skip_taskbar_hint(window, settings.skip_taskbar_hint);
    gtk_window_set_skip_pager_hint(window, settings.skip_pager);
    apply_fixed_classes();
    zo::add_class(widgets_.window, settings.style_class.c_str());
    if (!settings.id.empty()) gtk_widget_set_name(widgets_.window, settings.id.c_str());
    if (!settings.title.empty()) gtk_window_set_title(window, zo::readable(settings.title).c_str());
    gtk_window_set_decorated(window, settings.use_system_decoration);
    gtk_window_set_resizable(window, settings.resizable);
    if (!settings.keep_above) return;
    keep_above();
    gtk_window_set_keep_below(window, FALSE);
}

// The classes that no change of the window's own class may take away.
void _zo_window::apply_fixed_classes() {
    zo::add_class(widgets_.window, "zo-window");
    if (managed_) zo::add_class(widgets_.window, "managed");
    if (popup_) zo::add_class(widgets_.window, "popup");
    if (zo::is_marked_active(widgets_.window)) zo::add_class(widgets_.window, "active");
    if (!widgets_.tool_menu) return;
    zo::add_class(widgets_.tool_menu, "tool-menu");
    zo::add_class(widgets_.tool_menu, "zo-window");
}

void _zo_window::build_ads() {
    widgets_.ads_container = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    zo::add_class(widgets_.ads_container, "window-ads-container");
    widgets_.ads_label = gtk_label_new("ads widget");
    zo::add_class(widgets_.ads_label, "window-ads-content");
    gtk_box_pack_start(GTK_BOX(widgets_.ads_container), widgets_.ads_label, FALSE, FALSE, 0);
    gtk_box_pack_start(GTK_BOX(widgets_.wrapper), widgets_.ads_container, FALSE, FALSE, 0);
}

void _zo_window::build_content(const zo::window_settings& settings) {
    widgets_.content_box = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
    zo::add_class(widgets_.content_box, "window-content");
    gtk_widget_set_name(widgets_.content_box, zo::content_name(settings.id).c_str());
    widgets_.content_event_box = gtk_event_box_new();
    gtk_container_add(GTK_CONTAINER(widgets_.content_event_box), widgets_.content_box);
    GtkWidget* outermost = widgets_.content_event_box;
    if (settings.use_scroll) {
        widgets_.scroll = gtk_scrolled_window_new(nullptr, nullptr);
        zo::add_class(widgets_.scroll, "window-scroll");
        auto* scroll = GTK_SCROLLED_WINDOW(widgets_.scroll);
        gtk_scrolled_window_set_placement(scroll, GTK_CORNER_BOTTOM_RIGHT);
        gtk_scrolled_window_set_policy(scroll, GTK_POLICY_AUTOMATIC, GTK_POLICY_AUTOMATIC);
        gtk_container_add(GTK_CONTAINER(widgets_.scroll), widgets_.content_event_box);
        outermost = widgets_.scroll;
    }
    gtk_box_pack_start(GTK_BOX(widgets_.wrapper), outermost, TRUE, TRUE, 0);
}
