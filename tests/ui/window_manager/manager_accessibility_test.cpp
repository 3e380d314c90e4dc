// SPDX-License-Identifier: MIT
// The panel for those who use neither eyes nor pointer.
#include "ui/window_manager/panel.hpp"

#include <cstdlib>

namespace {

// Runs what assistive programs do.
std::string assist(std::vector<std::string> arguments) {
    const std::string script = std::string(std::getenv("ZO_SOURCE_DIR")) + "/tests/support/accessibility.py";
    arguments.insert(arguments.begin(), {"/usr/bin/python3", script, "zo-test"});
    return test::run_command(arguments);
}

std::string name_of(GtkWidget* widget) {
    const char* name = atk_object_get_name(gtk_widget_get_accessible(widget));
    return name ? name : "";
}

void expect_found(const std::string& name) {
    ASSERT_NE(name, "");
    const std::string names = assist({"names"});
    EXPECT_NE(names.find("push button: " + name + "\n"), std::string::npos) << name << " in\n" << names;
}

void press(const std::string& name) { assist({"press", name}); }

// One test, since GTK's bridge to assistive programs complains when a new one asks after a window was
// destroyed.
TEST(ManagerAccessibility, EveryButtonIsFoundAndPressed) {
    const test::scoped_panel panel;
    panel.show();
    test::joined_window notes(panel, "notes");
    test::joined_window mail(panel, "mail");
    notes.show();
    mail.open();
    zo_window_set_title(notes, "My notes");
    test::run_tasks();
    ASSERT_TRUE(test::turn_until([] { return !assist({"names"}).empty(); }));

    const std::string unlocked = name_of(test::part("lock-unlocked"));
    expect_found(unlocked);
    press(unlocked);
    EXPECT_TRUE(test::turn_until([&] { return zo_window_manager_get_keep_extended(panel); }));
    const std::string locked = name_of(test::part("lock-locked"));
    EXPECT_NE(locked, unlocked);
    expect_found(locked);
    press(locked);
    EXPECT_TRUE(test::turn_until([&] { return !zo_window_manager_get_keep_extended(panel); }));

    expect_found("My notes");
    expect_found("mail");
    press("My notes");
    EXPECT_TRUE(test::turn_until([&] { return !test::state_of(notes.get()).visible; }));
    press("My notes");
    EXPECT_TRUE(test::turn_until([&] { return test::state_of(notes.get()).visible; }));

    // Each close button says what it does, and of which window.
    GtkWidget* close = test::close_button("mail");
    EXPECT_STREQ(atk_object_get_description(gtk_widget_get_accessible(close)), "mail");
    EXPECT_STREQ(atk_object_get_description(gtk_widget_get_accessible(test::close_button("notes"))),
                 "My notes");
    expect_found(name_of(close));
    press(name_of(close));
    EXPECT_TRUE(test::turn_until(
        [&] { return test::state_of(notes.get()).opened != test::state_of(mail.get()).opened; }));
}

}  // namespace
