// SPDX-License-Identifier: MIT
// The tool menu by keyboard: real keys, which reach the window under the popup.
#include "ui/window/tool_menu_support.hpp"

namespace {

// Two columns, two rows, and a wide button below.
class WindowToolMenuKeys : public test::ToolMenu {
  protected:
    void SetUp() override {
        show([this](GtkGrid* grid) {
            buttons_.clear();
            clicked_.clear();
            for (int cell = 0; cell < 5; ++cell) {
                GtkWidget* button = test::attach_button(grid, "Press", cell % 2, cell / 2, cell < 4 ? 1 : 2);
                zo_ui_connect_button_click_signal(button,
                                                  [this, cell](GtkWidget*) { clicked_.push_back(cell); });
                buttons_.push_back(button);
            }
        });
        entry_ = gtk_entry_new();
        gtk_widget_show(entry_);
        zo_window_add_content_child(window_, entry_, false, false, 0, false);
        focus_window();
    }

    // Without a window manager nobody gives the focus.
    void focus_window() {
        gdk_window_focus(gtk_widget_get_window(toplevel_), GDK_CURRENT_TIME);
        ASSERT_TRUE(test::turn_until([&] { return gtk_window_is_active(GTK_WINDOW(toplevel_)); }));
        test::settle_desktop();
    }

    // Keys arrive in order, so what the last one did is done when this returns.
    void type(const std::string& key) {
        struct seen {
            bool released = false;
            static gboolean note(GtkWidget*, GdkEventKey*, seen* self) {
                self->released = true;
                return FALSE;
            }
        } waiting;
        const gulong id = g_signal_connect(toplevel_, "key-release-event", G_CALLBACK(seen::note), &waiting);
        test::type_key(key);
        EXPECT_TRUE(test::turn_until([&] { return waiting.released; })) << key;
        g_signal_handler_disconnect(toplevel_, id);
    }

    // The cell that has the focus, as a user sees it; -1 for none.
    int focused() {
        for (std::size_t cell = 0; menu() && cell < buttons_.size(); ++cell)
            if (gtk_widget_has_visible_focus(buttons_[cell])) return static_cast<int>(cell);
        return -1;
    }

