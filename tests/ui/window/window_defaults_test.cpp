// SPDX-License-Identifier: MIT
// What a new window holds: every property with its type and its first value.
#include "ui/window/window_tables.hpp"

#include <set>

namespace {

using property_map = std::map<std::string, boost::any>;

property_map properties_of(const zo_window_ptr& window) {
    const zo_object_ptr object = zo_window_to_object(window);
    object->property_lock(__FILE__, __LINE__);
    const property_map copy(object->property_list.begin(), object->property_list.end());
    object->property_unlock();
    return copy;
}

template <typename T>
void expect_value(const property_map& properties, const std::string& name, const T& value) {
    const auto place = properties.find(name);
    ASSERT_NE(place, properties.end()) << name;
    ASSERT_TRUE(place->second.type() == typeid(T)) << name << " is a " << place->second.type().name();
    EXPECT_EQ(boost::any_cast<T>(place->second), value) << name;
}

template <typename Signature>
void expect_empty_callback(const property_map& properties, const std::string& name) {
    using callable = std::function<Signature>;
    const auto place = properties.find(name);
    ASSERT_NE(place, properties.end()) << name;
    ASSERT_TRUE(place->second.type() == typeid(callable)) << name << " is a " << place->second.type().name();
    EXPECT_FALSE(boost::any_cast<callable>(place->second)) << name;
}

TEST(WindowDefaults, Callbacks) {
    test::captured_output output;
    test::scoped_window window("");
    const property_map properties = properties_of(window);
    const char* const plain[] = {"window-open",     "window-show",     "window-hide",    "window-close",
                                 "window-activate", "window-restore",  "window-destroy", "go-back",
                                 "hint-request",    "app-exit-request"};
    for (const char* name : plain) expect_empty_callback<void(zo_window_ptr)>(properties, name);
    expect_empty_callback<bool(zo_window_ptr)>(properties, "window-close-request");
    expect_empty_callback<void(zo_window_ptr, GdkPixbuf*)>(properties, "handle-photo");
    expect_empty_callback<void(zo_window_ptr, GtkGrid*)>(properties, "menu-create");
    for (const char* name : {"window-title-change", "window-class-change", "window-id-change"})
        expect_empty_callback<void(zo_window_ptr, std::string)>(properties, name);
    expect_empty_callback<void(zo_window_ptr, zo_window_event_ptr)>(properties, "window-on-event");
    EXPECT_EQ(output.text(), "");
}

TEST(WindowDefaults, FlagsTextsAndTheCounter) {
    test::captured_output output;
    test::scoped_window window("");
    const property_map properties = properties_of(window);
    for (const test::window_flag& flag : test::window_flags)
        expect_value(properties, flag.property, flag.initial);
    for (const char* name : {"window-visible", "window-opened", "window-destroyed", "window-restore-visible",
                             "window-restore-opened", "window-restore-destroyed", "object-destroyed"})
        expect_value(properties, name, false);
    expect_value(properties, "window-title-text", std::string());
    expect_value(properties, "window-class", std::string("global-window"));
    expect_value(properties, "window-id", std::string());
    expect_value(properties, "instanceId", 0);
    EXPECT_EQ(output.text(), "");
}

TEST(WindowDefaults, NothingElse) {
    test::scoped_window window("");
    std::set<std::string> expected{"window-visible",
                                   "window-opened",
                                   "window-destroyed",
                                   "window-restore-visible",
                                   "window-restore-opened",
                                   "window-restore-destroyed",
                                   "instanceId",
                                   "object-destroyed"};
    for (const test::window_flag& flag : test::window_flags) expected.insert(flag.property);
    for (const test::window_callback& callback : test::window_callbacks) expected.insert(callback.property);
    for (const test::window_text_row& text : test::window_texts) expected.insert(text.property);
    std::set<std::string> found;
    for (const auto& [name, value] : properties_of(window)) found.insert(name);
    EXPECT_EQ(found, expected);
    EXPECT_EQ(found.size(), 17U + 25U + 3U + 1U + 1U);
}

TEST(WindowDefaults, AsTheGettersTellThem) {
    test::scoped_window window("");
    for (const test::window_flag& flag : test::window_flags)
        EXPECT_EQ(flag.get(window), flag.initial) << flag.name;
    for (const test::window_text_row& row : test::window_texts) {
        std::string text = "before";
        EXPECT_TRUE(row.get(window, text)) << row.name;
        EXPECT_EQ(text, row.initial) << row.name;
    }
    EXPECT_EQ(zo_window_instance_id(window), 0);
    EXPECT_EQ(test::state_of(window), test::state());
    EXPECT_FALSE(zo_window_get_window_manager(window));
}

TEST(WindowDefaults, TheIdOfTheConstructorIsSetLikeAnyOther) {
    test::scoped_window window("first");
    std::string id;
    EXPECT_TRUE(zo_window_get_id(window, id));
    EXPECT_EQ(id, "first");
    std::vector<std::string> changes;
    zo_window_set_window_id_change_callback(
        window, [&](zo_window_ptr, const std::string& text) { changes.push_back(text); });
    test::run_tasks();
    EXPECT_EQ(changes, std::vector<std::string>{"first"});
}

TEST(WindowDefaults, AnEmptyIdPostsNothing) {
    test::scoped_window window("");
    int changes = 0;
    zo_window_set_window_id_change_callback(window, [&](zo_window_ptr, std::string) { ++changes; });
    test::run_tasks();
    EXPECT_EQ(changes, 0);
}

TEST(WindowDefaults, EveryNewWindowIsCountedAndHeld) {
    EXPECT_EQ(zo_object_ref_count("[zo_window]"), 0);
    zo_window_ptr window = zo_window_new("");
    EXPECT_EQ(zo_object_ref_count("[zo_window]"), 1);
    const zo_object_ptr object = zo_window_to_object(window);
    EXPECT_TRUE(object->is_reffed());
    EXPECT_EQ(object->get_type(), "[zo_window]");
    EXPECT_NE(object->describe(), "");
    zo_window_destroy(window);
    test::run_tasks();
    EXPECT_FALSE(object->is_reffed());
    EXPECT_EQ(zo_object_ref_count("[zo_window]"), 1);
}

// The library's own reference keeps a window that nobody else holds, until it is destroyed.
TEST(WindowDefaults, LivesWithoutAnyHandle) {
    boost::weak_ptr<_zo_window> watched;
    {
        const zo_window_ptr window = zo_window_new("unheld");
        watched = window;
    }
    test::run_tasks();
    EXPECT_EQ(zo_object_ref_count("[zo_window]"), 1);
    zo_window_open(watched.lock());
    test::run_tasks();
    EXPECT_TRUE(test::toplevel_named("unheld"));
    zo_window_destroy(watched.lock());
    test::run_tasks();
    EXPECT_TRUE(watched.expired());
    EXPECT_FALSE(test::toplevel_named("unheld"));
}

}  // namespace
