// SPDX-License-Identifier: MIT
// A button that the application takes out of the tool menu's grid and keeps, longer than the menu and the
// window.
#include "ui/window/tool_menu_support.hpp"

namespace {

class WindowToolMenuKept : public test::ToolMenu {
  protected:
    void SetUp() override {
        show([this](GtkGrid* grid) {
            button_ = GTK_WIDGET(g_object_ref(test::attach_button(grid, "Keep", 0, 0)));
            g_signal_connect_swapped(button_, "clicked", G_CALLBACK(note), this);
        });
        open_menu();
    }
    void TearDown() override {
        gtk_widget_destroy(button_);
        g_object_unref(button_);
    }

    static void note(WindowToolMenuKept* self) {
        ++self->clicks_;
        if (self->on_click_) self->on_click_();
    }

    void take_out() { gtk_container_remove(GTK_CONTAINER(gtk_widget_get_parent(button_)), button_); }

    GtkWidget* button_ = nullptr;
    int clicks_ = 0;
    std::function<void()> on_click_;
};

TEST_F(WindowToolMenuKept, TakenOutByItsOwnClickStillClosesTheMenu) {
    on_click_ = [this] { take_out(); };
    gtk_button_clicked(GTK_BUTTON(button_));
    EXPECT_EQ(menu(), nullptr);
    EXPECT_EQ(clicks_, 1);
    on_click_ = nullptr;
    gtk_button_clicked(GTK_BUTTON(button_));
    EXPECT_EQ(clicks_, 2);
    EXPECT_EQ(gtk_widget_get_parent(button_), nullptr);
}

TEST_F(WindowToolMenuKept, DoesNotCloseALaterMenu) {
    take_out();
    gtk_widget_destroy(menu());
    set_fill([](GtkGrid* grid) { test::attach_button(grid, "Other", 0, 0); });
    GtkWidget* later = open_menu();
    gtk_button_clicked(GTK_BUTTON(button_));
    EXPECT_EQ(menu(), later);
    EXPECT_EQ(clicks_, 1);
}

TEST_F(WindowToolMenuKept, OutlivesTheWindow) {
    take_out();
    {
        test::scoped_window ending("ending");
        zo_window_set_enable_title_menu(ending, true);
        zo_window_set_menu_create_handler(
            ending, [this](zo_window_ptr, GtkGrid* grid) { gtk_grid_attach(grid, button_, 0, 0, 1, 1); });
        GtkWidget* toplevel = ending.open();
        gtk_button_clicked(GTK_BUTTON(test::find_class(toplevel, "title-menu")));
        ASSERT_NE(gtk_widget_get_parent(button_), nullptr);
        take_out();
    }
    gtk_button_clicked(GTK_BUTTON(button_));
    EXPECT_EQ(clicks_, 1);
}

// What the other window's menu binds is the other menu's.
TEST_F(WindowToolMenuKept, InAnotherWindowsMenuClosesThatOne) {
    take_out();
    GtkWidget* first = menu();
    test::scoped_window other("other");
    zo_window_set_enable_title_menu(other, true);
    zo_window_set_menu_create_handler(
        other, [this](zo_window_ptr, GtkGrid* grid) { gtk_grid_attach(grid, button_, 1, 0, 1, 1); });
    GtkWidget* toplevel = other.show();
    gtk_widget_destroy(first);
    gtk_button_clicked(GTK_BUTTON(test::find_class(toplevel, "title-menu")));
    GtkWidget* second = menu();
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(gtk_window_get_transient_for(GTK_WINDOW(second)), GTK_WINDOW(toplevel));
    EXPECT_EQ(test::handlers_of(second, button_, "clicked"), 1u);
    gtk_button_clicked(GTK_BUTTON(button_));
    EXPECT_EQ(menu(), nullptr);
    EXPECT_TRUE(test::state_of(other).opened);
}

// The menu's window was closed and forgotten, and the button moved on before.
TEST_F(WindowToolMenuKept, IsClickedAfterItsWindowWasDestroyed) {
    take_out();
    GtkWidget* home = GTK_WIDGET(g_object_ref_sink(gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0)));
    gtk_container_add(GTK_CONTAINER(home), button_);
    zo_window_destroy(window_);
    test::run_tasks();
    gtk_button_clicked(GTK_BUTTON(button_));
    EXPECT_EQ(clicks_, 1);
    gtk_container_remove(GTK_CONTAINER(home), button_);
    gtk_widget_destroy(home);
    g_object_unref(home);
}

}  // namespace
