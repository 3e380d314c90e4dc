// SPDX-License-Identifier: MIT
#include "ui/window_manager/panel.hpp"

test::state test::state_of(const zo_window_manager_ptr& manager) {
    state s;
    EXPECT_TRUE(zo_window_manager_is_opened(manager, &s.opened));
    EXPECT_TRUE(zo_window_manager_is_visible(manager, &s.visible));
    EXPECT_TRUE(zo_window_manager_is_destroyed(manager, &s.destroyed));
    return s;
}

test::scoped_panel::~scoped_panel() {
    zo_window_manager_close(manager_);
    zo_window_manager_destroy(manager_);
    run_tasks();
}

void test::scoped_panel::run(bool (*operation)(zo_window_manager_ptr)) const {
    EXPECT_TRUE(operation(manager_));
    run_tasks();
}

void test::scoped_panel::keep_extended(bool keep) const {
    EXPECT_TRUE(zo_window_manager_set_keep_extended(manager_, keep));
    run_tasks();
}

void test::scoped_panel::join(const zo_window_ptr& window) const {
    EXPECT_TRUE(zo_window_set_window_manager(window, manager_));
    run_tasks();
}

GtkWidget* test::scoped_panel::show() const {
    open();
    run(zo_window_manager_show);
    EXPECT_TRUE(turn_until([] { return panel() && is_on_screen(panel()); }));
    settle_desktop();
    return panel();
}

GtkWidget* test::panel() {
    const std::vector<GtkWidget*> panels = toplevels("zo-manager");
    return panels.empty() ? nullptr : panels.front();
}

GtkWidget* test::part(const std::string& style_class) { return find_class(panel(), style_class); }

namespace {

// The paddings of the row from left to right, as the box gives what is packed at its end.
std::vector<GtkWidget*> paddings() {
    GtkWidget* center = test::part("manager-taskbox-center");
    if (!center) return {};
    GList* list = gtk_container_get_children(GTK_CONTAINER(center));
    std::vector<GtkWidget*> result;
    for (GList* item = list; item; item = item->next) {
        EXPECT_TRUE(GTK_IS_BOX(item->data));
        gboolean expand = TRUE;
        gboolean fill = TRUE;
        guint space = 1;
        GtkPackType side = GTK_PACK_START;
        gtk_box_query_child_packing(GTK_BOX(center), GTK_WIDGET(item->data), &expand, &fill, &space, &side);
        EXPECT_TRUE(!expand && !fill && space == 0 && side == GTK_PACK_END);
        result.push_back(GTK_WIDGET(item->data));
    }
    g_list_free(list);
    return result;
}

GtkWidget* child_of(GtkWidget* padding) {
    const std::vector<GtkWidget*> children = test::children(padding);
    EXPECT_LE(children.size(), 1U);
    return children.empty() ? nullptr : children.front();
}

}  // namespace

std::string test::row() {
    std::string names;
    for (GtkWidget* padding : paddings()) {
        GtkWidget* button = child_of(padding);
        if (!names.empty()) names += " ";
        if (!button)
            names += "_";
        else if (has_class(button, "title-close"))
            names += "x";
        else
            names += gtk_widget_get_name(button);
    }
    return names;
}

GtkWidget* test::task_button(const std::string& window_id) {
    for (GtkWidget* padding : paddings())
        if (GtkWidget* button = child_of(padding); button && window_id == gtk_widget_get_name(button))
            return button;
    return nullptr;
}

GtkWidget* test::close_button(const std::string& window_id) {
    bool is_next = false;
    for (GtkWidget* padding : paddings()) {
        GtkWidget* button = child_of(padding);
        if (is_next) return button;
        is_next = button && window_id == gtk_widget_get_name(button);
    }
    return nullptr;
}

test::joined_window::joined_window(const scoped_panel& panel, const std::string& id) : window_(id) {
    zo_window_set_title(window_, id);
    panel.join(window_);
}

void test::joined_window::run(bool (*operation)(zo_window_ptr)) {
    EXPECT_TRUE(operation(window_));
    run_tasks();
}

std::ostream& test::operator<<(std::ostream& out, const place& p) {
    return out << p.width << "x" << p.height << "+" << p.x << "+" << p.y;
}

test::place test::place_of(GtkWidget* panel) {
    place p;
    gdk_display_sync(gdk_display_get_default());
    GdkWindow* window = gtk_widget_get_window(panel);
    gdk_window_get_origin(window, &p.x, &p.y);
    p.width = gdk_window_get_width(window);
    p.height = gdk_window_get_height(window);
    return p;
}

namespace {

bool is_at(const std::function<int(int)>& y) {
    const auto there = [&] {
        const test::place p = test::place_of(test::panel());
        return p.x == zo_ui_screen_x() && p.y == y(p.height);
    };
    const bool came = test::turn_until(there, std::chrono::seconds(5));
    test::settle_desktop();
    return came && there();
}

}  // namespace

bool test::is_extended() {
    return is_at([](int) { return zo_ui_screen_y(); });
}

bool test::is_retracted() {
    return is_at([](int height) { return zo_ui_screen_y() - height + 1; });
}
