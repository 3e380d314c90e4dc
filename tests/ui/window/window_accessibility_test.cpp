// SPDX-License-Identifier: MIT
// The title bar and the tool menu for those who use neither eyes nor pointer.
#include "ui/window/tool_menu_support.hpp"

#include <cstdlib>

namespace {

const char* const buttons[] = {"title-exit", "title-hint",     "title-shoot", "title-back",
                               "title-menu", "title-minimize", "title-close"};

class WindowAccessibility : public test::ToolMenu {
  protected:
    void SetUp() override {
        test::enable_title_buttons(window_);
        zo_window_set_title(window_, "Notes");
        show([this](GtkGrid* grid) {
            GtkWidget* button = test::attach_button(grid, "Save as", 0, 0);
            zo_ui_connect_button_click_signal(button, [this](GtkWidget*) { ++saved_; });
        });
    }

    // Runs what assistive programs do.
    static std::string assist(std::vector<std::string> arguments) {
        const std::string script =
            std::string(std::getenv("ZO_SOURCE_DIR")) + "/tests/support/accessibility.py";
        arguments.insert(arguments.begin(), {"/usr/bin/python3", script, "zo-test"});
        return test::run_command(arguments);
    }

    std::string name_of(const char* style_class) {
        return test::accessible_name(test::find_class(toplevel_, style_class));
    }

    void press(const char* style_class) { assist({"press", name_of(style_class)}); }

    int saved_ = 0;
};

TEST_F(WindowAccessibility, EveryTitleButtonIsFoundByItsName) {
    const std::string names = assist({"names"});
    for (const char* style_class : buttons) {
        EXPECT_NE(name_of(style_class), "") << style_class;
        EXPECT_NE(names.find("push button: " + name_of(style_class) + "\n"), std::string::npos)
            << style_class << " in\n"
            << names;
    }
}

TEST_F(WindowAccessibility, EveryTitleButtonCanBePressed) {
    std::vector<std::string> calls;
    const auto note = [&](const char* name) {
        return [&calls, name](zo_window_ptr) { calls.push_back(name); };
    };
    zo_window_set_window_exit_app_request_callback(window_, note("exit"));
    zo_window_set_window_hint_request_callback(window_, note("hint"));
    zo_window_set_window_go_back_callback(window_, note("back"));
    zo_window_set_save_to_photo_handler(window_,
                                        [&](zo_window_ptr, GdkPixbuf*) { calls.push_back("photo"); });
    zo_window_set_window_hide_callback(window_, note("hide"));
    zo_window_set_window_close_callback(window_, note("close"));
    for (const char* style_class :
         {"title-exit", "title-hint", "title-back", "title-shoot", "title-minimize"})
        press(style_class);
    EXPECT_TRUE(test::turn_until([&] { return calls.size() == 5; }));
    zo_window_show(window_);
    test::run_tasks();
    press("title-close");
    EXPECT_TRUE(test::turn_until([&] { return calls.size() == 6; }));
    EXPECT_EQ(calls, (std::vector<std::string>{"exit", "hint", "back", "photo", "hide", "close"}));
}

TEST_F(WindowAccessibility, TheToolMenuIsFoundAndPressed) {
    press("title-menu");
    ASSERT_TRUE(test::turn_until([&] { return menu() && test::is_on_screen(menu()); }));
    EXPECT_NE(assist({"names"}).find("push button: Save as\n"), std::string::npos);
    assist({"press", "Save as"});
    EXPECT_TRUE(closes());
    EXPECT_EQ(saved_, 1);
}

TEST_F(WindowAccessibility, TabReachesEveryTitleButton) {
    gdk_window_focus(gtk_widget_get_window(toplevel_), GDK_CURRENT_TIME);
    ASSERT_TRUE(test::turn_until([&] { return gtk_window_is_active(GTK_WINDOW(toplevel_)); }));
    gtk_widget_grab_focus(content_);
    std::vector<GtkWidget*> reached;
    for (GtkWidget* focused = nullptr; focused != content_ && reached.size() < 20;) {
        GtkWidget* const before = gtk_window_get_focus(GTK_WINDOW(toplevel_));
        test::type_key("Tab");
        EXPECT_TRUE(test::turn_until([&] { return gtk_window_get_focus(GTK_WINDOW(toplevel_)) != before; }));
        focused = gtk_window_get_focus(GTK_WINDOW(toplevel_));
        EXPECT_TRUE(gtk_widget_has_visible_focus(focused));
        reached.push_back(focused);
    }
    EXPECT_EQ(reached.size(), std::size(buttons) + 1);
    for (const char* style_class : buttons)
        EXPECT_EQ(std::count(reached.begin(), reached.end(), test::find_class(toplevel_, style_class)), 1)
            << style_class;
}

TEST_F(WindowAccessibility, EnterAndSpacePressATitleButton) {
    int hints = 0;
    zo_window_set_window_hint_request_callback(window_, [&](zo_window_ptr) { ++hints; });
    gdk_window_focus(gtk_widget_get_window(toplevel_), GDK_CURRENT_TIME);
    ASSERT_TRUE(test::turn_until([&] { return gtk_window_is_active(GTK_WINDOW(toplevel_)); }));
    gtk_widget_grab_focus(test::find_class(toplevel_, "title-hint"));
    int expected = 0;
    for (const char* key : {"Return", "space"}) {
        test::type_key(key);
        ++expected;
        EXPECT_TRUE(test::turn_until([&] { return hints == expected; })) << key;
    }
}

}  // namespace
