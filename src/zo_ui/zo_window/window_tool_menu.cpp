// SPDX-License-Identifier: MIT
// The tool menu: a popup under the title bar's menu button, with a grid that the application fills.
#include <zo_ui/zo_window/window_p.hpp>

#include <zo_ui/toolkit/style_p.hpp>
#include <zo_ui/zo_ui_connect.hpp>
#include <zo_ui/zo_ui_widgets.hpp>
#include <zo_ui/zo_window/window_hold_p.hpp>

namespace {

// How far the menu's left edge stands left of its button's.
constexpr int overhang = 32;

}  // namespace

struct zo::tool_menu_handlers {
    static gboolean on_leave(GtkWidget* menu, GdkEventCrossing* event, _zo_window* window) {
        const zo_window_ptr self = window->handle();
        return window->tool_menu_left_(menu, event);
    }

    // Whatever became of the window: the field is cleared with the menu.
    static void on_click(GtkWidget* menu) { gtk_widget_destroy(menu); }

    static gboolean on_key(GtkWidget*, GdkEventKey* event, _zo_window* window) {
        const zo_window_ptr self = window->handle();
        return window->on_tool_menu_key(*event);
    }

    // A button that spans rows is met in each of them. The application's own handlers come first, since
    // closing the menu takes the button away. One that the application takes out of the grid and keeps
    // outlives the menu, even the window: the menu's end unbinds it.
    static void bind(GtkWidget* child, GtkWidget* menu) {
        if (!GTK_IS_BUTTON(child)) return;
        add_class(child, "tool-menu-button");
        const auto match = static_cast<GSignalMatchType>(G_SIGNAL_MATCH_FUNC | G_SIGNAL_MATCH_DATA);
        const auto function = reinterpret_cast<gpointer>(on_click);
        if (g_signal_handler_find(child, match, 0, 0, nullptr, function, menu)) return;
        const auto flags = static_cast<GConnectFlags>(G_CONNECT_AFTER | G_CONNECT_SWAPPED);
        g_signal_connect_object(child, "clicked", G_CALLBACK(on_click), menu, flags);
    }
};

void _zo_window::on_menu_clicked() {
    const auto fn = callback<void(zo_window_ptr, GtkGrid*)>("menu-create", zo::window_source::menu_action);
    const zo::held_widget window = zo::hold(widgets_.window);
    if (!fn || !window) return;
    const zo::held_widget grid(GTK_WIDGET(g_object_ref_sink(gtk_grid_new())));
    zo::add_class(grid.get(), "tool-menu-grid");
    const bool visible = is_visible();
    fn(handle(), GTK_GRID(grid.get()));
    if (!still_in(window.get(), visible) || !widgets_.button(zo::title_button::menu)) return;
    close_tool_menu();
    open_tool_menu(grid.get());
}

void _zo_window::open_tool_menu(GtkWidget* grid) {
    GtkAllocation button{};
    gtk_widget_get_allocation(widgets_.button(zo::title_button::menu), &button);
    int x = 0;
    int y = 0;
    gtk_window_get_position(GTK_WINDOW(widgets_.window), &x, &y);

    GtkWidget* menu = gtk_window_new(GTK_WINDOW_POPUP);
    gtk_window_set_transient_for(GTK_WINDOW(menu), GTK_WINDOW(widgets_.window));
    gtk_window_set_type_hint(GTK_WINDOW(menu), GDK_WINDOW_TYPE_HINT_DIALOG);
    gtk_container_add(GTK_CONTAINER(menu), zo_ui_get_centared_widget(grid, true));
    style_tool_menu(menu);
    gtk_window_move(GTK_WINDOW(menu), x + button.x - overhang, y + button.y + button.height);
    gtk_widget_add_events(menu, GDK_LEAVE_NOTIFY_MASK);
    g_signal_connect(menu, "leave-notify-event", G_CALLBACK(zo::tool_menu_handlers::on_leave), this);
    g_signal_connect(menu, "key-press-event", G_CALLBACK(zo::tool_menu_handlers::on_key), this);
    bind_tool_menu_buttons(GTK_GRID(grid), menu);
    // Holds the window while the menu lives, and notices when the menu goes by itself.
    zo_ui_connect_widget_destroy(menu, [self = handle(), menu] {
        if (self->widgets_.tool_menu == menu) self->widgets_.tool_menu = nullptr;
    });
    widgets_.tool_menu = menu;
    gtk_widget_show_all(menu);
}

void _zo_window::style_tool_menu(GtkWidget* menu) {
    zo::add_class(menu, "tool-menu");
    zo::add_class(menu, "zo-window");
    std::string style_class;
    {
        zo::property_guard guard(*this, zo::window_source::file, zo::window_source::menu_action);
        guard.read("window-class", style_class, {"&window_class"});
    }
    zo::add_class(menu, style_class.c_str());
}

// The first two columns, down to the first row that is empty in both (test "AnEmptyRowEndsTheWalk").
void _zo_window::bind_tool_menu_buttons(GtkGrid* grid, GtkWidget* menu) {
    for (int row = 0;; ++row) {
        GtkWidget* left = gtk_grid_get_child_at(grid, 0, row);
        GtkWidget* right = gtk_grid_get_child_at(grid, 1, row);
        if (!left && !right) return;
        for (GtkWidget* child : {left, right})
            if (child) zo::tool_menu_handlers::bind(child, menu);
    }
}

void _zo_window::close_tool_menu() {
    if (GtkWidget* menu = std::exchange(widgets_.tool_menu, nullptr)) gtk_widget_destroy(menu);
}

// Going into a child, a grab that takes the pointer away (the X server's or GTK's own), and the menu's own
// hiding are not leaving.
bool _zo_window::on_tool_menu_left(const GdkEventCrossing& event) {
    const bool grabbed = event.mode == GDK_CROSSING_GRAB || event.mode == GDK_CROSSING_GTK_GRAB;
    if (event.detail == GDK_NOTIFY_INFERIOR || grabbed) return false;
    if (!widgets_.tool_menu || !gtk_widget_get_visible(widgets_.tool_menu)) return false;
    close_tool_menu();
    return true;
}
