// SPDX-License-Identifier: MIT
#include "support/ui.hpp"

#include <set>

namespace {

struct owned {
    explicit owned(GtkWidget* w) : widget(GTK_WIDGET(g_object_ref_sink(w))) {}
    ~owned() {
        gtk_widget_destroy(widget);
        g_object_unref(widget);
    }
    owned(const owned&) = delete;
    owned& operator=(const owned&) = delete;
    GtkWidget* widget;
};

std::multiset<std::string> own_classes(GtkWidget* widget) {
    std::multiset<std::string> result;
    GList* list = gtk_style_context_list_classes(gtk_widget_get_style_context(widget));
    for (GList* item = list; item; item = item->next) result.emplace(static_cast<const char*>(item->data));
    g_list_free(list);
    return result;
}

// What GTK gives such a widget by itself, and these.
std::multiset<std::string> with(GtkWidget* widget, const std::vector<std::string>& added) {
    std::multiset<std::string> result = own_classes(widget);
    result.insert(added.begin(), added.end());
    return result;
}

TEST(Widgets, PlainButtonsHaveTheClass) {
    const owned plain(zo_ui_button_new());
    const owned labelled(zo_ui_button_new_with_label("Press"));
    EXPECT_TRUE(test::has_class(plain.widget, "zo-button"));
    EXPECT_TRUE(test::has_class(labelled.widget, "zo-button"));
    EXPECT_STREQ(gtk_button_get_label(GTK_BUTTON(labelled.widget)), "Press");
    const owned gtks_plain(gtk_button_new());
    const owned gtks_labelled(gtk_button_new_with_label("Press"));
    EXPECT_EQ(own_classes(plain.widget), with(gtks_plain.widget, {"zo-button"}));
    EXPECT_EQ(own_classes(labelled.widget), with(gtks_labelled.widget, {"zo-button"}));
}

TEST(Widgets, SizedButtonsHaveTheirSizeAndClasses) {
    struct row {
        GtkWidget* (*make)(std::string);
        int size;
        const char* size_class;
    };
    for (const row& r : {row{zo_ui_button32_new, 32, "size-32"}, row{zo_ui_button24_new, 24, "size-24"},
                         row{zo_ui_button16_new, 16, "size-16"}}) {
        const owned button(r.make("mine"));
        const owned bare(r.make(""));
        int width = 0;
        int height = 0;
        gtk_widget_get_size_request(button.widget, &width, &height);
        EXPECT_EQ(width, r.size);
        EXPECT_EQ(height, r.size);
        EXPECT_TRUE(test::has_class(button.widget, r.size_class));
        EXPECT_TRUE(test::has_class(button.widget, "mine"));
        EXPECT_FALSE(test::has_class(button.widget, "zo-button"));
        gtk_widget_get_size_request(bare.widget, &width, &height);
        EXPECT_EQ(width, r.size);
        EXPECT_EQ(height, r.size);
        const owned gtks(gtk_button_new());
        EXPECT_EQ(own_classes(button.widget), with(gtks.widget, {r.size_class, "mine"}));
        EXPECT_EQ(own_classes(bare.widget), with(gtks.widget, {r.size_class}));
    }
}

struct wrapper_row {
    const char* name;
    GtkWidget* (*make)(GtkWidget*, bool);
    GtkAlign vertical;
    GtkAlign horizontal;
    GtkPackType packing;
};

std::ostream& operator<<(std::ostream& out, const wrapper_row& r) { return out << r.name; }

class Wrappers : public testing::TestWithParam<wrapper_row> {};

TEST_P(Wrappers, HoldTheChildInPlace) {
    GtkWidget* child = gtk_label_new("x");
    const owned box(GetParam().make(child, false));
    ASSERT_TRUE(GTK_IS_BOX(box.widget));
    EXPECT_EQ(gtk_orientable_get_orientation(GTK_ORIENTABLE(box.widget)), GTK_ORIENTATION_HORIZONTAL);
    EXPECT_EQ(gtk_box_get_spacing(GTK_BOX(box.widget)), 0);
    EXPECT_EQ(gtk_widget_get_valign(box.widget), GetParam().vertical);
    EXPECT_EQ(gtk_widget_get_halign(box.widget), GetParam().horizontal);
    gboolean expand = TRUE;
    gboolean fill = TRUE;
    guint padding = 9;
    GtkPackType packing{};
    gtk_box_query_child_packing(GTK_BOX(box.widget), child, &expand, &fill, &padding, &packing);
    EXPECT_FALSE(expand);
    EXPECT_FALSE(fill);
    EXPECT_EQ(padding, 0u);
    EXPECT_EQ(packing, GetParam().packing);
}

TEST_P(Wrappers, AcceptNoChild) {
    const owned box(GetParam().make(nullptr, true));
    EXPECT_TRUE(test::children(box.widget).empty());
    EXPECT_TRUE(gtk_widget_get_visible(box.widget));
}

INSTANTIATE_TEST_SUITE_P(All, Wrappers,
                         testing::Values(wrapper_row{"top centre", zo_ui_get_top_centared_widget,
                                                     GTK_ALIGN_START, GTK_ALIGN_CENTER, GTK_PACK_START},
                                         wrapper_row{"centre", zo_ui_get_centared_widget, GTK_ALIGN_CENTER,
                                                     GTK_ALIGN_CENTER, GTK_PACK_START},
                                         wrapper_row{"left top", zo_ui_get_left_top_padding_widget,
                                                     GTK_ALIGN_START, GTK_ALIGN_START, GTK_PACK_START},
                                         wrapper_row{"left", zo_ui_get_left_padding_widget, GTK_ALIGN_CENTER,
                                                     GTK_ALIGN_START, GTK_PACK_START},
                                         wrapper_row{"right", zo_ui_get_right_padding_widget,
                                                     GTK_ALIGN_CENTER, GTK_ALIGN_END, GTK_PACK_END}));

// Shown and hidden box, and whether the child is shown with it.
void expect_shown(GtkWidget* (*make)(GtkWidget*, bool), bool show, bool box_shown, bool child_shown) {
    GtkWidget* child = gtk_label_new("x");
    const owned box(make(child, show));
    EXPECT_EQ(gtk_widget_get_visible(box.widget), box_shown);
    EXPECT_EQ(gtk_widget_get_visible(child), child_shown);
}

TEST(WrapperShowing, ShowTheBoxOnly) {
    for (const auto make :
         {zo_ui_get_top_centared_widget, zo_ui_get_left_top_padding_widget, zo_ui_get_right_padding_widget}) {
        expect_shown(make, true, true, false);
        expect_shown(make, false, false, false);
    }
}

TEST(WrapperShowing, CentredWrapperIsAlwaysShown) {
    expect_shown(zo_ui_get_centared_widget, true, true, false);
    expect_shown(zo_ui_get_centared_widget, false, true, false);
}

TEST(WrapperShowing, LeftPaddingWrapperShowsItsChild) {
    expect_shown(zo_ui_get_left_padding_widget, true, true, true);
    expect_shown(zo_ui_get_left_padding_widget, false, false, false);
}

}  // namespace
