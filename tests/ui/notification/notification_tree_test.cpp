// SPDX-License-Identifier: MIT
// The widgets of a popup, from the outside in.
#include "ui/notification/popup.hpp"

#include <algorithm>

namespace {

struct packing {
    gboolean expand = FALSE;
    gboolean fill = FALSE;
    guint padding = 0;
    GtkPackType end = GTK_PACK_START;
    bool operator==(const packing&) const = default;
};

packing packing_of(GtkWidget* child) {
    packing found;
    gtk_box_query_child_packing(GTK_BOX(gtk_widget_get_parent(child)), child, &found.expand, &found.fill,
                                &found.padding, &found.end);
    return found;
}

std::vector<std::string> classes_of(GtkWidget* widget) {
    std::vector<std::string> found;
    GList* list = gtk_style_context_list_classes(gtk_widget_get_style_context(widget));
    for (GList* item = list; item; item = item->next) found.emplace_back(static_cast<char*>(item->data));
    g_list_free(list);
    return found;
}

struct size {
    int width = 0;
    int height = 0;
    bool operator==(const size&) const = default;
};

size request_of(GtkWidget* widget) {
    size found;
    gtk_widget_get_size_request(widget, &found.width, &found.height);
    return found;
}

class NotificationTree : public testing::Test {
  protected:
    void show() {
        popup = notification.show();
        ASSERT_TRUE(popup);
        wrapper = gtk_bin_get_child(GTK_BIN(popup));
    }

