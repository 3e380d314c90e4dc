// SPDX-License-Identifier: MIT
// What closes the tool menu, and what does not.
#include "ui/window/tool_menu_support.hpp"

namespace {

class WindowToolMenuClosing : public test::ToolMenu {
  protected:
    void SetUp() override {
        show([this](GtkGrid* grid) {
            button_ = test::attach_button(grid, "Open", 0, 0);
            test::attach_button(grid, "Save", 1, 0);
        });
    }

    bool stays() {
        test::settle_desktop();
        return menu() != nullptr;
    }

    gboolean leave(GdkNotifyType detail, GdkCrossingMode mode) {
        GdkEvent* event = gdk_event_new(GDK_LEAVE_NOTIFY);
        event->crossing.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(menu())));
        event->crossing.detail = detail;
        event->crossing.mode = mode;
        const gboolean handled = gtk_widget_event(menu(), event);
        gdk_event_free(event);
        return handled;
    }

    GtkWidget* button_ = nullptr;
};

TEST_F(WindowToolMenuClosing, APressInTheContent) {
    open_menu();
    int clicks = 0;
    zo_ui_connect_button_click_signal(content_, [&](GtkWidget*) { ++clicks; });
    // Beside the child, where the content's own event box is.
    GtkWidget* event_box = gtk_widget_get_parent(test::find_class(toplevel_, "window-content"));
    GdkEvent* press = gdk_event_new(GDK_BUTTON_PRESS);
    press->button.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(event_box)));
    press->button.button = 3;
    EXPECT_FALSE(gtk_widget_event(event_box, press));
    EXPECT_NE(menu(), nullptr) << "another button than the first";
    press->button.button = 1;
    press->type = GDK_2BUTTON_PRESS;
    EXPECT_FALSE(gtk_widget_event(event_box, press));
    EXPECT_NE(menu(), nullptr) << "the second press of two";
    press->type = GDK_BUTTON_PRESS;
    EXPECT_FALSE(gtk_widget_event(event_box, press)) << "the press goes on";
    EXPECT_EQ(menu(), nullptr);
    gdk_event_free(press);
    EXPECT_EQ(clicks, 0);
}

// Not by the way of leaving the menu: the press alone is real.
TEST_F(WindowToolMenuClosing, ARealPressInTheContentBeforeThePointerEnteredTheMenu) {
    GtkWidget* plain = gtk_label_new("Text");
    gtk_widget_set_size_request(plain, 400, 100);
    gtk_widget_show(plain);
    zo_window_add_content_child(window_, plain, true, true, 0, false);
    test::settle_desktop();
    open_menu();
    test::click(plain);
    EXPECT_TRUE(closes());
}

TEST_F(WindowToolMenuClosing, ThePointerThatLeaves) {
    GtkWidget* popup = open_menu();
    const test::point inside = test::middle_of(button_);
    test::move_pointer(inside.x, inside.y);
    EXPECT_TRUE(stays());
    const test::point middle = test::middle_of(popup);
    test::move_pointer(middle.x, middle.y);
    EXPECT_TRUE(stays()) << "from a button to the ground beside it";
    test::move_pointer(5, 5);
    EXPECT_TRUE(closes());
}

TEST_F(WindowToolMenuClosing, EveryLeaveButIntoAChildAndByAGrab) {
    const struct {
        GdkNotifyType detail;
        GdkCrossingMode mode;
        bool closes;
    } cases[] = {{GDK_NOTIFY_INFERIOR, GDK_CROSSING_NORMAL, false},
                 {GDK_NOTIFY_INFERIOR, GDK_CROSSING_UNGRAB, false},
                 {GDK_NOTIFY_NONLINEAR, GDK_CROSSING_GRAB, false},
                 {GDK_NOTIFY_ANCESTOR, GDK_CROSSING_GRAB, false},
                 {GDK_NOTIFY_NONLINEAR, GDK_CROSSING_NORMAL, true},
                 {GDK_NOTIFY_ANCESTOR, GDK_CROSSING_NORMAL, true},
                 {GDK_NOTIFY_VIRTUAL, GDK_CROSSING_NORMAL, true},
                 {GDK_NOTIFY_NONLINEAR, GDK_CROSSING_UNGRAB, true},
                 {GDK_NOTIFY_NONLINEAR, GDK_CROSSING_GTK_GRAB, false},
                 {GDK_NOTIFY_NONLINEAR, GDK_CROSSING_GTK_UNGRAB, true},
                 {GDK_NOTIFY_NONLINEAR, GDK_CROSSING_STATE_CHANGED, true},
                 {GDK_NOTIFY_INFERIOR, GDK_CROSSING_STATE_CHANGED, false}};
    for (const auto& row : cases) {
        open_menu();
        EXPECT_EQ(leave(row.detail, row.mode) != FALSE, row.closes) << row.detail << " " << row.mode;
        EXPECT_EQ(menu() == nullptr, row.closes) << row.detail << " " << row.mode;
    }
}

