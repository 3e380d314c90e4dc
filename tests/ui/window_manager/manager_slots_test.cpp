// SPDX-License-Identifier: MIT
// The application's widgets and toolbars on the panel.
#include "ui/window_manager/panel.hpp"

namespace {

struct region {
    const char* style_class;
    bool (*add)(zo_window_manager_ptr, GtkWidget*);
    bool (*remove)(zo_window_manager_ptr, GtkWidget*);
};

constexpr region regions[] = {
    {"manager-taskbox-left", zo_window_manager_add_widget_left, zo_window_manager_remove_widget_left},
    {"manager-taskbox-right", zo_window_manager_add_widget_right, zo_window_manager_remove_widget_right},
};

GtkWidget* box_new() { return gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0); }

class held {
  public:
    explicit held(GtkWidget* widget) : widget_(GTK_WIDGET(g_object_ref_sink(widget))) {}
    ~held() {
        gtk_widget_destroy(widget_);
        g_object_unref(widget_);
    }
    held(const held&) = delete;
    held& operator=(const held&) = delete;
    operator GtkWidget*() const { return widget_; }
    GtkBox* box() const { return GTK_BOX(widget_); }

  private:
    GtkWidget* widget_;
};

class ManagerSlots : public testing::TestWithParam<region> {
  protected:
    GtkWidget* region_widget() const { return test::part(GetParam().style_class); }
    bool add(GtkWidget* widget) const { return GetParam().add(panel, widget); }
    bool remove(GtkWidget* widget) const { return GetParam().remove(panel, widget); }

    // The widgets of the region in their order, out of their paddings; without the lock button.
    std::vector<GtkWidget*> contents() const {
        std::vector<GtkWidget*> result;
        for (GtkWidget* padding : test::children(region_widget()))
            for (GtkWidget* child : test::children(padding))
                if (!test::has_class(child, "lock-unlocked")) result.push_back(child);
        return result;
    }

    test::captured_output output;
    test::scoped_panel panel;
};

TEST_P(ManagerSlots, TakeNothingBeforeOpening) {
    const held label(gtk_label_new("early"));
    EXPECT_FALSE(add(label));
    EXPECT_FALSE(gtk_widget_get_parent(label));
    EXPECT_FALSE(remove(label));
    EXPECT_EQ(output.text(), "");
}

TEST_P(ManagerSlots, KeepTheOrder) {
    panel.open();
    const held first(gtk_label_new("1"));
    const held second(box_new());
    EXPECT_TRUE(add(first));
    EXPECT_TRUE(add(second));
    EXPECT_EQ(contents(), (std::vector<GtkWidget*>{first, second}));
    EXPECT_TRUE(gtk_widget_get_visible(first));
    EXPECT_TRUE(gtk_widget_get_visible(gtk_widget_get_parent(first)));
    panel.show();
    int x[3] = {};
    GtkWidget* last = GetParam().add == zo_window_manager_add_widget_left ? test::part("lock-unlocked")
                                                                          : static_cast<GtkWidget*>(second);
    GtkWidget* const widgets[] = {first, second, last};
    for (int i = 0; i < 3; ++i)
        gtk_widget_translate_coordinates(widgets[i], test::panel(), 0, 0, &x[i], nullptr);
    EXPECT_LT(x[0], x[1]);
    EXPECT_LE(x[1], x[2]);
}

TEST_P(ManagerSlots, ABoxIsTakenOutWithItsPadding) {
    panel.open();
    const std::size_t before = test::children(region_widget()).size();
    const held box(box_new());
    EXPECT_TRUE(add(box));
    EXPECT_EQ(test::children(region_widget()).size(), before + 1);
    EXPECT_TRUE(remove(box));
    EXPECT_EQ(test::children(region_widget()).size(), before);
    EXPECT_FALSE(remove(box));
}

TEST_P(ManagerSlots, ALabelStaysWhereItIs) {
    panel.open();
    GtkWidget* label = gtk_label_new("stays");
    EXPECT_TRUE(add(label));
    EXPECT_FALSE(remove(label));
    EXPECT_EQ(contents(), std::vector<GtkWidget*>{label});
}

