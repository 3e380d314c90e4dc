// SPDX-License-Identifier: MIT
// The panel's tree: what is in what, with which names, classes, sizes and hints.
#include "ui/window_manager/panel.hpp"

namespace {

struct packing {
    gboolean expand = FALSE;
    gboolean fill = FALSE;
    guint space = 0;
    GtkPackType side = GTK_PACK_START;
    bool operator==(const packing&) const = default;
};

packing packing_of(GtkWidget* child) {
    packing p;
    gtk_box_query_child_packing(GTK_BOX(gtk_widget_get_parent(child)), child, &p.expand, &p.fill, &p.space,
                                &p.side);
    return p;
}

std::pair<int, int> request_of(GtkWidget* widget) {
    std::pair<int, int> request;
    gtk_widget_get_size_request(widget, &request.first, &request.second);
    return request;
}

bool is_plain_row(GtkWidget* widget) {
    return GTK_IS_BOX(widget) && gtk_box_get_spacing(GTK_BOX(widget)) == 0 &&
           gtk_orientable_get_orientation(GTK_ORIENTABLE(widget)) == GTK_ORIENTATION_HORIZONTAL;
}

GtkWidget* by_name(const char* name) { return test::find_name(test::panel(), name); }

class ManagerLayout : public testing::Test {
  protected:
    ManagerLayout() { panel.open(); }

    static int scroller_minimum() {
        return gtk_scrolled_window_get_min_content_width(
            GTK_SCROLLED_WINDOW(test::part("manager-taskbox-scroll")));
    }

    static GtkWidget* block(int width) {
        GtkWidget* box = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 0);
        gtk_widget_set_size_request(box, width, 10);
        return box;
    }

    // The width that a region is given, and its widgets take.
    static int width_of(const char* style_class) {
        return gtk_widget_get_allocated_width(test::part(style_class));
    }

    static constexpr std::chrono::seconds second{1};
    test::scoped_panel panel;
};

TEST_F(ManagerLayout, ThePanelWindow) {
    auto* window = GTK_WINDOW(test::panel());
    EXPECT_EQ(gtk_window_get_window_type(window), GTK_WINDOW_POPUP);
    EXPECT_TRUE(gtk_widget_get_can_focus(test::panel()));
    EXPECT_TRUE(gtk_window_get_skip_taskbar_hint(window));
    EXPECT_TRUE(gtk_window_get_skip_pager_hint(window));
    EXPECT_FALSE(gtk_window_get_decorated(window));
    EXPECT_FALSE(gtk_window_get_resizable(window));
    EXPECT_TRUE(test::has_class(test::panel(), "zo-manager"));
    EXPECT_TRUE(test::has_class(test::panel(), "tab-manager"));
    EXPECT_STREQ(gtk_widget_get_name(test::panel()), "GtkWindow");
    EXPECT_FALSE(gtk_window_get_title(window));
    EXPECT_EQ(request_of(test::panel()), std::pair(zo_ui_screen_width(), 34));
    EXPECT_EQ(gtk_widget_get_visual(test::panel()),
              gdk_screen_get_rgba_visual(gtk_widget_get_screen(test::panel())));
}

// A screen that gets a compositor tells so.
TEST_F(ManagerLayout, TakesTheVisualOfAChangedScreen) {
    GdkScreen* screen = gtk_widget_get_screen(test::panel());
    gtk_widget_set_visual(test::panel(), gdk_screen_get_system_visual(screen));
    g_signal_emit_by_name(test::panel(), "screen-changed", nullptr);
    EXPECT_EQ(gtk_widget_get_visual(test::panel()), gdk_screen_get_rgba_visual(screen));
}

TEST_F(ManagerLayout, TellsThatItIsNoTaskAndStaysAbove) {
    for (int round = 0; round < 2; ++round) {
        panel.show();
        for (const char* state :
             {"_NET_WM_STATE_ABOVE", "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"})
            EXPECT_TRUE(test::x_property_becomes(test::panel(), "_NET_WM_STATE", state)) << state;
        panel.run(zo_window_manager_hide);
    }
}

TEST_F(ManagerLayout, TheContainers) {
    GtkWidget* fixed = by_name("manager-fixed");
    GtkWidget* event_box = by_name("manager-wrapper-event_box");
    GtkWidget* wrapper = by_name("manager-wrapper");
    EXPECT_EQ(gtk_bin_get_child(GTK_BIN(test::panel())), fixed);
    EXPECT_EQ(test::children(fixed), std::vector<GtkWidget*>{event_box});
    EXPECT_EQ(test::children(event_box), std::vector<GtkWidget*>{wrapper});
    EXPECT_TRUE(GTK_IS_FIXED(fixed) && GTK_IS_EVENT_BOX(event_box) && GTK_IS_BOX(wrapper));
    int x = -1;
    int y = -1;
    gtk_container_child_get(GTK_CONTAINER(fixed), event_box, "x", &x, "y", &y, nullptr);
    EXPECT_EQ(std::pair(x, y), std::pair(0, 0));
    EXPECT_EQ(gtk_orientable_get_orientation(GTK_ORIENTABLE(wrapper)), GTK_ORIENTATION_VERTICAL);
    EXPECT_EQ(gtk_box_get_spacing(GTK_BOX(wrapper)), 0);
    EXPECT_FALSE(gtk_box_get_homogeneous(GTK_BOX(wrapper)));
    EXPECT_EQ(request_of(wrapper), std::pair(zo_ui_screen_width(), 34));
    EXPECT_EQ(gtk_widget_get_margin_bottom(wrapper), 1);
    EXPECT_EQ(gtk_widget_get_margin_top(fixed) + gtk_widget_get_margin_bottom(fixed) +
                  gtk_widget_get_margin_start(fixed) + gtk_widget_get_margin_end(fixed),
              0);
    constexpr int crossing = GDK_ENTER_NOTIFY_MASK | GDK_LEAVE_NOTIFY_MASK;
    EXPECT_EQ(gtk_widget_get_events(event_box) & crossing, crossing);
}

