// SPDX-License-Identifier: MIT
// Id, class and title: the property at once, the widgets and the change callback on the loop.
#include "ui/window/property_steps.hpp"
#include "ui/window/window_tables.hpp"

namespace {

using changes = std::vector<std::string>;

std::function<void(zo_window_ptr, std::string)> noting(changes& noted) {
    return [&noted](const zo_window_ptr&, const std::string& text) { noted.push_back(text); };
}

class WindowTexts : public testing::TestWithParam<test::window_text_row> {
  protected:
    std::string get() {
        std::string text = "replaced";
        EXPECT_TRUE(GetParam().get(window, text));
        return text;
    }
    void set(const std::string& text) { EXPECT_TRUE(GetParam().set(window, text)); }

    changes noted;
    test::captured_output output;
    test::scoped_window window{""};
};

TEST_P(WindowTexts, AreStoredAtOnceAndToldOnTheLoop) {
    GetParam().set_callback(window, noting(noted));
    set("new");
    EXPECT_EQ(get(), "new");
    EXPECT_EQ(noted, changes());
    test::run_tasks();
    EXPECT_EQ(noted, changes{"new"});
    EXPECT_EQ(output.text(), "");
}

TEST_P(WindowTexts, AnEqualTextIsNoChange) {
    GetParam().set_callback(window, noting(noted));
    set("same");
    set("same");
    test::run_tasks();
    EXPECT_EQ(noted, changes{"same"});
    set("same");
    test::run_tasks();
    EXPECT_EQ(noted, changes{"same"});
    set(GetParam().initial);
    set(GetParam().initial);
    test::run_tasks();
    EXPECT_EQ(noted, (changes{"same", GetParam().initial}));
}

TEST_P(WindowTexts, AreComparedByteForByte) {
    GetParam().set_callback(window, noting(noted));
    const std::string with_null("a\0b", 3);
    for (const std::string& text : {std::string("a"), with_null, std::string("a b"), std::string("A b")}) {
        set(text);
        EXPECT_EQ(get(), text);
    }
    test::run_tasks();
    EXPECT_EQ(noted, (changes{"a", with_null, "a b", "A b"}));
}

TEST_P(WindowTexts, EveryChangeOfARowIsToldWithItsOwnText) {
    GetParam().set_callback(window, noting(noted));
    set("one");
    set("two");
    EXPECT_EQ(get(), "two");
    set("one");
    test::run_tasks();
    EXPECT_EQ(noted, (changes{"one", "two", "one"}));
}

TEST_P(WindowTexts, ACallbackMayChangeTheTextAgain) {
    GetParam().set_callback(window, [&](const zo_window_ptr& w, const std::string& text) {
        noted.push_back(text);
        if (noted.size() < 3) GetParam().set(w, text + "+");
    });
    window.open();
    set("x");
    test::run_tasks();
    EXPECT_EQ(noted, (changes{"x", "x+", "x++"}));
    EXPECT_EQ(get(), "x++");
}

TEST_P(WindowTexts, AreToldInEveryStateButTheEnd) {
    GetParam().set_callback(window, noting(noted));
    set("opened");
    zo_window_open(window);
    set("shown");
    zo_window_show(window);
    set("closed");
    zo_window_close(window);
    set("after");
    test::run_tasks();
    EXPECT_EQ(noted, (changes{"opened", "shown", "closed", "after"}));
    zo_window_destroy(window);
    set("destroyed");
    test::run_tasks();
    EXPECT_EQ(noted.size(), 4U);
    EXPECT_EQ(get(), "destroyed");
    EXPECT_EQ(output.text(), "");
}

INSTANTIATE_TEST_SUITE_P(All, WindowTexts, testing::ValuesIn(test::window_texts),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(WindowId, IsTheNameOfTheToplevelAndOfTheContentBox) {
    test::scoped_window window("first");
    GtkWidget* toplevel = window.open();
    ASSERT_TRUE(toplevel);
    GtkWidget* content = test::find_class(toplevel, "window-content");
    EXPECT_STREQ(gtk_widget_get_name(content), "messageboxfirst");
    zo_window_set_id(window, "second");
    EXPECT_STREQ(gtk_widget_get_name(toplevel), "first");
    test::run_tasks();
    EXPECT_STREQ(gtk_widget_get_name(toplevel), "second");
    EXPECT_STREQ(gtk_widget_get_name(content), "messageboxsecond");
    zo_window_set_id(window, "third");
    zo_window_set_id(window, "");
    test::run_tasks();
    EXPECT_STREQ(gtk_widget_get_name(content), "messagebox");
}

TEST(WindowClass, IsAStyleClassOfTheToplevel) {
    test::scoped_window window;
    GtkWidget* toplevel = window.open();
    EXPECT_TRUE(test::has_class(toplevel, "global-window"));
    zo_window_set_class(window, "one");
    EXPECT_FALSE(test::has_class(toplevel, "one"));
    zo_window_set_class(window, "two");
    test::run_tasks();
    EXPECT_FALSE(test::has_class(toplevel, "global-window"));
    EXPECT_FALSE(test::has_class(toplevel, "one"));
    EXPECT_TRUE(test::has_class(toplevel, "two"));
    zo_window_set_class(window, "");
    test::run_tasks();
    EXPECT_FALSE(test::has_class(toplevel, "two"));
    zo_window_set_class(window, "three");
    test::run_tasks();
    EXPECT_TRUE(test::has_class(toplevel, "three"));
}

// The classes that make it a window of the library stay, even when the application used one as its own.
TEST(WindowClass, NeverTakesAFixedClassAway) {
    test::scoped_window window;
    GtkWidget* toplevel = window.show();
    zo_window_activate(window);
    test::run_tasks();
    for (const char* fixed : {"zo-window", "managed", "active"}) {
        zo_window_set_class(window, fixed);
        zo_window_set_class(window, "other");
        test::run_tasks();
        for (const char* kept : {"zo-window", "managed", "active", "other"})
            EXPECT_TRUE(test::has_class(toplevel, kept)) << kept << " after " << fixed;
    }
    EXPECT_FALSE(test::has_class(toplevel, "popup"));
}

TEST(WindowClass, LeavesAPopupAPopup) {
    test::captured_output output;
    test::scoped_window window;
    zo_window_set_popup_window(window, true);
    GtkWidget* toplevel = window.open();
    for (const char* text : {"popup", "other", "managed", "another"}) zo_window_set_class(window, text);
    test::run_tasks();
    for (const char* kept : {"zo-window", "popup", "another"})
        EXPECT_TRUE(test::has_class(toplevel, kept)) << kept;
    for (const char* gone : {"managed", "active", "other"})
        EXPECT_FALSE(test::has_class(toplevel, gone)) << gone;
}

TEST(WindowTitle, ReachesTheLabelButNotTheTitleOfTheDesktop) {
    test::scoped_window window;
    zo_window_set_title(window, "first");
    GtkWidget* toplevel = window.open();
    GtkWidget* label = test::find_class(toplevel, "title-text");
    EXPECT_STREQ(gtk_label_get_text(GTK_LABEL(label)), "first");
    zo_window_set_title(window, "<b>second</b>");
    test::run_tasks();
    EXPECT_STREQ(gtk_label_get_text(GTK_LABEL(label)), "<b>second</b>");
    EXPECT_STREQ(gtk_window_get_title(GTK_WINDOW(toplevel)), "first");
    zo_window_close(window);
    toplevel = window.open();
    EXPECT_STREQ(gtk_window_get_title(GTK_WINDOW(toplevel)), "<b>second</b>");
}

TEST(WindowTitle, TheLabelShowsTheTextThatTheCallbackGets) {
    test::scoped_window window;
    GtkLabel* label = GTK_LABEL(test::find_class(window.open(), "title-text"));
    changes told;
    changes shown;
    zo_window_set_window_title_text_change_callback(window, [&](zo_window_ptr, const std::string& text) {
        told.push_back(text);
        shown.push_back(gtk_label_get_text(label));
    });
    zo_window_set_title(window, "one");
    zo_window_set_title(window, "two");
    test::erase_property(window, "window-title-text");  // it is not asked for again
    const test::captured_output output;
    test::run_tasks();
    EXPECT_EQ(output.text(), "");
    EXPECT_EQ(told, (changes{"one", "two"}));
    EXPECT_EQ(shown, told);
}

TEST(WindowTitle, WithoutATitleBarIsStillTold) {
    test::scoped_window window;
    zo_window_set_use_built_in_title(window, false);
    changes told;
    zo_window_set_window_title_text_change_callback(window, noting(told));
    window.open();
    zo_window_set_title(window, "text");
    test::run_tasks();
    EXPECT_EQ(told, changes{"text"});
}

// A window that was closed while the task waited has no widgets to follow.
TEST(WindowTitle, OfAClosedWindowOnlyTheCallbackHears) {
    test::scoped_window window;
    window.open();
    changes told;
    zo_window_set_window_title_text_change_callback(window, noting(told));
    zo_window_close(window);
    for (const test::window_text_row& row : test::window_texts) row.set(window, "late");
    test::run_tasks();
    EXPECT_EQ(told, changes{"late"});
    GtkWidget* toplevel = window.open();
    ASSERT_TRUE(toplevel);
    EXPECT_STREQ(gtk_widget_get_name(toplevel), "late");
    EXPECT_TRUE(test::has_class(toplevel, "late"));
    EXPECT_STREQ(gtk_label_get_text(GTK_LABEL(test::find_class(toplevel, "title-text"))), "late");
}

}  // namespace
