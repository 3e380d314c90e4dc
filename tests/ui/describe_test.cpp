// SPDX-License-Identifier: MIT
// The line that tells objects apart in logs and debuggers.
#include "support/ui.hpp"

#include <zo_core/zo_describe_p.hpp>

#include <thread>

namespace {

// Objects are described through their base, as whoever holds any object does.
std::string described(const zo_object_ptr& object) { return object->describe(); }

TEST(Describe, AWindowTellsItsIdTitleAndState) {
    const zo_window_ptr window = zo_window_new("notes");
    const zo_object_ptr object = zo_window_to_object(window);
    EXPECT_EQ(described(object), R"([zo_window] id "notes", title "", closed, referenced)");
    zo_window_set_title(window, "My \"notes\"\nof today: größer\\");
    zo_window_open(window);
    test::run_tasks();
    const std::string title = R"([zo_window] id "notes", title "My \"notes\" of today: größer\\", )";
    EXPECT_EQ(described(object), title + "opened, referenced");
    zo_window_show(window);
    test::run_tasks();
    EXPECT_EQ(described(object), title + "visible, referenced");
    zo_window_hide(window);
    test::run_tasks();
    EXPECT_EQ(described(object), title + "opened, referenced");
    zo_window_destroy(window, "reason", 1);
    EXPECT_EQ(described(object), title + "being destroyed, referenced");
    test::run_tasks();
    EXPECT_EQ(described(object), title + "destroyed");
}

TEST(Describe, AManagerTellsItsStateAndWhetherItSlides) {
    const zo_window_manager_ptr manager = zo_window_manager_new("");
    const zo_object_ptr object = zo_window_manager_to_object(manager);
    EXPECT_EQ(described(object), "[zo_window_manager] closed, slides away, referenced");
    zo_window_manager_open(manager);
    zo_window_manager_set_keep_extended(manager, true);
    test::run_tasks();
    EXPECT_EQ(described(object), "[zo_window_manager] opened, kept extended, referenced");
    zo_window_manager_show(manager);
    test::run_tasks();
    EXPECT_EQ(described(object), "[zo_window_manager] visible, kept extended, referenced");
    zo_window_manager_close(manager);
    zo_window_manager_destroy(manager);
    test::run_tasks();
    EXPECT_EQ(described(object), "[zo_window_manager] destroyed, kept extended");
}

TEST(Describe, ANotificationTellsItsNumberTitleAndState) {
    const zo_notification_ptr notification = zo_notification_new();
    const zo_object_ptr object = zo_notification_to_object(notification);
    zo_notification_set_title(notification, "Mail");
    const std::string head =
        "[zo_notification] id " + std::to_string(zo_notification_get_id(notification)) + ", title \"Mail\", ";
    EXPECT_EQ(described(object), head + "closed, referenced");
    zo_notification_open_show(notification);
    test::run_tasks();
    EXPECT_EQ(described(object), head + "visible, referenced");
    zo_notification_destroy(notification);
    test::run_tasks();
    EXPECT_EQ(described(object), head + "destroyed");
}

TEST(Describe, AnIndicatorTellsItsNameTitleAndIcon) {
    const zo_appindicator_ptr indicator = zo_appindicator_new("mail", "My mail", "mail-read");
    const zo_object_ptr object = zo_appindicator_to_object(indicator);
    const std::string head = R"([zo_appindicator] id "mail", title "My mail", icon "mail-read", )";
    EXPECT_EQ(described(object), head + "in use, referenced");
    object->destroy("reason", 1);
    EXPECT_EQ(described(object), head + "destroyed, referenced");
    test::run_tasks();
    EXPECT_EQ(described(object), head + "destroyed");
}

TEST(Describe, ABrokenTableIsNoHindrance) {
    const test::scoped_window window("w");
    const zo_object_ptr object = zo_window_to_object(window);
    const ::property_list whole = object->property_list;
    object->property_list.erase("window-id");
    object->property_list.erase("window-destroyed");
    zo_property_set<int>(object->property_list, "window-title-text", 5);
    zo_property_set<int>(object->property_list, "window-visible", 5);
    test::captured_output output;
    EXPECT_EQ(described(object), "[zo_window] closed, referenced");
    EXPECT_EQ(output.text(), "") << "nothing is reported";
    object->property_list = whole;
}

TEST(Describe, AnyThreadMayAsk) {
    const test::scoped_window window("w");
    std::string line;
    std::thread([&] { line = described(zo_window_to_object(window)); }).join();
    EXPECT_EQ(line, R"([zo_window] id "w", title "", closed, referenced)");
}

}  // namespace
