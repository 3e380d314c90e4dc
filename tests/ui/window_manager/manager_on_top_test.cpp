// SPDX-License-Identifier: MIT
// The panel and the notifications are above every window, whoever opens or raises one later; menus and other
// popups stay above them.
#include "ui/window_manager/panel.hpp"

// After GoogleTest: Xlib's macros have common names.
#include <gdk/gdkx.h>
#include <algorithm>

namespace {

// How high the screen's window that this one is in, or is, stands among the others.
std::ptrdiff_t height_of(Window window) {
    Display* display = XOpenDisplay(nullptr);
    std::ptrdiff_t height = -1;
    for (Window root = None, parent = None; height < 0; window = parent) {
        Window* children = nullptr;
        unsigned count = 0;
        if (!XQueryTree(display, window, &root, &parent, &children, &count)) break;
        if (children) XFree(children);
        if (parent != root) continue;
        XQueryTree(display, root, &root, &parent, &children, &count);
        height = std::find(children, children + count, window) - children;
        if (children) XFree(children);
    }
    XCloseDisplay(display);
    return height;
}

std::ptrdiff_t height_of(GtkWidget* toplevel) {
    return height_of(gdk_x11_window_get_xid(gtk_widget_get_window(toplevel)));
}

bool becomes_higher(GtkWidget* one, GtkWidget* other) {
    return test::turn_until([&] { return height_of(one) > height_of(other); }, std::chrono::seconds(5));
}

// A window of somebody else, over the top of the screen.
GtkWidget* plain_window(bool decorated) {
    GtkWidget* window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_window_set_decorated(GTK_WINDOW(window), decorated);
    gtk_window_set_default_size(GTK_WINDOW(window), 400, 300);
    gtk_window_move(GTK_WINDOW(window), 200, 0);
    gtk_widget_show_all(window);
    EXPECT_TRUE(test::turn_until([&] { return test::is_on_screen(window); }));
    return window;
}

GtkWidget* plain_popup() {
    GtkWidget* popup = gtk_window_new(GTK_WINDOW_POPUP);
    gtk_window_move(GTK_WINDOW(popup), 300, 0);
    gtk_widget_show_all(popup);
    EXPECT_TRUE(test::turn_until([&] { return test::is_on_screen(popup); }));
    return popup;
}

class ManagerOnTop : public testing::TestWithParam<bool> {
  protected:
    void SetUp() override {
        panel_.keep_extended(GetParam());
        top_ = panel_.show();
        ASSERT_TRUE(GetParam() ? test::is_extended() : test::is_retracted());
    }

