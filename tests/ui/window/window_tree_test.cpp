// SPDX-License-Identifier: MIT
// The widgets of an opened window: what stands in what, how it is packed, how style sheets find it.
#include "ui/window/tree_support.hpp"

namespace {

const test::packing plain{false, false, 0, GTK_PACK_START};
const test::packing filling{true, true, 0, GTK_PACK_START};

void expect_bare_box(GtkWidget* box, GtkOrientation orientation) {
    ASSERT_TRUE(GTK_IS_BOX(box));
    EXPECT_EQ(gtk_orientable_get_orientation(GTK_ORIENTABLE(box)), orientation);
    EXPECT_EQ(gtk_box_get_spacing(GTK_BOX(box)), 0);
    EXPECT_FALSE(gtk_box_get_homogeneous(GTK_BOX(box)));
}

TEST(WindowTree, StandsInAFixedAndAWrapper) {
    test::scoped_window window("w");
    GtkWidget* toplevel = window.open();
    ASSERT_TRUE(GTK_IS_WINDOW(toplevel));
    GtkWidget* fixed = gtk_bin_get_child(GTK_BIN(toplevel));
    ASSERT_TRUE(GTK_IS_FIXED(fixed));
    EXPECT_STREQ(gtk_widget_get_name(fixed), "window-fixed");
    const auto in_fixed = test::children(fixed);
    ASSERT_EQ(in_fixed.size(), 1u);
    EXPECT_STREQ(gtk_widget_get_name(in_fixed[0]), "window-wrapper");
    expect_bare_box(in_fixed[0], GTK_ORIENTATION_VERTICAL);
    int x = -1;
    int y = -1;
    gtk_container_child_get(GTK_CONTAINER(fixed), in_fixed[0], "x", &x, "y", &y, nullptr);
    EXPECT_EQ(x, 0);
    EXPECT_EQ(y, 0);
}

TEST(WindowTree, HasATitleBarAboveAScrollerAroundTheContent) {
    test::scoped_window window("w");
    GtkWidget* wrapper = test::find_name(window.open(), "window-wrapper");
    const auto rows = test::children(wrapper);
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_TRUE(GTK_IS_EVENT_BOX(rows[0]));
    EXPECT_TRUE(test::has_class(rows[0], "title-event-box"));
    EXPECT_EQ(test::packing_of(rows[0]), plain);
    GtkWidget* title = gtk_bin_get_child(GTK_BIN(rows[0]));
    EXPECT_TRUE(test::has_class(title, "window-title"));
    expect_bare_box(title, GTK_ORIENTATION_HORIZONTAL);
    EXPECT_TRUE(GTK_IS_SCROLLED_WINDOW(rows[1]));
    EXPECT_TRUE(test::has_class(rows[1], "window-scroll"));
    EXPECT_EQ(test::packing_of(rows[1]), filling);
    GtkWidget* viewport = gtk_bin_get_child(GTK_BIN(rows[1]));
    ASSERT_TRUE(GTK_IS_VIEWPORT(viewport));
    GtkWidget* event_box = gtk_bin_get_child(GTK_BIN(viewport));
    ASSERT_TRUE(GTK_IS_EVENT_BOX(event_box));
    GtkWidget* content = gtk_bin_get_child(GTK_BIN(event_box));
    expect_bare_box(content, GTK_ORIENTATION_VERTICAL);
    EXPECT_TRUE(test::has_class(content, "window-content"));
    EXPECT_STREQ(gtk_widget_get_name(content), "messageboxw");
    EXPECT_TRUE(test::children(content).empty());
}

TEST(WindowTree, ScrollsInBothDirectionsWithTheBarsOnTheFarSides) {
    test::scoped_window window("w");
    auto* scroll = GTK_SCROLLED_WINDOW(test::find_class(window.open(), "window-scroll"));
    EXPECT_EQ(gtk_scrolled_window_get_placement(scroll), GTK_CORNER_BOTTOM_RIGHT);
    GtkPolicyType horizontal = GTK_POLICY_NEVER;
    GtkPolicyType vertical = GTK_POLICY_NEVER;
    gtk_scrolled_window_get_policy(scroll, &horizontal, &vertical);
    EXPECT_EQ(horizontal, GTK_POLICY_AUTOMATIC);
    EXPECT_EQ(vertical, GTK_POLICY_AUTOMATIC);
}

TEST(WindowTree, WithoutScrollingTheContentStandsInTheWrapper) {
    test::scoped_window window("w");
    zo_window_set_use_scroll(window, false);
    GtkWidget* toplevel = window.open();
    EXPECT_EQ(test::find_class(toplevel, "window-scroll"), nullptr);
    const auto rows = test::children(test::find_name(toplevel, "window-wrapper"));
    ASSERT_EQ(rows.size(), 2u);
    ASSERT_TRUE(GTK_IS_EVENT_BOX(rows[1]));
    EXPECT_FALSE(test::has_class(rows[1], "title-event-box"));
    EXPECT_EQ(test::packing_of(rows[1]), filling);
    EXPECT_TRUE(test::has_class(gtk_bin_get_child(GTK_BIN(rows[1])), "window-content"));
}

TEST(WindowTree, WithoutABuiltInTitleThereIsOnlyTheContent) {
    test::scoped_window window("w");
    zo_window_set_use_built_in_title(window, false);
    GtkWidget* toplevel = window.open();
    EXPECT_EQ(test::find_class(toplevel, "title-event-box"), nullptr);
    EXPECT_EQ(test::find_class(toplevel, "window-title"), nullptr);
    EXPECT_EQ(test::find_class(toplevel, "title-text"), nullptr);
    EXPECT_EQ(test::children(test::find_name(toplevel, "window-wrapper")).size(), 1u);
}

TEST(WindowTree, CarriesItsAdvertisementAboveTheContent) {
    test::scoped_window window("w");
    zo_window_set_enable_content_ads(window, true);
    const auto rows = test::children(test::find_name(window.open(), "window-wrapper"));
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_TRUE(test::has_class(rows[0], "title-event-box"));
    EXPECT_TRUE(test::has_class(rows[1], "window-ads-container"));
    EXPECT_TRUE(test::has_class(rows[2], "window-scroll"));
    expect_bare_box(rows[1], GTK_ORIENTATION_HORIZONTAL);
    EXPECT_EQ(test::packing_of(rows[1]), plain);
    const auto labels = test::children(rows[1]);
    ASSERT_EQ(labels.size(), 1u);
    EXPECT_TRUE(test::has_class(labels[0], "window-ads-content"));
    EXPECT_STREQ(gtk_label_get_text(GTK_LABEL(labels[0])), "ads widget");
    EXPECT_EQ(test::packing_of(labels[0]), plain);
}

TEST(WindowTree, HasNoAdvertisementUnlessAsked) {
    test::scoped_window window("w");
    EXPECT_EQ(test::find_class(window.open(), "window-ads-container"), nullptr);
}

TEST(WindowTree, IsHiddenUntilTheWindowIsShown) {
    test::scoped_window window("w");
    GtkWidget* toplevel = window.open();
    EXPECT_FALSE(gtk_widget_get_visible(toplevel));
    EXPECT_FALSE(gtk_widget_get_visible(gtk_bin_get_child(GTK_BIN(toplevel))));
}

TEST(WindowTree, TakesTheChildrenThatTheApplicationPacks) {
    test::scoped_window window("w");
    GtkWidget* content = test::find_class(window.open(), "window-content");
    GtkWidget* child = test::block(10, 10);
    EXPECT_TRUE(zo_window_add_content_child(window, child, true, false, 3, true));
    EXPECT_EQ(gtk_widget_get_parent(child), content);
    EXPECT_EQ(test::packing_of(child), (test::packing{true, false, 3, GTK_PACK_END}));
}

}  // namespace
