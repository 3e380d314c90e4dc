// SPDX-License-Identifier: MIT
// Popups on a screen of two device pixels for each logical one, or with text from right to left; which of
// them the argument says. Places are read by another program, and a real pointer presses.
#include "ui/notification/popup.hpp"

#include <cstdlib>
#include <sstream>

namespace {

bool scaled = false;

// Before the toolkit looks at the screen.
bool prepare(int* argc, char*** argv) {
    scaled = *argc > 1 && std::string((*argv)[1]) == "scaled";
    if (scaled) setenv("GDK_SCALE", "2", 1);
    if (!test::prepare_ui(argc, argv)) return false;
    gtk_widget_set_default_direction(scaled ? GTK_TEXT_DIR_LTR : GTK_TEXT_DIR_RTL);
    return true;
}
const test::preparation ready{prepare};

// The corner of a popup in device pixels, as the server tells everybody.
test::spot corner_of(GtkWidget* popup) {
    std::istringstream lines(test::run_command({"xwininfo", "-id", test::x_window(popup)}));
    test::spot found;
    for (std::string line; std::getline(lines, line);) {
        if (line.find("Absolute upper-left X:") != std::string::npos)
            found.x = std::stoi(line.substr(line.find(':') + 1));
        if (line.find("Absolute upper-left Y:") != std::string::npos)
            found.y = std::stoi(line.substr(line.find(':') + 1));
    }
    return found;
}

bool corner_comes_to(GtkWidget* popup, int x, int y) {
    const int scale = scaled ? 2 : 1;
    return test::turn_until([&] { return test::is_on_screen(popup); }) && test::turn_until([&] {
               return corner_of(popup) == test::spot{x * scale, y * scale};
           });
}

int x_in(GtkWidget* popup, GtkWidget* part) {
    int x = 0;
    gtk_widget_translate_coordinates(part, popup, 0, 0, &x, nullptr);
    return x;
}

TEST(NotificationPlaces, TheStackIsInLogicalPixels) {
    const test::scoped_notification first("1", "one");
    const test::scoped_notification second("2", "two\nlines");
    GtkWidget* a = first.show();
    GtkWidget* b = second.show();
    EXPECT_TRUE(corner_comes_to(a, 50, 75)) << corner_of(a);
    EXPECT_TRUE(corner_comes_to(b, 50, 75 + test::height_of(a) + 2)) << corner_of(b);
    test::click(first.part("title-close"));
    EXPECT_TRUE(test::turn_until([&] { return !first.popup(); }));
    EXPECT_TRUE(corner_comes_to(b, 50, 75)) << corner_of(b);
}

TEST(NotificationPlaces, TheCloseButtonStandsBeforeTheTitle) {
    const test::scoped_notification notification("a title", "content");
    GtkWidget* popup = notification.show();
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(popup); }));
    const int close = x_in(popup, notification.part("title-close"));
    const int title = x_in(popup, notification.part("title-text"));
    if (scaled)
        EXPECT_LT(close, title);
    else
        EXPECT_GT(close, title);
}

TEST(NotificationPlaces, AnActionIsPressed) {
    std::string pressed;
    const test::scoped_notification notification("a title", "content");
    zo_notification_add_action(notification, "one", "One", [&](const std::string& name) { pressed += name; });
    notification.add_action("two", "Two");
    GtkWidget* popup = notification.show();
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(popup); }));
    test::click(notification.action("one"));
    EXPECT_TRUE(test::turn_until([&] { return !notification.popup(); }));
    EXPECT_EQ(pressed, "one");
}

}  // namespace