    test::scoped_notification notification{"The title", "The content"};
    GtkWidget* popup = nullptr;
    GtkWidget* wrapper = nullptr;
};

TEST_F(NotificationTree, TheWindow) {
    show();
    auto* window = GTK_WINDOW(popup);
    EXPECT_EQ(gtk_window_get_window_type(window), GTK_WINDOW_POPUP);
    size standard;
    gtk_window_get_default_size(window, &standard.width, &standard.height);
    EXPECT_EQ(standard, (size{500, -1}));
    EXPECT_TRUE(gtk_widget_get_can_focus(popup));
    EXPECT_TRUE(gtk_window_get_skip_taskbar_hint(window));
    EXPECT_TRUE(gtk_window_get_skip_pager_hint(window));
    EXPECT_TRUE(test::has_class(popup, "zo-notification"));
    EXPECT_STREQ(gtk_window_get_title(window), "The title");
    EXPECT_FALSE(gtk_window_get_decorated(window));
    EXPECT_FALSE(gtk_window_get_resizable(window));
    EXPECT_EQ(gtk_window_get_type_hint(window), GDK_WINDOW_TYPE_HINT_NOTIFICATION);
    const guint id = g_signal_lookup("screen-changed", GTK_TYPE_WIDGET);
    EXPECT_TRUE(g_signal_handler_find(
        popup, static_cast<GSignalMatchType>(G_SIGNAL_MATCH_ID | G_SIGNAL_MATCH_FUNC), id, 0, nullptr,
        reinterpret_cast<gpointer>(&zo_ui_gtk_fix_visual_rgba_on_screen_changed), nullptr));
    GdkVisual* with_alpha = gdk_screen_get_rgba_visual(gdk_screen_get_default());
    EXPECT_EQ(gtk_widget_get_visual(popup), with_alpha);
    for (const char* hint : {"_NET_WM_STATE_ABOVE", "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"})
        EXPECT_TRUE(test::x_property_becomes(popup, "_NET_WM_STATE", hint)) << hint;
    EXPECT_EQ(test::x_property(popup, "_NET_WM_WINDOW_TYPE"),
              "_NET_WM_WINDOW_TYPE(ATOM) = _NET_WM_WINDOW_TYPE_NOTIFICATION\n");
}

TEST_F(NotificationTree, AnEmptyTitleIsNoWindowTitle) {
    const test::scoped_notification untitled("", "c");
    GtkWidget* other = untitled.show();
    ASSERT_TRUE(other);
    EXPECT_FALSE(gtk_window_get_title(GTK_WINDOW(other)));
    EXPECT_STREQ(gtk_label_get_text(GTK_LABEL(untitled.part("title-text"))), "");
}

TEST_F(NotificationTree, TheTitleBox) {
    show();
    EXPECT_STREQ(gtk_widget_get_name(wrapper), "window-wrapper");
    EXPECT_EQ(gtk_orientable_get_orientation(GTK_ORIENTABLE(wrapper)), GTK_ORIENTATION_VERTICAL);
    EXPECT_EQ(gtk_box_get_spacing(GTK_BOX(wrapper)), 0);
    EXPECT_FALSE(gtk_box_get_homogeneous(GTK_BOX(wrapper)));
    const std::vector<GtkWidget*> parts = test::children(wrapper);
    ASSERT_EQ(parts.size(), 2U);
    GtkWidget* title = parts[0];
    EXPECT_TRUE(test::has_class(title, "window-title"));
    EXPECT_EQ(gtk_orientable_get_orientation(GTK_ORIENTABLE(title)), GTK_ORIENTATION_HORIZONTAL);
    EXPECT_EQ(gtk_box_get_spacing(GTK_BOX(title)), 0);
    EXPECT_EQ(request_of(title), (size{300, 16}));
    EXPECT_EQ(packing_of(title), packing{});
    GtkWidget* label = gtk_box_get_center_widget(GTK_BOX(title));
    ASSERT_TRUE(GTK_IS_LABEL(label));
    EXPECT_TRUE(test::has_class(label, "title-text"));
    EXPECT_STREQ(gtk_label_get_text(GTK_LABEL(label)), "The title");
    GtkWidget* close = test::find_class(title, "title-close");
    ASSERT_TRUE(GTK_IS_BUTTON(close));
    EXPECT_TRUE(test::has_class(close, "size-16"));
    EXPECT_EQ(packing_of(close), packing{});
    char* tip = gtk_widget_get_tooltip_markup(close);
    EXPECT_EQ(tip ? tip : "", zo_ui_get_translate("tooltip_close_notification"));
    g_free(tip);
}

TEST_F(NotificationTree, TheContent) {
    show();
    GtkWidget* content = test::children(wrapper)[1];
    EXPECT_TRUE(test::has_class(content, "content"));
    EXPECT_TRUE(test::has_class(content, "no-actions"));
    EXPECT_EQ(gtk_orientable_get_orientation(GTK_ORIENTABLE(content)), GTK_ORIENTATION_HORIZONTAL);
    EXPECT_EQ(gtk_box_get_spacing(GTK_BOX(content)), 4);
    EXPECT_EQ(packing_of(content), (packing{TRUE, TRUE, 0}));
    ASSERT_EQ(test::children(content).size(), 1U);
    GtkWidget* row = test::children(content)[0];
    EXPECT_EQ(gtk_orientable_get_orientation(GTK_ORIENTABLE(row)), GTK_ORIENTATION_HORIZONTAL);
    EXPECT_EQ(gtk_box_get_spacing(GTK_BOX(row)), 0);
    EXPECT_EQ(gtk_widget_get_halign(row), GTK_ALIGN_START);
    EXPECT_EQ(gtk_widget_get_valign(row), GTK_ALIGN_CENTER);
    EXPECT_EQ(packing_of(row), (packing{FALSE, FALSE, 20}));
    ASSERT_EQ(test::children(row).size(), 1U);
    GtkWidget* padding = test::children(row)[0];
    EXPECT_EQ(packing_of(padding), packing{});
    GtkWidget* text = test::find_class(padding, "content-text");
    ASSERT_TRUE(GTK_IS_LABEL(text));
    auto* label = GTK_LABEL(text);
    EXPECT_TRUE(gtk_label_get_selectable(label));
    EXPECT_FALSE(gtk_label_get_single_line_mode(label));
    EXPECT_EQ(gtk_label_get_max_width_chars(label), 30);
    EXPECT_EQ(request_of(text), (size{500, -1}));
    EXPECT_TRUE(gtk_label_get_line_wrap(label));
    EXPECT_EQ(gtk_label_get_line_wrap_mode(label), PANGO_WRAP_WORD);
    EXPECT_EQ(gtk_label_get_xalign(label), 0.0F);
    EXPECT_STREQ(gtk_label_get_text(label), "The content");
}

TEST_F(NotificationTree, WithoutActionsThereIsNoActionBox) {
    show();
    EXPECT_EQ(test::children(wrapper).size(), 2U);
    EXPECT_FALSE(notification.part("action-box"));
    EXPECT_FALSE(notification.part("invisible"));
}

TEST_F(NotificationTree, SeveralActionsStandInTheirOrder) {
    for (const char* name : {"zebra", "ant", "bee"}) notification.add_action(name, std::string("L ") + name);
    show();
    const std::vector<GtkWidget*> parts = test::children(wrapper);
    ASSERT_EQ(parts.size(), 4U);
    EXPECT_FALSE(test::has_class(parts[1], "no-actions"));
    EXPECT_TRUE(test::has_class(parts[2], "invisible"));
    EXPECT_EQ(gtk_orientable_get_orientation(GTK_ORIENTABLE(parts[2])), GTK_ORIENTATION_VERTICAL);
    EXPECT_EQ(request_of(parts[2]), (size{1, 1}));
    EXPECT_EQ(packing_of(parts[2]), packing{});
    EXPECT_TRUE(test::has_class(parts[3], "action-box"));
    EXPECT_EQ(gtk_orientable_get_orientation(GTK_ORIENTABLE(parts[3])), GTK_ORIENTATION_HORIZONTAL);
    EXPECT_EQ(gtk_box_get_spacing(GTK_BOX(parts[3])), 1);
    EXPECT_EQ(packing_of(parts[3]), packing{});
    std::vector<std::string> names;
    for (GtkWidget* button : test::children(parts[3])) {
        names.emplace_back(gtk_widget_get_name(button));
        EXPECT_EQ(gtk_button_get_label(GTK_BUTTON(button)), "L " + names.back());
        EXPECT_EQ(packing_of(button), (packing{TRUE, TRUE, 0}));
        EXPECT_FALSE(test::has_class(button, "only_one"));
    }
    EXPECT_EQ(names, (std::vector<std::string>{"zebra", "ant", "bee"}));
}

TEST_F(NotificationTree, TheOnlyActionIsMarked) {
    notification.add_action("go", "Go");
    show();
    std::vector<std::string> classes = classes_of(notification.action("go"));
    GtkWidget* plain = gtk_button_new_with_label("Go");
    g_object_ref_sink(plain);
    std::vector<std::string> expected = classes_of(plain);
    g_object_unref(plain);
    expected.emplace_back("only_one");
    std::sort(classes.begin(), classes.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(classes, expected);
}

TEST_F(NotificationTree, AnActionKeepsItsFirstLabel) {
    notification.add_action("go", "First");
    notification.add_action("go", "Second");
    show();
    ASSERT_EQ(test::children(notification.part("action-box")).size(), 1U);
    EXPECT_STREQ(gtk_button_get_label(GTK_BUTTON(notification.action("go"))), "First");
}

TEST_F(NotificationTree, NothingIsWiderThanItsPlace) {
    const std::string word(400, 'w');
    const test::scoped_notification wide(word, word + " and " + word);
    for (const char* name : {"a", "b", "c"}) wide.add_action(name, word);
    GtkWidget* other = wide.show();
    EXPECT_TRUE(test::is_on_screen(other) || test::turn_until([&] { return test::is_on_screen(other); }));
    EXPECT_LE(gtk_widget_get_allocated_width(other), 560);
    char* tip = gtk_widget_get_tooltip_text(wide.part("title-text"));
    EXPECT_EQ(tip ? tip : "", word);
    g_free(tip);
}

TEST_F(NotificationTree, ATitleOfManyLinesIsShownInOne) {
    std::string title;
    for (int line = 0; line < 9; ++line) title += std::string(30, 'w') + "\n";
    const test::scoped_notification high(title, "c");
    ASSERT_TRUE(high.show());
    std::string shown = title;
    std::replace(shown.begin(), shown.end(), '\n', ' ');
    EXPECT_STREQ(gtk_label_get_text(GTK_LABEL(high.part("title-text"))), shown.c_str());
}

}  // namespace
