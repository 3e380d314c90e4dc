// SPDX-License-Identifier: MIT
// Opening, showing, hiding, activating and restoring. After each callback everything that was known is asked
// again: the callback may have closed, destroyed or re-opened the window, or have run a loop of its own.
// The flag "window-opened" is a property that the application can write: it promises no toplevel.
#include <zo_ui/zo_window/window_p.hpp>

#include <zo_core/zo_diagnostics.hpp>
#include <zo_ui/zo_window/window_active_p.hpp>
#include <zo_ui/zo_window/window_hold_p.hpp>

namespace source = zo::window_source;

bool _zo_window::still_open(GtkWidget* window) { return window && widgets_.window == window && is_opened(); }

bool _zo_window::still_in(GtkWidget* window, bool visible) {
    return still_open(window) && is_visible() == visible;
}

void _zo_window::_open() {
    if (is_opened() || is_destroyed() || destroying_ || widgets_.window) return;
    if (!gdk_display_get_default()) {
        zo_assertion_faild(false, "display != nullptr", "window-open", source::file, source::settings);
        return;
    }
    zo::window_settings settings = zo::read_window_settings(*this);
    set_opened(true);
    zo::normalise(settings);
    build_tree(settings);
    const zo::held_widget window = zo::hold(widgets_.window);
    if (settings.on_open) settings.on_open(handle());
    if (still_open(window.get())) tell_manager(&zo::window_host::on_window_open);
}

void _zo_window::_show() {
    if (!is_opened() || is_destroyed() || is_visible()) return;
    bool above = false;
    std::function<void(zo_window_ptr)> fn;
    {
        zo::property_guard guard(*this, source::file, source::show_task);
        guard.read("keep-above", above, {"&keep_above"});
        guard.read("window-show", fn, {"&fn"});
    }
    set_visible(true);
    const zo::held_widget window = zo::hold(widgets_.window);
    if (above) keep_above();
    if (fn) fn(handle());
    if (!still_in(window.get(), true)) return;
    if (!popup_) withdrawal_.before_show(window.get());
    gtk_widget_show_all(window.get());
    if (!popup_ && still_in(window.get(), true)) withdrawal_.after_show(window.get());
    if (still_in(window.get(), true) && widgets_.tool_menu) gtk_widget_show_all(widgets_.tool_menu);
    if (still_in(window.get(), true)) tell_manager(&zo::window_host::on_window_shown);
}

void _zo_window::_hide() {
    if (!is_opened() || is_destroyed() || !is_visible()) return;
    const auto fn = callback<void(zo_window_ptr)>("window-hide", source::hide_task);
    set_visible(false);
    const zo::held_widget window = zo::hold(widgets_.window);
    was_hidden_ = true;
    if (window) hide_in_place();
    if (widgets_.tool_menu) gtk_widget_hide(widgets_.tool_menu);
    if (fn) fn(handle());
    if (still_in(window.get(), false)) tell_manager(&zo::window_host::on_window_hidden);
}

// The desktop moves a shown window, in its own time; until then GTK answers the old place.
void _zo_window::move_now(int x, int y) {
    if (!is_opened() || !widgets_.window) return;
    if (gtk_widget_get_mapped(widgets_.window)) asked_place_ = {x, y};
    gtk_window_move(GTK_WINDOW(widgets_.window), x, y);
}

// GTK would centre the window anew when it is shown again. Where it is nobody knows before it was on screen.
void _zo_window::hide_in_place() {
    auto* window = GTK_WINDOW(widgets_.window);
    std::pair<int, int> place;
    gtk_window_get_position(window, &place.first, &place.second);
    if (!popup_) withdrawal_.before_hide(widgets_.window);
    gtk_widget_hide(widgets_.window);
    const bool placed = std::exchange(placed_, false) || asked_place_;
    if (asked_place_) place = *std::exchange(asked_place_, std::nullopt);
    if (placed) gtk_window_move(window, place.first, place.second);
}

void _zo_window::_activate() {
    if (!is_opened() || is_destroyed() || !is_visible()) return;
    bool above = false;
    std::function<void(zo_window_ptr)> fn;
    {
        zo::property_guard guard(*this, source::file, source::activate_task);
        guard.read("keep-above", above, {"&keep_above"});
        guard.read("window-activate", fn, {"&fn"});
    }
    const zo::held_widget window = zo::hold(widgets_.window);
    if (!window) return;
    if (above) keep_above();
    gtk_window_present(GTK_WINDOW(window.get()));
    gtk_widget_grab_focus(window.get());
    if (!still_in(window.get(), true)) return;
    zo::mark_active(window.get());
    if (GdkWindow* native = gtk_widget_get_window(window.get())) gdk_window_ensure_native(native);
    if (fn) fn(handle());
}

void _zo_window::_restore() {
    if (!is_opened() || is_destroyed()) return;
    bool was_visible = false;
    std::function<void(zo_window_ptr)> fn;
    {
        zo::property_guard guard(*this, source::file, source::restore_task);
        guard.read("window-restore-visible", was_visible, {"&visible"});
        guard.read("window-restore", fn, {"&fn"});
    }
    if (!was_visible || is_visible()) return;
    _show();
    if (fn && is_visible()) fn(handle());
}

void _zo_window::keep_above() {
    if (!widgets_.window) return;
    kept_above_ = true;
    gtk_window_set_keep_above(GTK_WINDOW(widgets_.window), TRUE);
}