TEST_P(ManagerSlots, RefuseStrangers) {
    panel.open();
    const std::size_t paddings = test::children(region_widget()).size();
    const held alone(box_new());
    const held parent(box_new());
    GtkWidget* child = box_new();
    gtk_container_add(GTK_CONTAINER(parent.box()), child);
    GtkWidget* elsewhere = box_new();
    const region& other = regions[GetParam().add == regions[0].add ? 1 : 0];
    EXPECT_TRUE(other.add(panel, elsewhere));
    for (GtkWidget* stranger : {static_cast<GtkWidget*>(alone), child, elsewhere, region_widget(),
                                static_cast<GtkWidget*>(nullptr)})
        EXPECT_FALSE(remove(stranger));
    EXPECT_EQ(gtk_widget_get_parent(child), parent);
    const held window(gtk_window_new(GTK_WINDOW_TOPLEVEL));
    for (GtkWidget* taken :
         {child, elsewhere, static_cast<GtkWidget*>(window), test::panel(), static_cast<GtkWidget*>(nullptr)})
        EXPECT_FALSE(add(taken));
    EXPECT_EQ(gtk_widget_get_parent(child), parent);
    EXPECT_EQ(test::children(region_widget()).size(), paddings);
    EXPECT_TRUE(contents().empty());
    EXPECT_EQ(output.text(), "");
}

TEST_P(ManagerSlots, ForgetWithTheClosing) {
    panel.open();
    const held box(box_new());
    EXPECT_TRUE(add(box));
    panel.close();
    EXPECT_FALSE(add(box));
    EXPECT_FALSE(remove(box));
    panel.open();
    EXPECT_TRUE(contents().empty());
}

INSTANTIATE_TEST_SUITE_P(Regions, ManagerSlots, testing::ValuesIn(regions));

class ManagerToolbars : public testing::Test {
  protected:
    bool add(GtkBox* box) const { return zo_window_manager_add_toolbar(panel, box); }
    bool remove(GtkBox* box) const { return zo_window_manager_remove_toolbar(panel, box); }
    static std::vector<GtkWidget*> stack() {
        return test::children(test::find_name(test::panel(), "manager-wrapper"));
    }
    test::scoped_panel panel;
};

TEST_F(ManagerToolbars, StackUnderTheRow) {
    const held early(box_new());
    EXPECT_FALSE(add(early.box()));
    EXPECT_FALSE(remove(early.box()));
    panel.open();
    const held first(box_new());
    const held second(box_new());
    EXPECT_TRUE(add(first.box()));
    EXPECT_TRUE(add(second.box()));
    EXPECT_EQ(stack(), (std::vector<GtkWidget*>{test::part("manager-taskbox"), first, second}));
    int width = 0;
    int height = 0;
    gtk_widget_get_size_request(first, &width, &height);
    EXPECT_EQ(std::pair(width, height), std::pair(zo_ui_screen_width(), -1));
    EXPECT_TRUE(test::has_class(first, "manager-toolbar"));
    EXPECT_TRUE(remove(first.box()));
    EXPECT_FALSE(remove(first.box()));
    EXPECT_TRUE(add(first.box()));
    EXPECT_EQ(stack(), (std::vector<GtkWidget*>{test::part("manager-taskbox"), second, first}));
}

TEST_F(ManagerToolbars, RefuseStrangers) {
    panel.open();
    const held parent(box_new());
    GtkWidget* child = box_new();
    gtk_container_add(GTK_CONTAINER(parent.box()), child);
    EXPECT_FALSE(add(nullptr));
    EXPECT_FALSE(add(GTK_BOX(child)));
    EXPECT_FALSE(remove(nullptr));
    EXPECT_FALSE(remove(GTK_BOX(child)));
    EXPECT_FALSE(remove(GTK_BOX(test::part("manager-taskbox"))));
    EXPECT_EQ(stack(), std::vector<GtkWidget*>{test::part("manager-taskbox")});
    panel.close();
    EXPECT_FALSE(add(parent.box()));
}

}  // namespace
