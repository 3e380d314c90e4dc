// SPDX-License-Identifier: MIT
// The title bar by keyboard.
#include "support/desktop.hpp"
#include "ui/window/tree_support.hpp"

namespace {

const char* const buttons[] = {"title-exit", "title-hint",     "title-shoot", "title-back",
                               "title-menu", "title-minimize", "title-close"};

class WindowTitleKeys : public testing::Test {
  protected:
    void SetUp() override {
        test::enable_title_buttons(window_);
        toplevel_ = window_.open();
        content_ = test::block(400, 200);
        zo_window_add_content_child(window_, content_, true, true, 0, false);
        zo_window_show(window_);
        ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(toplevel_); }));
        // Without a window manager nobody gives the focus.
        gdk_window_focus(gtk_widget_get_window(toplevel_), GDK_CURRENT_TIME);
        ASSERT_TRUE(test::turn_until([&] { return gtk_window_is_active(GTK_WINDOW(toplevel_)); }));
    }

    test::scoped_window window_{"w"};
    GtkWidget* toplevel_ = nullptr;
    GtkWidget* content_ = nullptr;
};

TEST_F(WindowTitleKeys, TabReachesEveryTitleButton) {
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

TEST_F(WindowTitleKeys, EnterAndSpacePressATitleButton) {
    int hints = 0;
    zo_window_set_window_hint_request_callback(window_, [&](zo_window_ptr) { ++hints; });
    gtk_widget_grab_focus(test::find_class(toplevel_, "title-hint"));
    int expected = 0;
    for (const char* key : {"Return", "space"}) {
        test::type_key(key);
        ++expected;
        EXPECT_TRUE(test::turn_until([&] { return hints == expected; })) << key;
    }
}

}  // namespace
