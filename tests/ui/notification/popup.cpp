// SPDX-License-Identifier: MIT
#include "ui/notification/popup.hpp"

#include <algorithm>
#include <ostream>

test::state test::state_of(const zo_notification_ptr& notification) {
    const zo_object_ptr object = zo_notification_to_object(notification);
    object->property_lock("a test", 1);
    state found;
    zo_property_get_extract<bool>(object->property_list, "window-opened", &found.opened);
    zo_property_get_extract<bool>(object->property_list, "window-visible", &found.visible);
    zo_property_get_extract<bool>(object->property_list, "window-destroyed", &found.destroyed);
    object->property_unlock();
    return found;
}

test::scoped_notification::scoped_notification(const std::string& title, const std::string& content)
    : notification_(zo_notification_new()), title_(title) {
    EXPECT_TRUE(zo_notification_set_title(notification_, title));
    EXPECT_TRUE(zo_notification_set_content(notification_, content));
}

test::scoped_notification::~scoped_notification() { close(); }

void test::scoped_notification::add_action(const std::string& name, const std::string& label) const {
    EXPECT_TRUE(zo_notification_add_action(notification_, name, label, [](const std::string&) {}));
}

GtkWidget* test::scoped_notification::show() const {
    EXPECT_TRUE(zo_notification_open_show(notification_));
    run_tasks();
    return popup();
}

void test::scoped_notification::close() const {
    EXPECT_TRUE(zo_notification_destroy(notification_));
    run_tasks();
}

GtkWidget* test::scoped_notification::popup() const {
    for (GtkWidget* popup : toplevels("zo-notification")) {
        const char* title = gtk_window_get_title(GTK_WINDOW(popup));
        if (title_ == (title ? title : "")) return popup;
    }
    return nullptr;
}

GtkWidget* test::scoped_notification::part(const std::string& style_class) const {
    return find_class(popup(), style_class);
}

GtkWidget* test::scoped_notification::action(const std::string& name) const {
    return find_name(part("action-box"), name);
}

std::ostream& test::operator<<(std::ostream& out, const spot& p) {
    return out << "(" << p.x << ", " << p.y << ")";
}

test::spot test::spot_of(GtkWidget* popup) {
    spot found;
    gtk_window_get_position(GTK_WINDOW(popup), &found.x, &found.y);
    return found;
}

int test::height_of(GtkWidget* popup) {
    int height = 0;
    gtk_window_get_size(GTK_WINDOW(popup), nullptr, &height);
    return height;
}

bool test::comes_to(GtkWidget* popup, const spot& wanted) {
    return turn_until([&] { return spot_of(popup) == wanted; });
}

test::popup_container& test::container_of(const zo_window_manager_ptr& manager) {
    popup_container* popups = nullptr;
    EXPECT_TRUE(zo_window_manager_get_local_notification_container(manager, &popups));
    return *popups;
}