    std::vector<GtkWidget*> buttons_;
    std::vector<int> clicked_;
    GtkWidget* entry_ = nullptr;
};

TEST_F(WindowToolMenuKeys, EscapeClosesIt) {
    open_menu();
    type("Escape");
    EXPECT_EQ(menu(), nullptr);
    EXPECT_TRUE(clicked_.empty());
}

TEST_F(WindowToolMenuKeys, ArrowsMoveTheFocusFromTheFirstButton) {
    open_menu();
    EXPECT_EQ(focused(), -1);
    const std::pair<const char*, int> steps[] = {
        {"Down", 0},    {"Right", 1},   {"Down", 3},  {"Left", 2}, {"Up", 0},  {"KP_Right", 1},
        {"KP_Left", 0}, {"KP_Down", 2}, {"KP_Up", 0}, {"Tab", 1},  {"Tab", 2}, {"shift+Tab", 1}};
    for (const auto& [key, cell] : steps) {
        type(key);
        EXPECT_EQ(focused(), cell) << key;
    }
}

TEST_F(WindowToolMenuKeys, TheFirstKeyEntersAtItsEnd) {
    const std::pair<const char*, int> entries[] = {{"Down", 0}, {"Right", 0}, {"Tab", 0},
                                                   {"Up", 4},   {"Left", 4},  {"shift+Tab", 4}};
    for (const auto& [key, cell] : entries) {
        open_menu();
        type(key);
        EXPECT_EQ(focused(), cell) << key;
        type("Escape");
    }
}

TEST_F(WindowToolMenuKeys, GoRoundInTheMenu) {
    open_menu();
    for (const int cell : {0, 1, 2, 3, 4, 0}) {
        type("Tab");
        EXPECT_EQ(focused(), cell);
    }
    type("shift+Tab");
    EXPECT_EQ(focused(), 4);
    type("Down");
    EXPECT_NE(focused(), -1);
    type("Up");
    EXPECT_NE(focused(), -1);
}

TEST_F(WindowToolMenuKeys, EnterAndSpacePressTheFocusedButton) {
    for (const char* key : {"Return", "KP_Enter", "space"}) {
        open_menu();
        type("Down");
        type("Right");
        test::type_key(key);  // its release goes to the pressed button
        EXPECT_TRUE(closes()) << key;
        EXPECT_EQ(clicked_, std::vector<int>{1}) << key;
    }
}

// As long as nobody went into the menu by keyboard, its keys are the window's.
TEST_F(WindowToolMenuKeys, NothingIsPressedUnseen) {
    gtk_widget_grab_focus(entry_);
    open_menu();
    gtk_widget_grab_focus(entry_);
    for (const char* key : {"a", "space", "b", "Return"}) type(key);
    EXPECT_STREQ(gtk_entry_get_text(GTK_ENTRY(entry_)), "a b");
    EXPECT_NE(menu(), nullptr);
    EXPECT_TRUE(clicked_.empty());
    zo_window_hide(window_);
    zo_window_show(window_);
    test::run_tasks();
    EXPECT_TRUE(test::turn_until([&] { return menu() && test::is_on_screen(menu()); }));
    test::settle_desktop();
    focus_window();
    type("space");
    EXPECT_NE(menu(), nullptr);
    EXPECT_TRUE(clicked_.empty());
}

TEST_F(WindowToolMenuKeys, WithControlOrAltAreTheApplications) {
    open_menu();
    type("Down");
    for (const char* key : {"ctrl+Down", "alt+Right", "ctrl+Return", "super+Down"}) {
        type(key);
        EXPECT_EQ(focused(), 0) << key;
    }
    EXPECT_TRUE(clicked_.empty());
}

TEST_F(WindowToolMenuKeys, WithoutAMenuGoToTheWindow) {
    gtk_widget_grab_focus(entry_);
    for (const char* key : {"a", "space", "b", "Left", "c", "Escape", "Return"}) type(key);
    EXPECT_STREQ(gtk_entry_get_text(GTK_ENTRY(entry_)), "a cb");
    EXPECT_TRUE(gtk_widget_is_focus(entry_));
    open_menu();
    type("Escape");
    gtk_widget_grab_focus(entry_);
    type("d");
    EXPECT_NE(std::string(gtk_entry_get_text(GTK_ENTRY(entry_))).find('d'), std::string::npos);
}

// The keyboard alone opens the menu, goes into it and presses.
TEST_F(WindowToolMenuKeys, OpensFromTheTitleBarAndPresses) {
    gtk_widget_grab_focus(menu_button());
    test::type_key("Return");
    ASSERT_TRUE(test::turn_until([&] { return menu() && test::is_on_screen(menu()); }));
    type("Down");
    EXPECT_EQ(focused(), 0);
    test::type_key("Return");
    EXPECT_TRUE(closes());
    EXPECT_EQ(clicked_, std::vector<int>{0});
}

TEST_F(WindowToolMenuKeys, AnEmptyMenuTakesThemWithoutHarm) {
    set_fill([](GtkGrid*) {});
    open_menu();
    for (const char* key : {"Down", "Tab", "Up", "Return"}) type(key);
    type("Escape");
    EXPECT_EQ(menu(), nullptr);
}

// Once, since the menu's end moves the focus, too.
gboolean take_away(GtkWidget* popup) {
    g_signal_handlers_disconnect_by_func(popup, reinterpret_cast<gpointer>(take_away), nullptr);
    gtk_widget_destroy(popup);
    return FALSE;
}

// Each step into the menu is told to the application, which may have seen enough of it.
TEST_F(WindowToolMenuKeys, AHandlerMayTakeTheMenuAway) {
    for (const char* signal : {"set-focus", "focus-in-event"}) {
        for (const char* key : {"Down", "Tab", "Up"}) {
            open_menu();
            g_signal_connect(menu(), signal, G_CALLBACK(take_away), nullptr);
            type(key);
            EXPECT_EQ(menu(), nullptr) << signal << " " << key;
        }
    }
    EXPECT_TRUE(clicked_.empty());
}

}  // namespace
