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
        ASSERT_TRUE(test::turn_until([] { return !assist({"names"}).empty(); }));
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

// One test, since GTK's bridge to assistive programs complains when a new one asks after a window was
// destroyed.
TEST_F(WindowAccessibility, EveryTitleButtonAndTheToolMenuAreFoundAndPressed) {
    const std::string names = assist({"names"});
    for (const char* style_class : buttons) {
        EXPECT_NE(name_of(style_class), "") << style_class;
        EXPECT_NE(names.find("push button: " + name_of(style_class) + "\n"), std::string::npos)
            << style_class << " in\n"
            << names;
    }

    std::vector<std::string> calls;
    const auto note = [&](const char* name) {
        return [&calls, name](zo_window_ptr) { calls.push_back(name); };
    };
    zo_window_set_window_exit_app_request_callback(window_, note("title-exit"));
    zo_window_set_window_hint_request_callback(window_, note("title-hint"));
    zo_window_set_window_go_back_callback(window_, note("title-back"));
    zo_window_set_save_to_photo_handler(window_,
                                        [&](zo_window_ptr, GdkPixbuf*) { calls.push_back("title-shoot"); });
    zo_window_set_window_close_request_callback(window_, [&](zo_window_ptr) {
        calls.push_back("title-close");
        return true;
    });
    zo_window_set_window_hide_callback(window_, note("title-minimize"));
    const std::vector<std::string> pressed{"title-exit",  "title-hint",  "title-back",
                                           "title-shoot", "title-close", "title-minimize"};
    for (const std::string& style_class : pressed) press(style_class.c_str());
    EXPECT_TRUE(test::turn_until([&] { return calls.size() == pressed.size(); }));
    EXPECT_EQ(calls, pressed);
    zo_window_show(window_);
    test::run_tasks();

    press("title-menu");
    ASSERT_TRUE(test::turn_until([&] { return menu() && test::is_on_screen(menu()); }));
    EXPECT_NE(assist({"names"}).find("push button: Save as\n"), std::string::npos);
    assist({"press", "Save as"});
    EXPECT_TRUE(closes());
    EXPECT_EQ(saved_, 1);
}

}  // namespace
