// SPDX-License-Identifier: MIT
// What makes a popup window: no title bar, no decoration, not managed, and a line that says so.
#include "ui/window/tree_support.hpp"

namespace {

constexpr const char* warning = "warning, popup window should not have any decoration enabled\n";

class WindowTreePopup : public testing::Test {
  protected:
    void SetUp() override { zo_window_set_popup_window(window_, true); }

    GtkWidget* open() {
        test::captured_output output;
        GtkWidget* toplevel = window_.open();
        written_ = output.text();
        return toplevel;
    }

    test::scoped_window window_{"p"};
    std::string written_;
};

TEST_F(WindowTreePopup, IsAPopupWithoutTitleBarAndDecoration) {
    GtkWidget* toplevel = open();
    ASSERT_NE(toplevel, nullptr);
    EXPECT_EQ(gtk_window_get_window_type(GTK_WINDOW(toplevel)), GTK_WINDOW_POPUP);
    EXPECT_NE(gtk_window_get_type_hint(GTK_WINDOW(toplevel)), GDK_WINDOW_TYPE_HINT_DIALOG);
    EXPECT_FALSE(gtk_window_get_decorated(GTK_WINDOW(toplevel)));
    EXPECT_EQ(test::find_class(toplevel, "title-event-box"), nullptr);
    EXPECT_EQ(test::find_class(toplevel, "window-title"), nullptr);
    EXPECT_TRUE(test::has_class(toplevel, "zo-window"));
    EXPECT_TRUE(test::has_class(toplevel, "popup"));
    EXPECT_FALSE(test::has_class(toplevel, "managed"));
    EXPECT_TRUE(test::has_class(toplevel, "global-window"));
}

// Also when every decoration flag is off already.
TEST_F(WindowTreePopup, EveryPopupWritesTheWarning) {
    zo_window_set_use_built_in_title(window_, false);
    zo_window_set_use_system_decoration(window_, false);
    zo_window_set_managed_window(window_, false);
    open();
    EXPECT_EQ(written_, warning);
    zo_window_close(window_);
    zo_window_set_use_built_in_title(window_, true);
    zo_window_set_use_system_decoration(window_, true);
    open();
    EXPECT_EQ(written_, warning);
}

TEST_F(WindowTreePopup, WithoutATitleOfItsOwnIsStillUndecorated) {
    zo_window_set_use_built_in_title(window_, false);
    EXPECT_FALSE(gtk_window_get_decorated(GTK_WINDOW(open())));
}

TEST_F(WindowTreePopup, KeepsTheFlagsThatTheApplicationSet) {
    zo_window_set_use_system_decoration(window_, true);
    open();
    EXPECT_TRUE(zo_window_get_use_system_decoration(window_));
    EXPECT_TRUE(zo_window_get_use_built_in_title(window_));
    EXPECT_TRUE(zo_window_get_managed_window(window_));
    EXPECT_TRUE(zo_window_get_popup_window(window_));
}

TEST_F(WindowTreePopup, HasNoFocusHandlers) {
    GtkWidget* toplevel = open();
    EXPECT_EQ(test::own_handlers(window_, toplevel, "focus-in-event"), 0u);
    EXPECT_EQ(test::own_handlers(window_, toplevel, "focus-out-event"), 0u);
    EXPECT_EQ(test::own_handlers(window_, toplevel, "window-state-event"), 1u);
}

TEST_F(WindowTreePopup, CarriesItsAdvertisementBelowTheContent) {
    zo_window_set_enable_content_ads(window_, true);
    const auto rows = test::children(test::find_name(open(), "window-wrapper"));
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_TRUE(test::has_class(rows[0], "window-scroll"));
    ASSERT_TRUE(test::has_class(rows[1], "window-ads-container"));
    EXPECT_EQ(test::packing_of(rows[1]), (test::packing{false, false, 0, GTK_PACK_START}));
    GtkWidget* label = test::find_class(rows[1], "window-ads-content");
    ASSERT_NE(label, nullptr);
    EXPECT_STREQ(gtk_label_get_text(GTK_LABEL(label)), "ads widget");
}

TEST_F(WindowTreePopup, IsShownAndMovedLikeAnyWindow) {
    GtkWidget* toplevel = open();
    zo_window_add_content_child(window_, test::block(120, 80), true, true, 0, false);
    zo_window_move(window_, 300, 200);
    zo_window_show(window_);
    EXPECT_TRUE(test::turn_until([&] { return test::is_on_screen(toplevel); }));
    int x = 0;
    int y = 0;
    gdk_window_get_origin(gtk_widget_get_window(toplevel), &x, &y);
    EXPECT_EQ(x, 300);
    EXPECT_EQ(y, 200);
}

// The present flag counts, not that of the time when the window was made.
TEST_F(WindowTreePopup, ThatIsClosedCanBeOpenedAsAToplevel) {
    open();
    zo_window_close(window_);
    zo_window_set_popup_window(window_, false);
    GtkWidget* toplevel = open();
    EXPECT_EQ(written_, "");
    EXPECT_EQ(gtk_window_get_window_type(GTK_WINDOW(toplevel)), GTK_WINDOW_TOPLEVEL);
    EXPECT_TRUE(test::has_class(toplevel, "managed"));
    EXPECT_FALSE(test::has_class(toplevel, "popup"));
    EXPECT_NE(test::find_class(toplevel, "window-title"), nullptr);
}

}  // namespace
