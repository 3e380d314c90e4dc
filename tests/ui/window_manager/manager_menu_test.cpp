// SPDX-License-Identifier: MIT
// Menus take the pointer's crossings away: the panel looks again when they are gone. And what a retracted
// panel leaves to the windows under it.
#include "ui/window_manager/menu.hpp"

#include <X11/extensions/shape.h>
#include <gdk/gdkx.h>

namespace {

int below() { return zo_ui_screen_y() + 600; }

// The parts of the panel that take the pointer, in logical pixels.
std::vector<test::place> input_shape() {
    GdkWindow* window = gtk_widget_get_window(test::panel());
    int count = 0;
    int order = 0;
    XRectangle* rectangles = XShapeGetRectangles(GDK_WINDOW_XDISPLAY(window), gdk_x11_window_get_xid(window),
                                                 ShapeInput, &count, &order);
    std::vector<test::place> shape;
    const int scale = gdk_window_get_scale_factor(window);
    for (int i = 0; i < count; ++i)
        shape.push_back({rectangles[i].x / scale, rectangles[i].y / scale, rectangles[i].width / scale,
                         rectangles[i].height / scale});
    XFree(rectangles);
    return shape;
}

class ManagerMenu : public testing::Test {
  protected:
    ManagerMenu() { test::move_pointer(zo_ui_screen_x() + 500, below()); }

    GtkWidget* show_with_menu() const {
        panel.open();
        GtkWidget* button = test::menu_button();
        EXPECT_TRUE(zo_window_manager_add_widget_left(panel, button));
        panel.show();
        test::move_pointer(zo_ui_screen_x() + 500, zo_ui_screen_y());
        EXPECT_TRUE(test::is_extended());
        return button;
    }

    test::scoped_panel panel;
};

TEST_F(ManagerMenu, ClosedWithThePointerBelowRetractsThePanel) {
    GtkWidget* button = show_with_menu();
    test::use_menu(button, below());
    EXPECT_TRUE(test::is_retracted());
}

TEST_F(ManagerMenu, ClosedWithThePointerInsideLeavesThePanel) {
    GtkWidget* button = show_with_menu();
    test::use_menu(button, zo_ui_screen_y() + 5);
    EXPECT_TRUE(test::is_extended());
    test::move_pointer(zo_ui_screen_x() + 500, below());
    EXPECT_TRUE(test::is_retracted());
}

TEST_F(ManagerMenu, AKeptPanelStays) {
    GtkWidget* button = show_with_menu();
    panel.keep_extended(true);
    test::use_menu(button, below());
    EXPECT_TRUE(test::is_extended());
}

TEST_F(ManagerMenu, AMenuOfAWindowLeavesThePanelAlone) {
    panel.show();
    GtkWidget* window = gtk_window_new(GTK_WINDOW_POPUP);
    GtkWidget* button = test::menu_button();
    gtk_container_add(GTK_CONTAINER(window), button);
    gtk_window_move(GTK_WINDOW(window), zo_ui_screen_x() + 300, zo_ui_screen_y() + 300);
    gtk_widget_show_all(window);
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(window); }));
    panel.run(zo_window_manager_extend);
    EXPECT_TRUE(test::is_extended());
    test::use_menu(button, below());
    EXPECT_TRUE(test::is_extended());
    gtk_widget_destroy(window);
}

// Opened on the first row that is not the panel's any more.
TEST_F(ManagerMenu, AMenuRightBelowLeavesThePanelAlone) {
    panel.show();
    GtkWidget* window = gtk_window_new(GTK_WINDOW_POPUP);
    GtkWidget* button = test::menu_button();
    gtk_container_add(GTK_CONTAINER(window), button);
    const int y = zo_ui_screen_y() + 300;
    gtk_window_move(GTK_WINDOW(window), zo_ui_screen_x() + 300, y);
    gtk_widget_show_all(window);
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(window); }));
    panel.run(zo_window_manager_extend);
    EXPECT_TRUE(test::is_extended());
    const test::place place = test::place_of(test::panel());
    const int row = place.y + place.height;
    gtk_window_move(GTK_WINDOW(window), zo_ui_screen_x() + 300, y + row - test::middle_of(button).y);
    ASSERT_TRUE(test::turn_until([&] { return test::middle_of(button).y == row; }));
    test::use_menu(button, below());
    EXPECT_TRUE(test::is_extended());
    gtk_widget_destroy(window);
}

