// SPDX-License-Identifier: MIT
// A desktop without the new tray but with the old one, of embedded windows: the icon is one of them, and a
// real click opens the menu. jwm's panel has such a tray.
#include "support/desktop.hpp"
#include "support/log_check.hpp"
#include "ui/appindicator/indicator.hpp"

// After GoogleTest: Xlib's macros have common names.
#include <gdk/gdkx.h>
#include <algorithm>

namespace {

// The tray icons of this program that are docked and on screen, as X sees them.
std::vector<Window> docked(Window parent, std::vector<Window> found = {}) {
    Display* const display = GDK_DISPLAY_XDISPLAY(gdk_display_get_default());
    const Atom embedded = XInternAtom(display, "_XEMBED_INFO", False);
    Window root = 0;
    Window above = 0;
    Window* children = nullptr;
    unsigned int count = 0;
    gdk_x11_display_error_trap_push(gdk_display_get_default());
    XQueryTree(display, parent, &root, &above, &children, &count);
    for (unsigned int i = 0; i < count; ++i) {
        int properties = 0;
        Atom* const names = XListProperties(display, children[i], &properties);
        XWindowAttributes state{};
        XGetWindowAttributes(display, children[i], &state);
        if (std::find(names, names + properties, embedded) != names + properties && parent != root &&
            state.map_state == IsViewable)
            found.push_back(children[i]);
        if (names) XFree(names);
        found = docked(children[i], found);
    }
    if (children) XFree(children);
    gdk_x11_display_error_trap_pop_ignored(gdk_display_get_default());
    return found;
}

std::vector<Window> docked() { return docked(GDK_ROOT_WINDOW()); }

void click_window(Window window) {
    Display* const display = GDK_DISPLAY_XDISPLAY(gdk_display_get_default());
    XWindowAttributes state{};
    XGetWindowAttributes(display, window, &state);
    int x = 0;
    int y = 0;
    Window child = 0;
    XTranslateCoordinates(display, window, state.root, state.width / 2, state.height / 2, &x, &y, &child);
    test::click_at(x, y);
}

// GTK's own, whenever such an icon gets its place.
class AppindicatorFallback : public testing::Test {
    const test::expected_glib_message gtk_says_{"gdk_window_thaw_toplevel_updates"};
};

TEST_F(AppindicatorFallback, IsAnEmbeddedIconWithTheMenu) {
    test::scoped_indicator indicator("embedded");
    int called = 0;
    indicator.count("a", "A", called);
    indicator.show();
    ASSERT_TRUE(test::turn_until([] { return docked().size() == 1; }));
    ASSERT_EQ(test::menus().size(), 1U);
    GtkWidget* const menu = test::menus()[0];
    click_window(docked().at(0));
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(menu); }));
    test::click(test::find_name(menu, "a"));
    EXPECT_TRUE(test::turn_until([&] { return called == 1; }));
    indicator.destroy();
    EXPECT_TRUE(test::turn_until([] { return docked().empty(); }));
    EXPECT_EQ(indicator.get().use_count(), 1);
}

// The menu goes while it is on screen.
TEST_F(AppindicatorFallback, IsDestroyedWithItsMenuOpen) {
    test::scoped_indicator indicator("open");
    int called = 0;
    indicator.count("a", "A", called);
    indicator.show();
    ASSERT_TRUE(test::turn_until([] { return docked().size() == 1; }));
    click_window(docked().at(0));
    ASSERT_TRUE(test::turn_until([] { return test::is_on_screen(test::menus().at(0)); }));
    indicator.destroy();
    EXPECT_TRUE(test::menus().empty());
    EXPECT_TRUE(test::turn_until([] { return docked().empty(); }));
    EXPECT_EQ(indicator.get().use_count(), 1);
}

}  // namespace
