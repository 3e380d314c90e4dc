// SPDX-License-Identifier: MIT
// The title in the bar and the title that the desktop shows: the one follows at once, the other at the next
// opening.
#include "ui/window/tree_support.hpp"

namespace {

const char* label_of(GtkWidget* toplevel) {
    return gtk_label_get_text(GTK_LABEL(test::find_class(toplevel, "title-text")));
}

TEST(WindowTitleText, ChangesInTheBarAtOnceAndForTheDesktopAtTheNextOpening) {
    test::scoped_window window("w");
    zo_window_set_title(window, "First");
    GtkWidget* toplevel = window.show();
    zo_window_set_title(window, "Second");
    test::run_tasks();
    EXPECT_STREQ(label_of(toplevel), "Second");
    EXPECT_STREQ(gtk_window_get_title(GTK_WINDOW(toplevel)), "First");
    zo_window_close(window);
    toplevel = window.open();
    EXPECT_STREQ(label_of(toplevel), "Second");
    EXPECT_STREQ(gtk_window_get_title(GTK_WINDOW(toplevel)), "Second");
}

TEST(WindowTitleText, CanBeEmptied) {
    test::scoped_window window("w");
    zo_window_set_title(window, "First");
    GtkWidget* toplevel = window.open();
    zo_window_set_title(window, "");
    test::run_tasks();
    EXPECT_STREQ(label_of(toplevel), "");
}

// A title is text: it is not read as markup, and a line break is only a line break.
TEST(WindowTitleText, IsShownAsItIs) {
    test::scoped_window window("w");
    const std::string title = "<b>a & b</b> 日本\n語";
    zo_window_set_title(window, title);
    EXPECT_EQ(label_of(window.open()), title);
    zo_window_set_title(window, "&amp; <");
    test::run_tasks();
    EXPECT_STREQ(label_of(test::toplevel_named("w")), "&amp; <");
}

// The toolkit refuses such a text altogether. The property keeps it as it was given.
TEST(WindowTitleText, ThatIsNotUtf8IsShownAsFarAsItCanBeRead) {
    test::scoped_window window("w");
    zo_window_set_title(window, "caf\xe9");
    GtkWidget* toplevel = window.show();
    EXPECT_STREQ(label_of(toplevel), "caf\xef\xbf\xbd");
    EXPECT_STREQ(gtk_window_get_title(GTK_WINDOW(toplevel)), "caf\xef\xbf\xbd");
    zo_window_set_title(window,
                        "\xfft\xea"
                        "te");
    test::run_tasks();
    EXPECT_STREQ(label_of(toplevel), "\xef\xbf\xbdt\xef\xbf\xbdte");
    std::string title;
    EXPECT_TRUE(zo_window_get_title(window, title));
    EXPECT_EQ(title,
              "\xfft\xea"
              "te");
}

TEST(WindowTitleText, OfAWindowWithoutATitleBarChangesNothing) {
    test::scoped_window window("w");
    zo_window_set_use_built_in_title(window, false);
    zo_window_set_title(window, "First");
    GtkWidget* toplevel = window.open();
    zo_window_set_title(window, "Second");
    test::run_tasks();
    EXPECT_STREQ(gtk_window_get_title(GTK_WINDOW(toplevel)), "First");
}

}  // namespace