TEST_F(ManagerMenu, ARetractedPanelTakesThePointerInItsLastRowOnly) {
    panel.show();
    const test::place place = test::place_of(test::panel());
    const std::vector<test::place> last_row{{0, place.height - 1, place.width, 1}};
    const std::vector<test::place> all{{0, 0, place.width, place.height}};
    EXPECT_EQ(input_shape(), last_row);
    panel.run(zo_window_manager_extend);
    EXPECT_EQ(input_shape(), all);
    panel.run(zo_window_manager_retract);
    EXPECT_EQ(input_shape(), last_row);
    test::move_pointer(zo_ui_screen_x() + 500, zo_ui_screen_y());
    EXPECT_TRUE(test::is_extended());
    EXPECT_EQ(input_shape(), all);
    test::move_pointer(zo_ui_screen_x() + 500, below());
    EXPECT_TRUE(test::is_retracted());
    EXPECT_EQ(input_shape(), last_row);
    GtkWidget* toolbar = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
    gtk_container_add(GTK_CONTAINER(toolbar), gtk_label_new("tools"));
    gtk_widget_show_all(toolbar);
    EXPECT_TRUE(zo_window_manager_add_toolbar(panel, GTK_BOX(toolbar)));
    EXPECT_TRUE(test::turn_until([&] { return test::place_of(test::panel()).height > place.height; }));
    EXPECT_TRUE(test::is_retracted());
    const int height = test::place_of(test::panel()).height;
    EXPECT_EQ(input_shape(), (std::vector<test::place>{{0, height - 1, place.width, 1}}));
}

// Else a window under it would see the pointer come and go.
TEST_F(ManagerMenu, SlidingOutUnderThePointerIsNotFeltBelow) {
    GtkWidget* under = gtk_window_new(GTK_WINDOW_POPUP);
    gtk_widget_set_size_request(under, 400, 200);
    gtk_window_move(GTK_WINDOW(under), zo_ui_screen_x() + 300, zo_ui_screen_y());
    gtk_widget_add_events(under, GDK_ENTER_NOTIFY_MASK);
    int entered = 0;
    g_signal_connect_swapped(under, "enter-notify-event",
                             G_CALLBACK(+[](int* count) -> gboolean { return ++*count > 0; }), &entered);
    gtk_widget_show(under);
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(under); }));
    panel.show();
    EXPECT_TRUE(test::is_retracted());
    gdk_window_raise(gtk_widget_get_window(test::panel()));
    test::move_pointer(zo_ui_screen_x() + 500, zo_ui_screen_y());
    EXPECT_TRUE(test::is_extended());
    EXPECT_EQ(entered, 0);
    test::move_pointer(zo_ui_screen_x() + 500, zo_ui_screen_y() + 150);
    EXPECT_TRUE(test::turn_until([&] { return entered > 0; }));
    gtk_widget_destroy(under);
}

// The grab that the closed panel has seen begin is nothing to the next one.
TEST_F(ManagerMenu, AMenuOfAClosedPanelIsForgotten) {
    GtkWidget* menu = test::menu_of(show_with_menu());
    g_object_ref(menu);
    test::click(gtk_menu_get_attach_widget(GTK_MENU(menu)));
    ASSERT_TRUE(test::turn_until([&] { return gtk_widget_get_mapped(menu); }));
    panel.close();
    g_object_unref(menu);
    GtkWidget* grabbing = gtk_invisible_new();
    gtk_grab_add(grabbing);
    panel.keep_extended(true);
    panel.show();
    panel.keep_extended(false);
    test::move_pointer(zo_ui_screen_x() + 500, below());
    test::settle_desktop();
    gtk_grab_remove(grabbing);
    EXPECT_TRUE(test::is_extended());
    gtk_widget_destroy(grabbing);
}

// Two grabs end in a row when one is of the pointer alone.
TEST_F(ManagerMenu, OverlappingGrabsOfOthersLeaveThePanelAlone) {
    panel.show();
    panel.run(zo_window_manager_extend);
    EXPECT_TRUE(test::is_extended());
    GtkWidget* of_all = gtk_invisible_new();
    GtkWidget* of_pointer = gtk_invisible_new();
    GdkDevice* pointer = gdk_seat_get_pointer(gdk_display_get_default_seat(gdk_display_get_default()));
    gtk_grab_add(of_all);
    gtk_device_grab_add(of_pointer, pointer, FALSE);
    gtk_device_grab_remove(of_pointer, pointer);
    gtk_grab_remove(of_all);
    EXPECT_TRUE(test::is_extended());
    gtk_widget_destroy(of_pointer);
    gtk_widget_destroy(of_all);
}

}  // namespace
