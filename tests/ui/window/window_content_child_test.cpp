// SPDX-License-Identifier: MIT
// Packing the application's widgets into the content box.
#include "support/ui.hpp"

namespace {

struct packing {
    gboolean expand = FALSE;
    gboolean fill = FALSE;
    guint padding = 0;
    GtkPackType type = GTK_PACK_START;
};

packing packing_of(GtkWidget* box, GtkWidget* child) {
    packing p;
    gtk_box_query_child_packing(GTK_BOX(box), child, &p.expand, &p.fill, &p.padding, &p.type);
    return p;
}

class WindowContentChild : public testing::Test {
  protected:
    ~WindowContentChild() override {
        gtk_widget_destroy(child);
        g_object_unref(child);
    }
    GtkWidget* child = GTK_WIDGET(g_object_ref_sink(gtk_label_new("child")));
    test::captured_output output;
    test::scoped_window window;
};

TEST_F(WindowContentChild, IsPackedIntoTheContentBoxAtOnce) {
    GtkWidget* content = test::find_class(window.open(), "window-content");
    EXPECT_TRUE(zo_window_add_content_child(window, child, true, false, 7, false));
    EXPECT_EQ(gtk_widget_get_parent(child), content);
    const packing p = packing_of(content, child);
    EXPECT_TRUE(p.expand);
    EXPECT_FALSE(p.fill);
    EXPECT_EQ(p.padding, 7U);
    EXPECT_EQ(p.type, GTK_PACK_START);
}

TEST_F(WindowContentChild, MayBePackedAtTheEnd) {
    GtkWidget* content = test::find_class(window.open(), "window-content");
    EXPECT_TRUE(zo_window_add_content_child(window, child, false, true, 0, true));
    const packing p = packing_of(content, child);
    EXPECT_FALSE(p.expand);
    EXPECT_TRUE(p.fill);
    EXPECT_EQ(p.padding, 0U);
    EXPECT_EQ(p.type, GTK_PACK_END);
}

TEST_F(WindowContentChild, IsRefusedUnlessTheWindowIsOpened) {
    const auto refused = [&] {
        return !zo_window_add_content_child(window, child, true, true, 0, false) &&
               !gtk_widget_get_parent(child);
    };
    EXPECT_TRUE(refused());
    zo_window_open(window);
    EXPECT_TRUE(refused());
    test::run_tasks();
    zo_window_close(window);
    test::run_tasks();
    EXPECT_TRUE(refused());
    zo_window_destroy(window);
    test::run_tasks();
    EXPECT_TRUE(refused());
    EXPECT_EQ(output.text(), "");
}

TEST_F(WindowContentChild, IsRefusedWithoutAContentBox) {
    zo_window_set_bool_property(window, "window-opened", true);
    EXPECT_FALSE(zo_window_add_content_child(window, child, true, true, 0, false));
    zo_window_set_bool_property(window, "window-opened", false);
}

// What GTK would complain of is refused before.
TEST_F(WindowContentChild, IsRefusedWhenItIsNoLooseWidget) {
    window.open();
    EXPECT_FALSE(zo_window_add_content_child(window, nullptr, true, true, 0, false));
    EXPECT_TRUE(zo_window_add_content_child(window, child, true, true, 0, false));
    EXPECT_FALSE(zo_window_add_content_child(window, child, true, true, 0, true));
}

TEST_F(WindowContentChild, HasNoNegativePadding) {
    GtkWidget* content = test::find_class(window.open(), "window-content");
    EXPECT_TRUE(zo_window_add_content_child(window, child, true, true, -5, false));
    EXPECT_EQ(packing_of(content, child).padding, 0U);
}

TEST_F(WindowContentChild, IsShownAndGoesWithTheWindow) {
    window.open();
    zo_window_add_content_child(window, child, true, true, 0, false);
    zo_window_show(window);
    test::run_tasks();
    EXPECT_TRUE(gtk_widget_get_visible(child));
    EXPECT_TRUE(test::turn_until([&] { return gtk_widget_get_mapped(child); }));
    zo_window_close(window);
    test::run_tasks();
    EXPECT_FALSE(gtk_widget_get_parent(child));
}

TEST_F(WindowContentChild, CanBeAddedInTheOpenCallback) {
    zo_window_set_window_open_callback(window, [&](const zo_window_ptr& w) {
        EXPECT_TRUE(zo_window_add_content_child(w, child, true, true, 0, false));
    });
    window.open();
    EXPECT_TRUE(gtk_widget_get_parent(child));
}

}  // namespace
