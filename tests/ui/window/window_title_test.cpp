// SPDX-License-Identifier: MIT
// The rows of the title bar: which there are, in which order, and what each says.
#include "ui/window/tree_support.hpp"

#include <map>

namespace {

struct row {
    const char* style_class;
    bool (*enable)(zo_window_ptr, bool);
    const char* tooltip_key;
    GtkPackType side;
};

// In the order of packing; the label stands between the two sides.
const row rows[] = {
    {"title-exit", zo_window_set_enable_title_exit, "tooltip_close_app", GTK_PACK_START},
    {"title-hint", zo_window_set_enable_title_hint, "tooltip_how_to", GTK_PACK_START},
    {"title-shoot", zo_window_set_enable_title_save_to_photo, "tooltip_save_window_photo", GTK_PACK_START},
    {"title-close", zo_window_set_enable_title_close, "tooltip_close_window", GTK_PACK_END},
    {"title-minimize", zo_window_set_enable_title_minimize, "tooltip_minimize_window", GTK_PACK_END},
    {"title-menu", zo_window_set_enable_title_menu, "tooltip_menu", GTK_PACK_END},
    {"title-back", zo_window_set_enable_title_back, "tooltip_back", GTK_PACK_END}};

// The classes of the bar's buttons, in the order of packing.
std::vector<std::string> buttons_in(GtkWidget* toplevel) {
    GtkWidget* bar = test::find_class(toplevel, "window-title");
    std::map<int, std::string> names;
    for (GtkWidget* child : test::children(bar)) {
        int position = -1;
        gtk_container_child_get(GTK_CONTAINER(bar), child, "position", &position, nullptr);
        for (const row& wanted : rows)
            if (test::has_class(child, wanted.style_class)) names[position] = wanted.style_class;
    }
    std::vector<std::string> in_order;
    for (const auto& [position, name] : names) in_order.push_back(name);
    return in_order;
}

TEST(WindowTitle, HasEveryRowInTheOrderOfPacking) {
    test::scoped_window window("w");
    test::enable_title_buttons(window);
    GtkWidget* toplevel = window.open();
    std::vector<std::string> expected;
    for (const row& wanted : rows) expected.push_back(wanted.style_class);
    EXPECT_EQ(buttons_in(toplevel), expected);
    for (const row& wanted : rows) {
        GtkWidget* button = test::find_class(toplevel, wanted.style_class);
        ASSERT_TRUE(GTK_IS_BUTTON(button)) << wanted.style_class;
        EXPECT_EQ(test::packing_of(button), (test::packing{false, false, 0, wanted.side}))
            << wanted.style_class;
        EXPECT_TRUE(test::has_class(button, "size-16")) << wanted.style_class;
        EXPECT_TRUE(gtk_widget_get_can_focus(button)) << wanted.style_class;
        int width = 0;
        int height = 0;
        gtk_widget_get_size_request(button, &width, &height);
        EXPECT_EQ(width, 16);
        EXPECT_EQ(height, 16);
    }
}

TEST(WindowTitle, SaysInTooltipAndNameWhatAButtonDoes) {
    test::scoped_window window("w");
    test::enable_title_buttons(window);
    GtkWidget* toplevel = window.open();
    for (const row& wanted : rows) {
        GtkWidget* button = test::find_class(toplevel, wanted.style_class);
        char* markup = gtk_widget_get_tooltip_markup(button);
        EXPECT_EQ(std::string(markup ? markup : ""), zo_ui_get_translate(wanted.tooltip_key));
        g_free(markup);
        EXPECT_NE(test::tooltip_of(button), "");
        EXPECT_EQ(test::accessible_name(button), test::tooltip_of(button));
        EXPECT_NE(test::tooltip_of(button), wanted.tooltip_key);
    }
}

TEST(WindowTitle, ItsButtonsArePlainButtonsAndNoOthersAreNamed) {
    test::scoped_window window("w");
    test::enable_title_buttons(window);
    GtkWidget* toplevel = window.open();
    for (const row& wanted : rows)
        EXPECT_EQ(G_OBJECT_TYPE(test::find_class(toplevel, wanted.style_class)), GTK_TYPE_BUTTON);
    GtkWidget* const other = gtk_button_new();
    gtk_widget_set_tooltip_text(other, "a tooltip");
    EXPECT_EQ(test::accessible_name(other), "");
    gtk_widget_destroy(g_object_ref_sink(other));
}

TEST(WindowTitle, KeepsTheNameThatTheApplicationGaveAButton) {
    test::scoped_window window("w");
    GtkWidget* button = test::find_class(window.open(), "title-close");
    atk_object_set_name(gtk_widget_get_accessible(button), "Leave");
    EXPECT_EQ(test::accessible_name(button), "Leave");
    gtk_widget_set_tooltip_text(button, "Away");
    EXPECT_EQ(test::accessible_name(button), "Leave");
}

TEST(WindowTitle, HasTheButtonOfEachFlagAlone) {
    for (const row& wanted : rows) {
        test::scoped_window window("w");
        test::enable_title_buttons(window, false);
        wanted.enable(window, true);
        GtkWidget* toplevel = window.open();
        EXPECT_EQ(buttons_in(toplevel), std::vector<std::string>{wanted.style_class});
        EXPECT_EQ(test::children(test::find_class(toplevel, "window-title")).size(), 2u);
    }
}

TEST(WindowTitle, HasCloseAndMinimizeByDefault) {
    test::scoped_window window("w");
    EXPECT_EQ(buttons_in(window.open()), (std::vector<std::string>{"title-close", "title-minimize"}));
}

TEST(WindowTitle, WithoutButtonsStillHasItsLabelAndItsSize) {
    test::scoped_window window("w");
    test::enable_title_buttons(window, false);
    GtkWidget* toplevel = window.show();
    GtkWidget* bar = test::find_class(toplevel, "window-title");
    const auto parts = test::children(bar);
    ASSERT_EQ(parts.size(), 1u);
    EXPECT_TRUE(test::has_class(parts[0], "title-text"));
    int width = 0;
    int height = 0;
    gtk_widget_get_size_request(bar, &width, &height);
    EXPECT_EQ(width, 300);
    EXPECT_EQ(height, 15);
    EXPECT_GE(gtk_widget_get_allocated_width(bar), 300);
    EXPECT_GE(gtk_widget_get_allocated_height(bar), 15);
}

TEST(WindowTitle, CentresItsLabel) {
    test::scoped_window window("w");
    zo_window_set_title(window, "Notes");
    GtkWidget* toplevel = window.open();
    GtkWidget* label = test::find_class(toplevel, "title-text");
    ASSERT_TRUE(GTK_IS_LABEL(label));
    EXPECT_EQ(gtk_box_get_center_widget(GTK_BOX(test::find_class(toplevel, "window-title"))), label);
    EXPECT_STREQ(gtk_label_get_text(GTK_LABEL(label)), "Notes");
    EXPECT_EQ(test::tooltip_of(label), "");
}

int left_of(GtkWidget* toplevel, const char* style_class) {
    int x = 0;
    int y = 0;
    gtk_widget_translate_coordinates(test::find_class(toplevel, style_class), toplevel, 0, 0, &x, &y);
    return x;
}

// From left to right, as the user sees them.
void expect_in_a_row(GtkWidget* toplevel, const std::vector<const char*>& classes) {
    for (std::size_t i = 1; i < classes.size(); ++i)
        EXPECT_LT(left_of(toplevel, classes[i - 1]), left_of(toplevel, classes[i]))
            << classes[i - 1] << " " << classes[i];
}

const std::vector<const char*> left_to_right = {"title-exit", "title-hint", "title-shoot",    "title-text",
                                                "title-back", "title-menu", "title-minimize", "title-close"};

TEST(WindowTitle, StandsInThisOrderOnScreen) {
    test::scoped_window window("w");
    test::enable_title_buttons(window);
    zo_window_set_title(window, "Notes");
    GtkWidget* toplevel = window.show();
    expect_in_a_row(toplevel, left_to_right);
    GtkWidget* close = test::find_class(toplevel, "title-close");
    EXPECT_EQ(left_of(toplevel, "title-close") + gtk_widget_get_allocated_width(close),
              left_of(toplevel, "window-title") +
                  gtk_widget_get_allocated_width(test::find_class(toplevel, "window-title")));
}

TEST(WindowTitle, IsMirroredWhereOneReadsFromTheRight) {
    gtk_widget_set_default_direction(GTK_TEXT_DIR_RTL);
    {
        test::scoped_window window("w");
        test::enable_title_buttons(window);
        zo_window_set_title(window, "ملاحظات");
        GtkWidget* toplevel = window.show();
        expect_in_a_row(toplevel, {left_to_right.rbegin(), left_to_right.rend()});
        EXPECT_EQ(left_of(toplevel, "title-close"), left_of(toplevel, "window-title"));
    }
    gtk_widget_set_default_direction(GTK_TEXT_DIR_LTR);
}

}  // namespace
