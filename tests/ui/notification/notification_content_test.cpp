// SPDX-License-Identifier: MIT
// What a popup says: markup, plain text, and what is neither.
#include "support/log_check.hpp"
#include "ui/notification/popup.hpp"

namespace {

constexpr const char* fallback = "setting text instead of markap after error";

struct shown {
    std::string text;    // without markup
    std::string markup;  // as it was set
    std::vector<std::string> lines;
};

shown show(const std::string& content, bool is_markup) {
    const test::scoped_notification notification("t", content);
    EXPECT_TRUE(zo_notification_set_is_markup(notification, is_markup));
    const test::captured_output output;
    EXPECT_TRUE(notification.show());
    auto* label = GTK_LABEL(notification.part("content-text"));
    return {gtk_label_get_text(label), gtk_label_get_label(label), output.lines()};
}

TEST(NotificationContent, IsMarkupByDefault) {
    const test::scoped_notification notification("t", "<b>bold</b> &amp; plain");
    const test::captured_output output;
    notification.show();
    EXPECT_STREQ(gtk_label_get_text(GTK_LABEL(notification.part("content-text"))), "bold & plain");
    EXPECT_EQ(output.text(), "");
}

TEST(NotificationContent, PlainTextIsTakenAsItIs) {
    const shown plain = show("<b>bold</b> &amp;", false);
    EXPECT_EQ(plain.text, "<b>bold</b> &amp;");
    EXPECT_TRUE(plain.lines.empty());
}

TEST(NotificationContent, BrokenMarkupIsShownLiterallyWithOneLine) {
    const test::expected_glib_message from_gtk("Failed to set text");
    const shown broken = show("an <b>unclosed tag", true);
    EXPECT_EQ(broken.text, "an <b>unclosed tag");
    EXPECT_EQ(broken.lines, std::vector<std::string>{fallback});
}

TEST(NotificationContent, MarkupThatSaysNothingIsShownLiterally) {
    const shown nothing = show("<b></b>", true);
    EXPECT_EQ(nothing.text, "<b></b>");
    EXPECT_EQ(nothing.lines, std::vector<std::string>{fallback});
}

TEST(NotificationContent, EmptyIsNoError) {
    const shown empty = show("", true);
    EXPECT_EQ(empty.text, "");
    EXPECT_TRUE(empty.lines.empty());
}

TEST(NotificationContent, WhatIsNotUtf8IsShownAsFarAsItCanBeRead) {
    const shown latin = show("caf\xe9", false);
    EXPECT_EQ(latin.text, "caf\xef\xbf\xbd");
    const shown markup = show("<b>caf\xe9</b>", true);
    EXPECT_EQ(markup.text, "<b>caf\xef\xbf\xbd</b>");
    EXPECT_EQ(markup.lines, std::vector<std::string>{fallback});
    const test::scoped_notification titled("caf\xe9", "c");
    titled.show();
    const std::vector<GtkWidget*> popups = test::toplevels("zo-notification");
    ASSERT_EQ(popups.size(), 1U);
    EXPECT_STREQ(gtk_window_get_title(GTK_WINDOW(popups[0])), "caf\xef\xbf\xbd");
}

TEST(NotificationContent, IsReadOnceWhenItOpens) {
    const test::scoped_notification notification("first", "first");
    notification.show();
    zo_notification_set_title(notification, "second");
    zo_notification_set_content(notification, "second");
    notification.add_action("late", "Late");
    notification.show();
    ASSERT_TRUE(notification.popup());
    EXPECT_STREQ(gtk_label_get_text(GTK_LABEL(notification.part("content-text"))), "first");
    EXPECT_FALSE(notification.part("action-box"));
    EXPECT_EQ(test::toplevels("zo-notification").size(), 1U);
}

}  // namespace