TEST_F(ManagerLayout, TheRow) {
    GtkWidget* taskbox = test::part("manager-taskbox");
    GtkWidget* left = test::part("manager-taskbox-left");
    GtkWidget* scroll = test::part("manager-taskbox-scroll");
    GtkWidget* right = test::part("manager-taskbox-right");
    EXPECT_EQ(gtk_widget_get_parent(taskbox), by_name("manager-wrapper"));
    EXPECT_EQ(packing_of(taskbox), (packing{TRUE, TRUE}));
    EXPECT_EQ(test::children(taskbox), (std::vector<GtkWidget*>{left, scroll, right}));
    EXPECT_EQ(packing_of(left), packing{});
    EXPECT_EQ(packing_of(scroll), (packing{TRUE, TRUE}));
    EXPECT_EQ(packing_of(right), packing{});
    for (GtkWidget* row : {taskbox, left, right}) EXPECT_TRUE(is_plain_row(row));
}

TEST_F(ManagerLayout, TheScroller) {
    auto* scroll = GTK_SCROLLED_WINDOW(test::part("manager-taskbox-scroll"));
    EXPECT_EQ(gtk_scrolled_window_get_placement(scroll), GTK_CORNER_BOTTOM_RIGHT);
    GtkPolicyType across = GTK_POLICY_NEVER;
    GtkPolicyType down = GTK_POLICY_ALWAYS;
    gtk_scrolled_window_get_policy(scroll, &across, &down);
    EXPECT_EQ(across, GTK_POLICY_AUTOMATIC);
    EXPECT_EQ(down, GTK_POLICY_NEVER);
    EXPECT_EQ(scroller_minimum(), zo_ui_screen_width() - 50);
    GtkWidget* center = test::part("manager-taskbox-center");
    EXPECT_TRUE(GTK_IS_BOX(center));
    EXPECT_EQ(gtk_widget_get_halign(center), GTK_ALIGN_START);
    EXPECT_EQ(gtk_widget_get_valign(center), GTK_ALIGN_CENTER);
    EXPECT_TRUE(test::children(center).empty());
    EXPECT_TRUE(gtk_widget_is_ancestor(center, GTK_WIDGET(scroll)));
}

TEST_F(ManagerLayout, TheLockButton) {
    GtkWidget* lock = test::part("lock-unlocked");
    ASSERT_TRUE(lock);
    EXPECT_EQ(G_OBJECT_TYPE(lock), GTK_TYPE_BUTTON);
    EXPECT_TRUE(test::has_class(lock, "size-32"));
    EXPECT_FALSE(test::has_class(lock, "lock-locked"));
    EXPECT_FALSE(test::has_class(lock, "zo-button"));
    EXPECT_EQ(request_of(lock), std::pair(32, 32));
    GtkWidget* padding = gtk_widget_get_parent(lock);
    EXPECT_EQ(gtk_widget_get_parent(padding), test::part("manager-taskbox-left"));
    EXPECT_EQ(packing_of(padding), (packing{.side = GTK_PACK_END}));
}

TEST_F(ManagerLayout, TheScrollerTakesWhatTheRegionsLeave) {
    panel.show();
    const int first = width_of("manager-taskbox-left");
    EXPECT_EQ(scroller_minimum(), zo_ui_workarea_width() - width_of("manager-taskbox-right") - first);
    GtkWidget* left = block(100 - first);
    ASSERT_TRUE(zo_window_manager_add_widget_right(panel, block(200)));
    ASSERT_TRUE(zo_window_manager_add_widget_left(panel, left));
    EXPECT_TRUE(test::turn_until([] { return scroller_minimum() == zo_ui_workarea_width() - 300; }))
        << scroller_minimum() << " " << width_of("manager-taskbox-left") << " "
        << width_of("manager-taskbox-right");
    EXPECT_TRUE(test::turn_until([] { return test::place_of(test::panel()).width == zo_ui_screen_width(); }))
        << test::place_of(test::panel());
    // The scroller takes what the left region gives back; the right region stays where it is.
    ASSERT_TRUE(zo_window_manager_remove_widget_left(panel, left));
    EXPECT_TRUE(test::turn_until([&] { return width_of("manager-taskbox-left") == first; }));
    EXPECT_TRUE(
        test::turn_until([&] { return scroller_minimum() == zo_ui_workarea_width() - 200 - first; }, second))
        << scroller_minimum();
}

TEST_F(ManagerLayout, TheScrollerNeverAsksForLessThanNothing) {
    ASSERT_TRUE(zo_window_manager_add_widget_right(panel, block(zo_ui_workarea_width() + 10)));
    panel.show();
    EXPECT_EQ(scroller_minimum(), 0);
    ASSERT_TRUE(zo_window_manager_add_widget_right(panel, block(10)));
    test::settle_desktop();
    EXPECT_EQ(scroller_minimum(), 0);
}

// The panel is as wide as the screen from its first moment on.
TEST_F(ManagerLayout, ThePanelIsAsWideAsTheScreen) {
    ASSERT_TRUE(zo_window_manager_add_widget_right(panel, block(200)));
    panel.show();
    EXPECT_TRUE(test::turn_until([] { return test::place_of(test::panel()).width == zo_ui_screen_width(); }))
        << test::place_of(test::panel());
}

}  // namespace
