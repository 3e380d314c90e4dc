// SPDX-License-Identifier: MIT
// Texts much longer than what they are meant for, which would make windows that X cannot have.
#include "support/ui.hpp"

namespace {

std::string times(int count, const std::string& piece) {
    std::string text;
    text.reserve(static_cast<std::size_t>(count) * piece.size());
    for (int i = 0; i < count; ++i) text += piece;
    return text;
}

struct long_text {
    const char* name;
    std::string text;
};

void PrintTo(const long_text& text, std::ostream* out) { *out << text.name; }

const std::vector<long_text>& long_texts() {
    static const std::vector<long_text> all{
        {"OneMebibyte", times(1 << 20, "m")},
        {"Words", times(200000, "word ")},
        {"Lines", times(3000, "line\n")},
        {"LineBreaks", times(400, "\u2028\u2029\r\n")},
        {"WideCharacters", times(4000, "\ufdfd")},
        {"NotUtf8", times(20000, "\xff\xfe")},
        {"BidiControls", times(4000, "\u202eabc \u202c\u2067\u05d0 \u2069\u200f1")},
        {"OpenDirections", times(60000, "\u202e\u2067\u202b")},
        {"Marks", "a" + times(60000, "\u0301\u0302")},
        {"DeepTags", times(3000, "<b><i>") + "deep" + times(3000, "</i></b>")}};
    return all;
}

void expect_on_desktop(GtkWidget* toplevel) {
    EXPECT_LE(gtk_widget_get_allocated_width(toplevel), zo_ui_screen_width());
    EXPECT_LE(gtk_widget_get_allocated_height(toplevel), zo_ui_screen_height());
}

class LongTexts : public testing::TestWithParam<long_text> {
  protected:
    const std::string& text = GetParam().text;
};

TEST_P(LongTexts, AWindowsTitleStaysOnTheDesktop) {
    test::scoped_window window;
    zo_window_set_title(window, text);
    GtkWidget* const toplevel = window.show();
    expect_on_desktop(toplevel);
    GtkWidget* const label = test::find_class(toplevel, "title-text");
    EXPECT_EQ(gtk_label_get_ellipsize(GTK_LABEL(label)), PANGO_ELLIPSIZE_END);
    EXPECT_TRUE(gtk_widget_get_has_tooltip(label));
    // Not on one label for good.
    zo_window_set_title(window, "Short");
    test::run_tasks();
    EXPECT_STREQ(gtk_label_get_text(GTK_LABEL(label)), "Short");
    EXPECT_EQ(gtk_label_get_ellipsize(GTK_LABEL(label)), PANGO_ELLIPSIZE_NONE);
    EXPECT_FALSE(gtk_widget_get_has_tooltip(label));
    zo_window_set_title(window, text);
    test::run_tasks();
    EXPECT_TRUE(
        test::turn_until([&] { return !gtk_widget_get_visible(label) || test::is_on_screen(toplevel); }));
    expect_on_desktop(toplevel);
}

TEST_P(LongTexts, ATaskButtonStaysInThePanel) {
    const zo_window_manager_ptr manager = zo_window_manager_new("");
    zo_window_manager_open(manager);
    zo_window_manager_show(manager);
    test::run_tasks();
    GtkWidget* const panel = test::toplevels("zo-manager").at(0);
    {
        test::scoped_window window;
        zo_window_set_window_manager(window, manager);
        window.open();
        const int before = gtk_widget_get_allocated_height(panel);
        zo_window_set_title(window, text);
        test::run_tasks();
        EXPECT_TRUE(test::turn_until([&] { return test::is_on_screen(panel); }));
        expect_on_desktop(panel);
        EXPECT_LE(gtk_widget_get_allocated_height(panel), before + 20);
    }
    zo_window_manager_close(manager);
    zo_window_manager_destroy(manager);
    test::run_tasks();
}

TEST_P(LongTexts, ANotificationStaysOnTheDesktop) {
    for (const bool is_markup : {false, true}) {
        const zo_notification_ptr notification = zo_notification_new();
        zo_notification_set_title(notification, text);
        zo_notification_set_content(notification, is_markup ? "<b>" + text + "</b>" : text);
        zo_notification_set_is_markup(notification, is_markup);
        zo_notification_add_action(notification, "act", text, [](const std::string&) {});
        zo_notification_open_show(notification);
        test::run_tasks();
        GtkWidget* const popup = test::toplevels("zo-notification").at(0);
        EXPECT_TRUE(test::turn_until([&] { return test::is_on_screen(popup); }));
        expect_on_desktop(popup);
        zo_notification_destroy(notification);
        test::run_tasks();
    }
}

INSTANTIATE_TEST_SUITE_P(All, LongTexts, testing::ValuesIn(long_texts()),
                         [](const auto& info) { return std::string(info.param.name); });

// What the desktop has room for is shown as it is.
TEST(LongText, ThatFitsIsLeftAlone) {
    const std::string title = times(20, "a title of words ");
    test::scoped_window window;
    zo_window_set_title(window, title.substr(0, 200));
    GtkWidget* const label = test::find_class(window.show(), "title-text");
    EXPECT_EQ(gtk_label_get_text(GTK_LABEL(label)), title.substr(0, 200));
    EXPECT_EQ(gtk_label_get_ellipsize(GTK_LABEL(label)), PANGO_ELLIPSIZE_NONE);

    const zo_notification_ptr notification = zo_notification_new();
    const std::string content = times(15, "A line of the content\n") + "<i>last</i>";
    zo_notification_set_content(notification, content);
    zo_notification_open_show(notification);
    test::run_tasks();
    GtkWidget* const shown = test::find_class(test::toplevels("zo-notification").at(0), "content-text");
    EXPECT_EQ(gtk_label_get_text(GTK_LABEL(shown)), times(15, "A line of the content\n") + "last");
    EXPECT_EQ(gtk_label_get_ellipsize(GTK_LABEL(shown)), PANGO_ELLIPSIZE_NONE);
    zo_notification_destroy(notification);
    test::run_tasks();
}

// It is measured, and not shown before its window is.
TEST(LongText, IsHiddenUntilItsWindowIsShown) {
    test::scoped_window window;
    zo_window_set_title(window, times(20, "a title of words "));
    GtkWidget* const label = test::find_class(window.open(), "title-text");
    EXPECT_FALSE(gtk_widget_get_visible(label));
}

std::string content_shown(const std::string& content) {
    const zo_notification_ptr notification = zo_notification_new();
    zo_notification_set_content(notification, content);
    zo_notification_open_show(notification);
    test::run_tasks();
    GtkWidget* const label = test::find_class(test::toplevels("zo-notification").at(0), "content-text");
    std::string shown = gtk_label_get_text(GTK_LABEL(label));
    zo_notification_destroy(notification);
    test::run_tasks();
    return shown;
}

// What has no width is cut where it stands in a long row: laying it out would hold the loop up for seconds.
TEST(LongText, HasNoLongRowsOfCharactersWithoutWidth) {
    const std::string row = times(10000, "\u202e");
    EXPECT_EQ(content_shown("before" + row + "after"), "before" + times(8, "\u202e") + "after");
    // Marks that a reader sees are kept.
    const std::string marked = times(5000, "a\u0301\u0302");
    EXPECT_EQ(content_shown(marked), marked.substr(0, 4000 / 3 * 5 + 1) + "…");
}

}  // namespace