    test::scoped_panel panel_;
    GtkWidget* top_ = nullptr;
};

TEST_P(ManagerOnTop, OfWindowsThatComeLater) {
    for (const bool decorated : {true, false}) {
        GtkWidget* window = plain_window(decorated);
        EXPECT_TRUE(becomes_higher(top_, window)) << (decorated ? "decorated" : "undecorated");
        gtk_widget_destroy(window);
    }
}

// Of another program, which has made it long before it shows it.
TEST_P(ManagerOnTop, OfAWindowThatWasMadeBefore) {
    Display* other = XOpenDisplay(nullptr);
    const Window window = XCreateSimpleWindow(other, DefaultRootWindow(other), 200, 0, 400, 300, 0, 0, 0);
    XSync(other, False);
    test::settle_desktop();
    XMapWindow(other, window);
    XSync(other, False);
    EXPECT_TRUE(
        test::turn_until([&] { return height_of(top_) > height_of(window); }, std::chrono::seconds(5)));
    XCloseDisplay(other);
}

TEST_P(ManagerOnTop, OfTheLibrarysOwnWindows) {
    test::joined_window window(panel_, "w");
    GtkWidget* toplevel = window.show();
    zo_window_move(window, 100, 0);
    zo_window_activate(window);
    test::run_tasks();
    EXPECT_TRUE(becomes_higher(top_, toplevel));
}

TEST_P(ManagerOnTop, OfWindowsThatAreRaised) {
    GtkWidget* first = plain_window(false);
    GtkWidget* second = plain_window(false);
    for (GtkWidget* window : {first, second, first}) {
        gdk_window_raise(gtk_widget_get_window(window));
        EXPECT_TRUE(becomes_higher(window, window == first ? second : first));
        EXPECT_TRUE(becomes_higher(top_, window));
    }
    gtk_widget_destroy(first);
    gtk_widget_destroy(second);
}

// The second time nothing but its height has changed since the server told of it last.
TEST_P(ManagerOnTop, OfAWindowThatIsRaisedAgain) {
    if (test::session_wm() != "none") return;  // where the window manager tells of it in its list
    GtkWidget* window = plain_window(false);
    EXPECT_TRUE(becomes_higher(top_, window));
    for (int round = 0; round < 3; ++round) {
        gdk_window_raise(gtk_widget_get_window(window));
        gdk_display_sync(gdk_display_get_default());
        EXPECT_GT(height_of(window), height_of(top_));
        EXPECT_TRUE(becomes_higher(top_, window)) << round;
    }
    gtk_widget_destroy(window);
}

// A frame is a popup with a window that is looked after. Not every window manager tells of a raised one in
// its list.
TEST_P(ManagerOnTop, OfFramesThatAreRaised) {
    GtkWidget* frame = plain_popup();
    GdkWindow* native = gtk_widget_get_window(frame);
    const GdkAtom state = gdk_atom_intern("WM_STATE", FALSE);
    const unsigned long normal[] = {1, None};
    gdk_property_change(native, state, state, 32, GDK_PROP_MODE_REPLACE,
                        reinterpret_cast<const guchar*>(normal), 2);
    for (int round = 0; round < 2; ++round) {
        gdk_window_lower(native);  // the server tells of no raising of what is highest already
        gdk_window_raise(native);
        gdk_display_sync(gdk_display_get_default());
        EXPECT_GT(height_of(frame), height_of(top_));
        EXPECT_TRUE(becomes_higher(top_, frame));
    }
    gtk_widget_destroy(frame);
}

// A menu that hangs over the panel is not covered when the panel goes above a window.
TEST_P(ManagerOnTop, ButNotOfOtherPopups) {
    GtkWidget* window = plain_window(false);
    GtkWidget* popup = plain_popup();
    for (int round = 0; round < 5; ++round) {
        gdk_window_raise(gtk_widget_get_window(window));
        gdk_window_raise(gtk_widget_get_window(popup));
        EXPECT_TRUE(becomes_higher(top_, window));
        test::settle_desktop();
        EXPECT_TRUE(becomes_higher(popup, top_));
    }
    gtk_widget_destroy(window);
    gtk_widget_destroy(popup);
}

// Whoever insists wins: there is no end to it otherwise.
TEST_P(ManagerOnTop, LetsAWindowBeThatInsists) {
    if (test::session_wm() != "none") return;  // where it is the window manager's to raise windows
    GtkWidget* window = plain_window(false);
    const auto stays = [&] {
        gdk_window_raise(gtk_widget_get_window(window));
        for (int events = 0; events < 3; ++events) test::settle_desktop();
        return height_of(window) > height_of(top_);
    };
    EXPECT_TRUE(test::turn_until(stays));
    gtk_widget_destroy(window);
}

TEST_P(ManagerOnTop, AndSoAreNotifications) {
    zo_notification_ptr notification = zo_notification_new();
    zo_notification_set_title(notification, "Title");
    zo_notification_set_content(notification, "Content");
    zo_notification_set_manager(notification, panel_);
    zo_notification_open_show(notification);
    test::run_tasks();
    GtkWidget* popup = test::toplevels("zo-notification").front();
    EXPECT_TRUE(test::turn_until([&] { return test::is_on_screen(popup); }));
    GtkWidget* window = plain_window(false);
    int x = 0;
    int y = 0;
    gtk_window_get_position(GTK_WINDOW(popup), &x, &y);
    gtk_window_move(GTK_WINDOW(window), x, y);
    EXPECT_TRUE(becomes_higher(popup, window));
    EXPECT_TRUE(becomes_higher(popup, top_));
    gtk_widget_destroy(window);
    zo_notification_destroy(notification);
    test::run_tasks();
}

INSTANTIATE_TEST_SUITE_P(Panel, ManagerOnTop, testing::Values(true, false), [](const auto& info) {
    return info.param ? std::string("Extended") : std::string("Retracted");
});

}  // namespace
