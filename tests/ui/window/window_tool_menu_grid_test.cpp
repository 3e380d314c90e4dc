// SPDX-License-Identifier: MIT
// Which buttons of the application's grid close the tool menu.
#include "ui/window/tool_menu_support.hpp"

namespace {

class WindowToolMenuGrid : public test::ToolMenu {
  protected:
    void note(GtkWidget* button) {
        zo_ui_connect_button_click_signal(button, [this](GtkWidget*) { ++clicks_; });
    }

    int clicks_ = 0;
};

TEST_F(WindowToolMenuGrid, ButtonsOfTheFirstTwoColumnsCloseTheMenu) {
    for (const int wanted : {0, 1, 2, 3}) {
        GtkWidget* button = nullptr;
        clicks_ = 0;
        if (!toplevel_) show([](GtkGrid*) {});
        set_fill([&](GtkGrid* grid) {
            for (int cell = 0; cell < 4; ++cell) {
                GtkWidget* made = test::attach_button(grid, "Press", cell % 2, cell / 2);
                if (cell == wanted) note(button = made);
            }
        });
        open_menu();
        EXPECT_TRUE(test::has_class(button, "tool-menu-button"));
        test::click(button);
        EXPECT_TRUE(closes()) << wanted;
        EXPECT_EQ(clicks_, 1) << "the application's own handler";
    }
}

TEST_F(WindowToolMenuGrid, ButtonsOfLaterColumnsDoNot) {
    GtkWidget* third = nullptr;
    show([&](GtkGrid* grid) {
        test::attach_button(grid, "One", 0, 0);
        test::attach_button(grid, "Two", 1, 0);
        note(third = test::attach_button(grid, "Three", 2, 0));
    });
    open_menu();
    EXPECT_FALSE(test::has_class(third, "tool-menu-button"));
    test::click(third);
    EXPECT_TRUE(test::turn_until([&] { return clicks_ == 1; }));
    test::settle_desktop();
    EXPECT_NE(menu(), nullptr);
}

TEST_F(WindowToolMenuGrid, AnEmptyRowEndsTheWalk) {
    GtkWidget* below = nullptr;
    GtkWidget* above = nullptr;
    show([&](GtkGrid* grid) {
        test::attach_button(grid, "Third column alone", 2, 1);
        above = test::attach_button(grid, "Above", 1, 0);
        note(below = test::attach_button(grid, "Below", 0, 2));
    });
    open_menu();
    EXPECT_TRUE(test::has_class(above, "tool-menu-button"));
    EXPECT_FALSE(test::has_class(below, "tool-menu-button"));
    test::click(below);
    EXPECT_TRUE(test::turn_until([&] { return clicks_ == 1; }));
    test::settle_desktop();
    EXPECT_NE(menu(), nullptr);
}

TEST_F(WindowToolMenuGrid, AnEmptyFirstRowBindsNothing) {
    GtkWidget* button = nullptr;
    show([&](GtkGrid* grid) { button = test::attach_button(grid, "Second row", 0, 1); });
    open_menu();
    EXPECT_FALSE(test::has_class(button, "tool-menu-button"));
}

TEST_F(WindowToolMenuGrid, ARowWithOneOfItsCellsFilledDoesNotEndTheWalk) {
    std::vector<GtkWidget*> buttons;
    show([&](GtkGrid* grid) {
        for (int row = 0; row < 5; ++row)
            buttons.push_back(test::attach_button(grid, "Press", (row + 1) % 2, row));
    });
    open_menu();
    for (GtkWidget* button : buttons) EXPECT_TRUE(test::has_class(button, "tool-menu-button"));
}

TEST_F(WindowToolMenuGrid, OtherWidgetsAreLeftAsTheyAre) {
    GtkWidget* label = gtk_label_new("Text");
    GtkWidget* box = gtk_event_box_new();
    GtkWidget* button = nullptr;
    show([&](GtkGrid* grid) {
        gtk_grid_attach(grid, label, 0, 0, 1, 1);
        gtk_grid_attach(grid, box, 0, 1, 1, 1);
        gtk_widget_set_size_request(box, 40, 20);
        button = test::attach_button(grid, "Press", 0, 2);
    });
    open_menu();
    EXPECT_FALSE(test::has_class(label, "tool-menu-button"));
    EXPECT_FALSE(test::has_class(box, "tool-menu-button"));
    EXPECT_TRUE(test::has_class(button, "tool-menu-button"));
    test::click(box);
    test::settle_desktop();
    EXPECT_NE(menu(), nullptr);
}

// It is met in each row and column that it covers.
TEST_F(WindowToolMenuGrid, AButtonThatSpansIsBoundOnce) {
    GtkWidget* wide = nullptr;
    show([&](GtkGrid* grid) {
        test::attach_button(grid, "One", 0, 0);
        note(wide = test::attach_button(grid, "Wide and high", 0, 1, 2, 3));
    });
    GtkWidget* popup = open_menu();
    EXPECT_TRUE(test::has_class(wide, "tool-menu-button"));
    EXPECT_EQ(test::handlers_of(popup, wide, "clicked"), 1u);
    test::click(wide);
    EXPECT_TRUE(closes());
    EXPECT_EQ(clicks_, 1);
}

// Toggles are buttons too.
TEST_F(WindowToolMenuGrid, AToggleClosesTheMenuAndToggles) {
    int toggled = 0;
    GtkWidget* toggle = nullptr;
    show([&](GtkGrid* grid) {
        toggle = gtk_check_button_new_with_label("Option");
        gtk_grid_attach(grid, toggle, 0, 0, 1, 1);
        zo_ui_connect_toogle_click_signal(toggle, [&](GtkToggleButton* button) {
            toggled += gtk_toggle_button_get_active(button) ? 1 : 0;
        });
    });
    open_menu();
    test::click(toggle);
    EXPECT_TRUE(closes());
    EXPECT_EQ(toggled, 1);
}

}  // namespace