TEST_F(WindowToolMenuClosing, HidingTheWindowHidesItAndShowingShowsIt) {
    GtkWidget* popup = open_menu();
    const test::point inside = test::middle_of(button_);
    test::move_pointer(inside.x, inside.y);
    zo_window_hide(window_);
    test::run_tasks();
    EXPECT_FALSE(gtk_widget_get_visible(popup));
    test::settle_desktop();
    EXPECT_EQ(menu(), popup) << "hidden, not closed";
    zo_window_show(window_);
    EXPECT_TRUE(test::turn_until([&] { return menu() && test::is_on_screen(menu()); }));
    EXPECT_EQ(menu(), popup);
    EXPECT_TRUE(stays());
}

TEST_F(WindowToolMenuClosing, ClosingTheWindowClosesIt) {
    open_menu();
    zo_window_close(window_);
    test::run_tasks();
    EXPECT_EQ(menu(), nullptr);
    zo_window_open(window_);
    zo_window_show(window_);
    test::run_tasks();
    EXPECT_EQ(menu(), nullptr);
}

TEST_F(WindowToolMenuClosing, TheWindowsEndFromOutsideClosesIt) {
    open_menu();
    gtk_widget_destroy(toplevel_);
    EXPECT_EQ(menu(), nullptr);
    test::run_tasks();
    EXPECT_FALSE(test::state_of(window_).opened);
}

TEST_F(WindowToolMenuClosing, ItsOwnEndFromOutsideIsNoticed) {
    gtk_widget_destroy(open_menu());
    EXPECT_EQ(menu(), nullptr);
    zo_window_hide(window_);
    test::run_tasks();
    test::settle_desktop();
    zo_window_show(window_);
    test::run_tasks();
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(toplevel_); }));
    test::settle_desktop();
    EXPECT_NE(open_menu(), nullptr);
    EXPECT_EQ(filled_, 2);
}

TEST_F(WindowToolMenuClosing, AButtonMayCloseOrDestroyTheWindow) {
    open_menu();
    zo_ui_connect_button_click_signal(button_, [this](GtkWidget*) {
        zo_window_close(window_);
        test::run_tasks();
    });
    test::click(button_);
    EXPECT_TRUE(test::turn_until([&] { return !test::state_of(window_).opened; }));
    EXPECT_EQ(menu(), nullptr);
    show(nullptr);
    open_menu();
    zo_ui_connect_button_click_signal(button_, [this](GtkWidget*) {
        zo_window_destroy(window_);
        test::run_tasks();
    });
    test::click(button_);
    EXPECT_TRUE(test::turn_until([&] { return test::state_of(window_).destroyed; }));
    EXPECT_EQ(menu(), nullptr);
}

// It keeps the window alive, so that its own handlers find it.
TEST_F(WindowToolMenuClosing, HoldsTheWindowWhileItIsThere) {
    GtkWidget* popup = open_menu();
    zo_window_ptr window = window_;
    EXPECT_FALSE(gtk_widget_in_destruction(popup));
    zo_window_destroy(window);
    window.reset();
    test::run_tasks();
    EXPECT_EQ(menu(), nullptr);
    EXPECT_TRUE(test::state_of(window_).destroyed);
}

// The list of a combo box takes the pointer with it; what is chosen from it arrives.
TEST_F(WindowToolMenuClosing, AListThatOpensFromItDoesNot) {
    GtkWidget* combo = nullptr;
    int chosen = 0;
    set_fill([&](GtkGrid* grid) {
        combo = gtk_combo_box_text_new();
        for (const char* text : {"One", "Two", "Three"})
            gtk_combo_box_text_append_text(GTK_COMBO_BOX_TEXT(combo), text);
        zo_ui_connect_combobox_selection_change_signal(combo, [&](GtkComboBox*) { ++chosen; });
        gtk_grid_attach(grid, combo, 0, 0, 1, 1);
    });
    open_menu();
    test::click(combo);
    gboolean shown = FALSE;
    EXPECT_TRUE(test::turn_until([&] {
        if (menu()) g_object_get(combo, "popup-shown", &shown, nullptr);
        return shown || !menu();
    }));
    EXPECT_TRUE(shown);
    test::type_key("Down");
    test::type_key("Return");
    EXPECT_TRUE(test::turn_until([&] { return chosen == 1; }));
}

}  // namespace
