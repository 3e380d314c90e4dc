// SPDX-License-Identifier: MIT
// What a task button shows of its window's title, and which windows have one at all.
#include "ui/window_manager/panel.hpp"

namespace {

class ManagerTaskTitles : public testing::Test {
  protected:
    static std::string label_of(const std::string& id) {
        GtkWidget* button = test::task_button(id);
        EXPECT_TRUE(button);
        return button ? gtk_button_get_label(GTK_BUTTON(button)) : "(none)";
    }
    static void set_title(const zo_window_ptr& window, const std::string& title) {
        EXPECT_TRUE(zo_window_set_title(window, title));
        test::run_tasks();
    }

    test::scoped_panel panel;
};

TEST_F(ManagerTaskTitles, OfAHiddenWindowChangeToo) {
    panel.show();
    test::joined_window a(panel, "a");
    a.show();
    a.run(zo_window_hide);
    set_title(a, "hidden");
    EXPECT_EQ(label_of("a"), "hidden");
    EXPECT_NEAR(gtk_widget_get_opacity(test::task_button("a")), 0.6, 0.005);
    panel.run(zo_window_manager_hide);
    set_title(a, "under a hidden panel");
    EXPECT_EQ(label_of("a"), "under a hidden panel");
}

TEST_F(ManagerTaskTitles, MayBeEmpty) {
    panel.open();
    test::joined_window a(panel, "a");
    set_title(a, "");
    a.open();
    EXPECT_EQ(label_of("a"), "");
    EXPECT_EQ(gtk_widget_get_tooltip_text(test::task_button("a")), nullptr);
    set_title(a, "text");
    EXPECT_EQ(label_of("a"), "text");
    set_title(a, "");
    EXPECT_EQ(label_of("a"), "");
    EXPECT_EQ(gtk_widget_get_tooltip_text(test::task_button("a")), nullptr);
}

TEST_F(ManagerTaskTitles, AreNoMarkup) {
    panel.open();
    test::joined_window a(panel, "a");
    set_title(a, "<b>1 & 2</b> _x");
    a.open();
    GtkWidget* label = gtk_bin_get_child(GTK_BIN(test::task_button("a")));
    EXPECT_STREQ(gtk_label_get_text(GTK_LABEL(label)), "<b>1 & 2</b> _x");
    char* tooltip = gtk_widget_get_tooltip_text(test::task_button("a"));
    EXPECT_STREQ(tooltip, "<b>1 & 2</b> _x");
    g_free(tooltip);
}

// Past a width it grows no more.
TEST_F(ManagerTaskTitles, AreShownAsFarAsTheyCanBeRead) {
    panel.show();
    test::joined_window a(panel, "a");
    set_title(a, "caf\xe9");
    a.open();
    EXPECT_EQ(label_of("a"), "caf\xef\xbf\xbd");
    set_title(a, "\xe9t\xe9");
    EXPECT_EQ(label_of("a"), "\xef\xbf\xbdt\xef\xbf\xbd");
}

TEST_F(ManagerTaskTitles, HaveAWidestButton) {
    panel.show();
    test::joined_window a(panel, "a");
    a.open();
    const auto width_with = [&](std::size_t letters) {
        set_title(a, std::string(letters, 'm'));
        int width = 0;
        gtk_widget_get_preferred_width(test::task_button("a"), nullptr, &width);
        return width;
    };
    const int few = width_with(5);
    const int many = width_with(100);
    EXPECT_LT(few, many);
    EXPECT_EQ(many, width_with(1000));
    EXPECT_LT(many, zo_ui_screen_width() / 4);
    EXPECT_LT(width_with(5), many);
}

TEST_F(ManagerTaskTitles, OfPopupsAreNowhere) {
    test::joined_window early(panel, "early");
    zo_window_set_popup_window(early, true);
    early.open();
    panel.show();
    test::joined_window late(panel, "late");
    zo_window_set_popup_window(late, true);
    late.show();
    test::scoped_window joining("joining");
    zo_window_set_popup_window(joining, true);
    joining.show();
    panel.join(joining);
    for (const zo_window_ptr& window : {early.get(), late.get(), joining.get()}) set_title(window, "text");
    EXPECT_EQ(test::row(), "");
    late.run(zo_window_close);
    zo_window_set_window_manager(joining, {});
    test::run_tasks();
    EXPECT_EQ(test::row(), "");
}

// A popup has no button, but its panel all the same.
TEST_F(ManagerTaskTitles, APopupOfAClosedPanelGoesOutOfSight) {
    test::joined_window popup(panel, "popup");
    zo_window_set_popup_window(popup, true);
    popup.open();
    popup.run(zo_window_show);
    EXPECT_EQ(test::state_of(popup.get()), test::state{.opened = true});
    EXPECT_TRUE(zo_window_get_bool_property(popup, "window-restore-visible"));
    panel.show();
    EXPECT_TRUE(test::state_of(popup.get()).visible);
    panel.run(zo_window_manager_hide);
    EXPECT_FALSE(test::state_of(popup.get()).visible);
}

// Open is enough: the panel need not be on screen.
TEST_F(ManagerTaskTitles, AWindowOfAHiddenPanelStays) {
    panel.open();
    test::joined_window a(panel, "a");
    a.show();
    EXPECT_TRUE(test::state_of(a.get()).visible);
    panel.show();
    panel.run(zo_window_manager_hide);
    EXPECT_FALSE(test::state_of(a.get()).visible);
    a.run(zo_window_show);
    EXPECT_TRUE(test::state_of(a.get()).visible);
}

}  // namespace
