// SPDX-License-Identifier: MIT
// Where the tool menu stands beside what decorates or mirrors its window, and that each window has its own.
#include "ui/window/tool_menu_support.hpp"

namespace {

using point = std::pair<int, int>;

point origin_of(GtkWidget* toplevel) {
    point origin;
    gdk_window_get_origin(gtk_widget_get_window(toplevel), &origin.first, &origin.second);
    return origin;
}

point position_of(GtkWidget* toplevel) {
    point place;
    gtk_window_get_position(GTK_WINDOW(toplevel), &place.first, &place.second);
    return place;
}

// A window with a menu of one button.
struct menu_window {
    menu_window(const std::string& id, int x, int y) : window(id) {
        zo_window_set_enable_title_menu(window, true);
        zo_window_set_menu_create_handler(window, [this](zo_window_ptr, GtkGrid* grid) {
            button = test::attach_button(grid, "Press", 0, 0);
        });
        toplevel = window.open();
        zo_window_add_content_child(window, gtk_label_new("Text"), true, true, 40, false);
        zo_window_move(window, x, y);
        window.show();
        test::settle_desktop();
    }

    GtkWidget* menu_button() const { return test::find_class(toplevel, "title-menu"); }

    // Null when there is none.
    GtkWidget* menu() const {
        for (GtkWidget* popup : test::toplevels("tool-menu"))
            if (static_cast<void*>(gtk_window_get_transient_for(GTK_WINDOW(popup))) == toplevel) return popup;
        return nullptr;
    }

    // Without the pointer, so that no other menu is left.
    GtkWidget* open_menu() {
        gtk_button_clicked(GTK_BUTTON(menu_button()));
        EXPECT_TRUE(test::turn_until([this] { return menu() && test::is_on_screen(menu()); }));
        test::settle_desktop();
        return menu();
    }

    point expected_place() const {
        GtkAllocation at;
        gtk_widget_get_allocation(menu_button(), &at);
        const point place = position_of(toplevel);
        return {place.first + at.x - 32, place.second + at.y + at.height};
    }

    test::scoped_window window;
    GtkWidget* toplevel = nullptr;
    GtkWidget* button = nullptr;
};

// A mirrored title bar has the button on its other side; the menu stands by the same rule.
TEST(WindowToolMenuPlace, FollowsTheButtonFromRightToLeft) {
    gtk_widget_set_default_direction(GTK_TEXT_DIR_RTL);
    {
        menu_window window("w", 500, 300);
        GtkAllocation button;
        gtk_widget_get_allocation(window.menu_button(), &button);
        EXPECT_LT(button.x, gtk_widget_get_allocated_width(window.toplevel) / 2) << "mirrored";
        EXPECT_EQ(origin_of(window.open_menu()), point(500 + button.x - 32, 300 + button.y + button.height));
    }
    gtk_widget_set_default_direction(GTK_TEXT_DIR_LTR);
}

// The desktop's frame counts: the window's position is its frame's.
TEST(WindowToolMenuPlace, IsCountedFromTheDesktopsFrame) {
    test::scoped_window window("framed");
    zo_window_set_use_system_decoration(window, true);
    zo_window_set_enable_title_menu(window, true);
    zo_window_set_menu_create_handler(
        window, [](zo_window_ptr, GtkGrid* grid) { test::attach_button(grid, "Press", 0, 0); });
    GtkWidget* toplevel = window.show();
    test::settle_desktop();
    zo_window_move(window, 400, 260);
    ASSERT_TRUE(test::turn_until([&] { return position_of(toplevel) == point(400, 260); }));
    test::settle_desktop();
    EXPECT_EQ(origin_of(toplevel) == point(400, 260), test::session_wm() == "none") << "the frame's own size";
    GtkWidget* button = test::find_class(toplevel, "title-menu");
    gtk_button_clicked(GTK_BUTTON(button));
    ASSERT_EQ(test::toplevels("tool-menu").size(), 1u);
    GtkWidget* menu = test::toplevels("tool-menu")[0];
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(menu); }));
    GtkAllocation at;
    gtk_widget_get_allocation(button, &at);
    EXPECT_EQ(origin_of(menu), point(400 + at.x - 32, 260 + at.y + at.height));
}

class TwoToolMenus : public testing::Test {
  protected:
    TwoToolMenus() {
        first_menu = first.open_menu();
        second_menu = second.open_menu();
    }

    // Only the second window's menu is there, and in its place.
    void expect_only_the_second() {
        test::run_tasks();
        EXPECT_EQ(first.menu(), nullptr);
        EXPECT_EQ(second.menu(), second_menu);
        EXPECT_TRUE(gtk_widget_get_visible(second_menu));
        EXPECT_EQ(origin_of(second_menu), second.expected_place());
    }

    menu_window first{"first", 100, 100};
    menu_window second{"second", 700, 500};
    GtkWidget* first_menu = nullptr;
    GtkWidget* second_menu = nullptr;
};

TEST_F(TwoToolMenus, StandEachUnderItsOwnButton) {
    EXPECT_NE(first_menu, second_menu);
    EXPECT_EQ(first.menu(), first_menu) << "opening the second leaves the first";
    EXPECT_EQ(origin_of(first_menu), first.expected_place());
    EXPECT_EQ(origin_of(second_menu), second.expected_place());
}

TEST_F(TwoToolMenus, ClosingAWindowLeavesTheOthers) {
    zo_window_close(first.window);
    expect_only_the_second();
}

TEST_F(TwoToolMenus, HidingAWindowLeavesTheOthers) {
    zo_window_hide(first.window);
    test::run_tasks();
    EXPECT_FALSE(gtk_widget_get_visible(first_menu));
    EXPECT_TRUE(gtk_widget_get_visible(second_menu));
    EXPECT_EQ(first.menu(), first_menu);
    EXPECT_EQ(second.menu(), second_menu);
}

TEST_F(TwoToolMenus, PressingAButtonLeavesTheOthers) {
    gtk_button_clicked(GTK_BUTTON(first.button));
    expect_only_the_second();
}

TEST_F(TwoToolMenus, PressingInAWindowLeavesTheOthers) {
    GtkWidget* box = gtk_widget_get_parent(test::find_class(first.toplevel, "window-content"));
    GdkEvent* press = gdk_event_new(GDK_BUTTON_PRESS);
    press->button.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(box)));
    press->button.button = 1;
    gtk_widget_event(box, press);
    gdk_event_free(press);
    expect_only_the_second();
}

}  // namespace
