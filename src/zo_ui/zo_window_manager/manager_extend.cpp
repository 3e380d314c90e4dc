// SPDX-License-Identifier: MIT
// Sliding the panel: extended at the top of the screen, or retracted until one pixel row is left, which the
// pointer can touch.
#include <zo_ui/zo_window_manager/manager_p.hpp>

#include <zo_core/zo_service.hpp>
#include <zo_ui/zo_ui_screen.hpp>

#include <memory>
#include <utility>

namespace source = zo::manager_source;

namespace {

struct region_destroy {
    void operator()(cairo_region_t* region) const { cairo_region_destroy(region); }
};
using region_ptr = std::unique_ptr<cairo_region_t, region_destroy>;

}  // namespace

// Before the first layout GTK tells what the height will be.
int _zo_window_manager::panel_height() const {
    if (widgets_.panel.height > 0) return widgets_.panel.height;
    int height = 0;
    gtk_window_get_size(GTK_WINDOW(widgets_.window), nullptr, &height);
    return height;
}

void _zo_window_manager::move_panel(int y) {
    widgets_.x = zo_ui_screen_x();
    widgets_.y = y;
    // A panel that slides out under the pointer has to have it all the time: else what is below would see it
    // come and go (test "SlidingOutUnderThePointerIsNotFeltBelow").
    const bool extends = y == zo_ui_screen_y();
    if (extends) shape_input();
    place_panel();
    if (!extends) shape_input();
}

// GTK does not move a hidden window back to where it was first mapped (test "ItMovesWhileItIsHidden").
void _zo_window_manager::place_panel() {
    gtk_window_move(GTK_WINDOW(widgets_.window), widgets_.x, widgets_.y);
    GdkWindow* const native = gtk_widget_get_window(widgets_.window);
    if (native && !gtk_widget_get_mapped(widgets_.window)) gdk_window_move(native, widgets_.x, widgets_.y);
}

// A retracted panel takes the pointer in its last row only: what it covers of a monitor above stays the
// others'.
void _zo_window_manager::shape_input() {
    region_ptr row;
    if (widgets_.y != zo_ui_screen_y()) {
        const cairo_rectangle_int_t last{0, panel_height() - 1, zo_ui_screen_width(), 1};
        row.reset(cairo_region_create_rectangle(&last));
    }
    gtk_widget_input_shape_combine_region(widgets_.window, row.get());
}

void _zo_window_manager::extend_now() {
    if (!is_opened() || !widgets_.window || widgets_.y == zo_ui_screen_y()) return;
    move_panel(zo_ui_screen_y());
}

void _zo_window_manager::retract_now() {
    if (!is_opened() || !widgets_.window || widgets_.y != zo_ui_screen_y()) return;
    const int y = zo_ui_screen_y() - panel_height() + 1;
    if (y != widgets_.y) move_panel(y);
}

// Decides by where the panel is, not by what was noted.
int _zo_window_manager::on_crossing(const GdkEventCrossing& event) {
    if (!widgets_.window) return TRUE;
    int y = 0;
    int height = 0;
    gtk_window_get_position(GTK_WINDOW(widgets_.window), nullptr, &y);
    gtk_window_get_size(GTK_WINDOW(widgets_.window), nullptr, &height);
    const bool extended = y == zo_ui_screen_y();
    if (event.type == GDK_ENTER_NOTIFY && !extended) move_panel(zo_ui_screen_y());
    if (event.type != GDK_LEAVE_NOTIFY || !extended || widgets_.keep_extended) return TRUE;
    if (event.y_root >= y + height - 1) move_panel(zo_ui_screen_y() - height + 1);
    return TRUE;
}

std::pair<int, int> _zo_window_manager::pointer() const {
    GdkSeat* seat = gdk_display_get_default_seat(gtk_widget_get_display(widgets_.window));
    std::pair<int, int> place;
    gdk_device_get_position(gdk_seat_get_pointer(seat), nullptr, &place.first, &place.second);
    return place;
}

// A menu of the panel takes the pointer's leaving away. When it goes and the pointer is below, the panel goes
// too. A menu that was opened elsewhere takes nothing away (tests "AMenuOfAWindowLeavesThePanelAlone",
// "ManagerForeignMenu").
void _zo_window_manager::on_grab_begun() {
    const auto [x, y] = pointer();
    const bool in_width = x >= zo_ui_screen_x() && x < zo_ui_screen_x() + zo_ui_screen_width();
    grabbed_inside_ = in_width && y >= widgets_.y && y < widgets_.y + panel_height();
}

void _zo_window_manager::on_grab_ended() {
    if (!std::exchange(grabbed_inside_, false)) return;
    if (!gtk_widget_get_mapped(widgets_.window)) return;
    GdkEventCrossing event{};
    event.type = GDK_LEAVE_NOTIFY;
    event.y_root = pointer().second;
    crossing_handler_(widgets_.event_box, &event);
}

void _zo_window_manager::set_keep_extended(bool keep) {
    {
        bool b = keep;
        zo::property_guard guard(*this, source::file, source::set_keep_extended);
        guard.write("manager-keep-extended", b, {"b"});
    }
    zo_system_service_exec([self = handle(), keep] { self->apply_keep_extended(keep); }, source::file,
                           source::keep_extended);
}

// The panel does not move: the next crossing decides.
void _zo_window_manager::apply_keep_extended(bool keep) {
    widgets_.keep_extended = keep;
    if (is_opened() && widgets_.window && widgets_.lock_button) style_lock_button(keep);
}

void _zo_window_manager::on_lock_clicked() {
    widgets_.keep_extended = !widgets_.keep_extended;
    {
        bool keep = widgets_.keep_extended;
        zo::property_guard guard(*this, source::file, source::lock_clicked);
        guard.write("manager-keep-extended", keep, {"widgets.keep_extended"});
    }
    if (widgets_.window) style_lock_button(widgets_.keep_extended);
}
