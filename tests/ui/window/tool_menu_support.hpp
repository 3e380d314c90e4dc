// SPDX-License-Identifier: MIT
// A shown window whose tool menu the test fills.
#pragma once

#include "support/desktop.hpp"
#include "ui/window/tree_support.hpp"

namespace test {

class ToolMenu : public testing::Test {
  protected:
    // `fill` is called for each menu, unless it is empty.
    void show(std::function<void(GtkGrid*)> fill) {
        zo_window_set_enable_title_menu(window_, true);
        if (fill) set_fill(std::move(fill));
        toplevel_ = window_.open();
        content_ = block(400, 200);
        zo_window_add_content_child(window_, content_, true, true, 0, false);
        zo_window_show(window_);
        ASSERT_TRUE(turn_until([&] { return is_on_screen(toplevel_); }));
        settle_desktop();
    }

    void set_fill(std::function<void(GtkGrid*)> fill) {
        zo_window_set_menu_create_handler(window_,
                                          [this, fill = std::move(fill)](zo_window_ptr, GtkGrid* grid) {
                                              ++filled_;
                                              fill(grid);
                                          });
    }

    GtkWidget* menu_button() { return find_class(toplevel_, "title-menu"); }

    // Null when there is none.
    static GtkWidget* menu() {
        const auto all = toplevels("tool-menu");
        EXPECT_LE(all.size(), 1u);
        return all.empty() ? nullptr : all[0];
    }

    // By a real click on the menu button, until the menu is on screen.
    GtkWidget* open_menu() {
        const int before = filled_;
        click(menu_button());
        EXPECT_TRUE(turn_until([&] { return filled_ > before && menu() && is_on_screen(menu()); }));
        settle_desktop();
        return menu();
    }

    static bool closes() {
        return turn_until([] { return !menu(); });
    }

    scoped_window window_{"w"};
    GtkWidget* toplevel_ = nullptr;
    GtkWidget* content_ = nullptr;
    int filled_ = 0;
};

// A shown button with a text, attached to the grid.
inline GtkWidget* attach_button(GtkGrid* grid, const char* text, int column, int row, int width = 1,
                                int height = 1) {
    GtkWidget* button = gtk_button_new_with_label(text);
    gtk_grid_attach(grid, button, column, row, width, height);
    return button;
}

}  // namespace test
