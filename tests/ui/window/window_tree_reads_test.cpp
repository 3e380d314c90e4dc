// SPDX-License-Identifier: MIT
// Which properties opening and the title bar read, in which order: each one that is missing is reported.
#include "support/desktop.hpp"
#include "ui/window/tree_support.hpp"
#include "ui/window/window_tables.hpp"

namespace {

constexpr const char* prefix = "\x1b[1;31mZO-SYSTEM**ERROR**\x1b[0;0m: assertion failed: ";

std::string report(const std::string& type, const std::string& name, const std::string& variable, int line) {
    return prefix + ("zo_property_get_extract<" + type + ">(property_list,\"" + name + "\",&" + variable) +
           ") - " + name + " - src/zo_ui/zo_window:" + std::to_string(line);
}

void forget(const zo_window_ptr& window, const std::string& name) {
    const zo_object_ptr object = zo_window_to_object(window);
    object->property_lock(__FILE__, __LINE__);
    object->property_list.erase(name);
    object->property_unlock();
}

TEST(WindowReads, OpeningReadsTwentyThreePropertiesInOrder) {
    const char* flags[] = {"popup-window",
                           "window-managed",
                           "use-rgba-visual",
                           "use-system-decoration",
                           "skip-pager",
                           "skip-taskbar-hint",
                           "re-sizable",
                           "keep-above",
                           "drag-enabled",
                           "use-built-in-title",
                           "enable-title-back",
                           "enable-title-exit",
                           "enable-title-menu",
                           "enable-title-hint",
                           "enable-title-save-to-photo",
                           "enable-title-close",
                           "enable-title-minimize",
                           "enable-content-ads",
                           "use_scroll"};
    const auto variable = [](std::string name) {
        std::replace(name.begin(), name.end(), '-', '_');
        return name;
    };
    test::scoped_window window("w");
    test::run_tasks();
    std::vector<std::string> expected;
    int line = 410;
    expected.push_back(report("std::function<void(zo_window_ptr)>", "window-open", "fn", ++line));
    for (const char* flag : flags) expected.push_back(report("bool", flag, variable(flag), ++line));
    for (const char* text : {"window-title-text", "window-class", "window-id"})
        expected.push_back(report("std::string", text, variable(text), ++line));
    forget(window, "window-open");
    for (const char* flag : flags) forget(window, flag);
    for (const char* text : {"window-title-text", "window-class", "window-id"}) forget(window, text);
    test::captured_output output;
    zo_window_open(window);
    test::run_tasks();
    EXPECT_EQ(output.lines(), expected);
    EXPECT_EQ(expected.size(), 23u);
    EXPECT_EQ(test::toplevels("zo-window").size(), 1u);
}

struct action {
    const char* style_class;
    const char* property;
    const char* type;
    int line;
};

// A read that fails leaves no callback, so nothing else happens; only closing needs none.
TEST(WindowReads, EveryTitleButtonReadsItsCallback) {
    const action actions[] = {
        {"title-exit", "app-exit-request", "std::function<void(zo_window_ptr)>", 841},
        {"title-hint", "hint-request", "std::function<void(zo_window_ptr)>", 841},
        {"title-back", "go-back", "std::function<void(zo_window_ptr)>", 841},
        {"title-shoot", "handle-photo", "std::function<void(zo_window_ptr,GdkPixbuf*)>", 841},
        {"title-menu", "menu-create", "std::function<void(zo_window_ptr,GtkGrid*)>", 901},
        {"title-close", "window-close-request", "std::function<bool(zo_window_ptr)>", 841}};
    test::scoped_window window("w");
    test::enable_title_buttons(window);
    GtkWidget* toplevel = window.show();
    for (const action& row : actions) {
        EXPECT_EQ(test::state_of(window), (test::state{true, true, false})) << row.style_class;
        forget(window, row.property);
        test::captured_output output;
        gtk_button_clicked(GTK_BUTTON(test::find_class(toplevel, row.style_class)));
        ASSERT_EQ(output.lines().size(), 1u) << row.style_class;
        EXPECT_EQ(output.lines()[0], report(row.type, row.property, "fn", row.line));
    }
    EXPECT_EQ(test::state_of(window), (test::state{}));
    EXPECT_TRUE(test::toplevels("tool-menu").empty());
}

TEST(WindowReads, TheToolMenuReadsTheClass) {
    test::scoped_window window("w");
    zo_window_set_enable_title_menu(window, true);
    zo_window_set_menu_create_handler(window, [](zo_window_ptr, GtkGrid*) {});
    GtkWidget* toplevel = window.show();
    forget(window, "window-class");
    test::captured_output output;
    gtk_button_clicked(GTK_BUTTON(test::find_class(toplevel, "title-menu")));
    EXPECT_EQ(output.lines(), (std::vector{report("std::string", "window-class", "window_class", 901)}));
    EXPECT_EQ(test::toplevels("tool-menu").size(), 1u);
}

// A flag that cannot be read is off.
TEST(WindowReads, AWindowWithoutItsFlagsIsBare) {
    test::scoped_window window("w");
    test::run_tasks();
    for (const test::window_flag& flag : test::window_flags) forget(window, flag.property);
    test::captured_output output;
    GtkWidget* toplevel = window.open();
    ASSERT_NE(toplevel, nullptr);
    auto* gtk_window = GTK_WINDOW(toplevel);
    EXPECT_EQ(gtk_window_get_window_type(gtk_window), GTK_WINDOW_TOPLEVEL);
    EXPECT_FALSE(gtk_window_get_skip_taskbar_hint(gtk_window));
    EXPECT_FALSE(gtk_window_get_skip_pager_hint(gtk_window));
    EXPECT_FALSE(gtk_window_get_resizable(gtk_window));
    EXPECT_TRUE(gtk_window_get_decorated(gtk_window)) << "by the desktop, as without a title bar";
    EXPECT_FALSE(test::has_class(toplevel, "managed"));
    EXPECT_FALSE(test::has_handler(toplevel, "screen-changed"));
    for (const char* part : {"title-event-box", "window-ads-container", "window-scroll"})
        EXPECT_EQ(test::find_class(toplevel, part), nullptr) << part;
}

TEST(WindowReads, ATitleBarWithoutItsFlagsHasOnlyTheText) {
    test::scoped_window window("w");
    test::run_tasks();
    for (const test::window_flag& flag : test::window_flags)
        if (flag.property != std::string("use-built-in-title")) forget(window, flag.property);
    test::captured_output output;
    GtkWidget* toplevel = window.open();
    ASSERT_NE(toplevel, nullptr);
    EXPECT_FALSE(gtk_window_get_decorated(GTK_WINDOW(toplevel)));
    EXPECT_EQ(test::children(test::find_class(toplevel, "window-title")).size(), 1u);
    GtkWidget* event_box = test::find_class(toplevel, "title-event-box");
    EXPECT_FALSE(test::has_handler(event_box, "motion-notify-event"));
}

}  // namespace
