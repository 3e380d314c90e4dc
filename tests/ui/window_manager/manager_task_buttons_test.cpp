// SPDX-License-Identifier: MIT
// The task row: which buttons stand where, what they show, and when they go.
#include "ui/window_manager/panel.hpp"

namespace {

class ManagerTaskButtons : public testing::Test {
  protected:
    static void expect_opacity(const std::string& id, double opacity) {
        ASSERT_TRUE(test::task_button(id) && test::close_button(id)) << id;
        EXPECT_NEAR(gtk_widget_get_opacity(test::task_button(id)), opacity, 0.005) << id;
        EXPECT_NEAR(gtk_widget_get_opacity(test::close_button(id)), opacity, 0.005) << id;
    }

    test::scoped_panel panel;
};

std::string tooltip_of(GtkWidget* widget) {
    char* text = gtk_widget_get_tooltip_text(widget);
    const std::string tooltip = text ? text : "";
    g_free(text);
    return tooltip;
}

TEST_F(ManagerTaskButtons, EachNewPairStandsLeftOfTheOthers) {
    panel.open();
    test::joined_window a(panel, "a");
    test::joined_window b(panel, "b");
    EXPECT_EQ(test::row(), "");
    a.open();
    EXPECT_EQ(test::row(), "a x");
    b.open();
    EXPECT_EQ(test::row(), "b x a x");
    panel.show();
    int x = -1;
    for (GtkWidget* button :
         {test::task_button("b"), test::close_button("b"), test::task_button("a"), test::close_button("a")}) {
        const int before = x;
        gtk_widget_translate_coordinates(button, test::panel(), 0, 0, &x, nullptr);
        EXPECT_GT(x, before);
    }
}

TEST_F(ManagerTaskButtons, ShowTheTitle) {
    const std::string title = "A title that is much longer than a button of the row should be";
    panel.open();
    test::joined_window a(panel, "a");
    zo_window_set_title(a, title);
    a.open();
    GtkWidget* button = test::task_button("a");
    ASSERT_TRUE(button);
    EXPECT_EQ(G_OBJECT_TYPE(button), GTK_TYPE_BUTTON);
    EXPECT_EQ(gtk_button_get_label(GTK_BUTTON(button)), title);
    EXPECT_EQ(tooltip_of(button), title);
    EXPECT_STREQ(atk_object_get_name(gtk_widget_get_accessible(button)), title.c_str());
    EXPECT_EQ(gtk_widget_get_margin_start(button), 2);
    EXPECT_TRUE(gtk_widget_get_visible(button));
    GtkWidget* label = gtk_bin_get_child(GTK_BIN(button));
    EXPECT_EQ(gtk_label_get_ellipsize(GTK_LABEL(label)), PANGO_ELLIPSIZE_END);
    GtkWidget* close = test::close_button("a");
    EXPECT_TRUE(test::has_class(close, "title-close"));
    EXPECT_TRUE(test::has_class(close, "size-16"));
    EXPECT_FALSE(tooltip_of(close).empty());
    expect_opacity("a", 1.0);
}

TEST_F(ManagerTaskButtons, AreRelabelledAtOnce) {
    test::joined_window a(panel, "a");
    a.open();
    zo_window_set_title(a, "while closed");
    panel.open();
    GtkWidget* button = test::task_button("a");
    ASSERT_TRUE(button);
    EXPECT_STREQ(gtk_button_get_label(GTK_BUTTON(button)), "while closed");
    zo_window_set_title(a, "_new");
    test::run_tasks();
    EXPECT_EQ(test::task_button("a"), button);
    EXPECT_STREQ(gtk_button_get_label(GTK_BUTTON(button)), "_new");
    EXPECT_EQ(tooltip_of(button), "_new");
    GtkWidget* label = gtk_bin_get_child(GTK_BIN(button));
    EXPECT_STREQ(gtk_label_get_text(GTK_LABEL(label)), "_new");
    EXPECT_EQ(gtk_label_get_ellipsize(GTK_LABEL(label)), PANGO_ELLIPSIZE_END);
}

TEST_F(ManagerTaskButtons, AWindowWithoutAnIdHasAnUnnamedButton) {
    panel.open();
    test::joined_window a(panel, "");
    a.open();
    EXPECT_EQ(test::row(), "GtkButton x");
}

TEST_F(ManagerTaskButtons, PopupsHaveNone) {
    panel.open();
    test::joined_window a(panel, "a");
    zo_window_set_popup_window(a, true);
    a.open();
    EXPECT_EQ(test::row(), "");
    a.run(zo_window_show);
    a.run(zo_window_hide);
    a.run(zo_window_close);
    EXPECT_EQ(test::row(), "");
}

TEST_F(ManagerTaskButtons, AreDimmedWhileTheWindowIsHidden) {
    panel.show();
    test::joined_window a(panel, "a");
    test::joined_window b(panel, "b");
    a.show();
    b.show();
    a.run(zo_window_hide);
    expect_opacity("a", 0.6);
    expect_opacity("b", 1.0);
    a.run(zo_window_show);
    expect_opacity("a", 1.0);
}

TEST_F(ManagerTaskButtons, GoWithTheWindowAndComeWithIt) {
    panel.open();
    test::joined_window a(panel, "a");
    test::joined_window b(panel, "b");
    a.open();
    b.open();
    a.run(zo_window_close);
    EXPECT_EQ(test::row(), "b x");
    a.open();
    EXPECT_EQ(test::row(), "a x b x");
    gtk_button_clicked(GTK_BUTTON(test::task_button("a")));
    EXPECT_TRUE(test::state_of(a.get()).visible);
    gtk_button_clicked(GTK_BUTTON(test::task_button("a")));
    EXPECT_FALSE(test::state_of(a.get()).visible);
}

TEST_F(ManagerTaskButtons, OfWindowsThatWereOpenBefore) {
    test::joined_window a(panel, "a");
    test::joined_window b(panel, "b");
    a.open();
    b.open();
    panel.open();
    EXPECT_EQ(test::row(), "b x a x");
    expect_opacity("a", 0.6);  // not shown yet
}

TEST_F(ManagerTaskButtons, OfWindowsThatAreOpenWhenTheyJoin) {
    panel.show();
    test::scoped_window shown("shown");
    test::scoped_window hidden("hidden");
    shown.show();
    hidden.show();
    zo_window_hide(hidden);
    test::run_tasks();
    panel.join(shown);
    panel.join(hidden);
    EXPECT_EQ(test::row(), "hidden x shown x");
    expect_opacity("shown", 1.0);
    expect_opacity("hidden", 0.6);
}

// There is no panel whose window it could be; the panel that opens later has it.
TEST_F(ManagerTaskButtons, AWindowThatJoinsWithoutAPanelStaysInSight) {
    test::scoped_window window("a");
    window.open();
    panel.join(window);
    zo_window_show(window);
    test::run_tasks();
    EXPECT_TRUE(test::state_of(window.get()).visible);
    panel.open();
    EXPECT_EQ(test::row(), "a x");
    expect_opacity("a", 1.0);
}

TEST_F(ManagerTaskButtons, OfAReopenedPanelInTheOrderOfOpening) {
    panel.show();
    test::joined_window a(panel, "a");
    test::joined_window b(panel, "b");
    test::joined_window c(panel, "c");
    for (test::joined_window* window : {&a, &b, &c}) window->show();
    a.run(zo_window_close);
    a.show();
    EXPECT_EQ(test::row(), "a x c x b x");
    panel.close();
    EXPECT_FALSE(test::state_of(b.get()).visible);
    panel.open();
    EXPECT_EQ(test::row(), "a x c x b x");
    expect_opacity("b", 0.6);
    gtk_button_clicked(GTK_BUTTON(test::task_button("b")));
    EXPECT_TRUE(test::state_of(b.get()).visible);
    expect_opacity("b", 1.0);
}

// A stranger is ignored.
TEST_F(ManagerTaskButtons, AWindowThatIsNotJoinedHasNone) {
    panel.open();
    test::scoped_window window("a");
    window.show();
    EXPECT_EQ(test::row(), "");
}

}  // namespace
