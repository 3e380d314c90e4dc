// SPDX-License-Identifier: MIT
#include "support/tray.hpp"

#include "support/loop.hpp"

#include <gtest/gtest.h>

namespace {

constexpr const char* watcher = "org.kde.StatusNotifierWatcher";
constexpr const char* item_interface = "org.kde.StatusNotifierItem";
constexpr const char* menu_interface = "com.canonical.dbusmenu";

// A connection of the test's own: another one than that of the indicators.
GDBusConnection* connection() {
    static GDBusConnection* const own = [] {
        char* address = g_dbus_address_get_for_bus_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
        const auto flags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                             G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
        GDBusConnection* made =
            g_dbus_connection_new_for_address_sync(address, flags, nullptr, nullptr, nullptr);
        g_free(address);
        return made;
    }();
    return own;
}

struct answer {
    bool here = false;
    GVariant* value = nullptr;
};

void on_answer(GObject* source, GAsyncResult* result, gpointer data) {
    auto& got = *static_cast<answer*>(data);
    got.value = g_dbus_connection_call_finish(G_DBUS_CONNECTION(source), result, nullptr);
    got.here = true;
}

test::variant property(const std::string& name, const std::string& path, const std::string& interface,
                       const std::string& key) {
    const test::variant reply = test::bus_call(name, path, "org.freedesktop.DBus.Properties", "Get",
                                               g_variant_new("(ss)", interface.c_str(), key.c_str()));
    if (!reply) return nullptr;
    GVariant* value = nullptr;
    g_variant_get(reply.get(), "(v)", &value);
    return test::variant(value);
}

struct entry {
    int id;
    std::string label;
};

void collect(GVariant* node, std::vector<entry>& entries) {
    int id = 0;
    GVariant* properties = nullptr;
    GVariant* children = nullptr;
    g_variant_get(node, "(i@a{sv}@av)", &id, &properties, &children);
    const char* label = nullptr;
    if (g_variant_lookup(properties, "label", "&s", &label)) entries.push_back({id, label});
    for (gsize i = 0; i < g_variant_n_children(children); ++i) {
        GVariant* const boxed = g_variant_get_child_value(children, i);
        GVariant* const child = g_variant_get_variant(boxed);
        collect(child, entries);
        g_variant_unref(child);
        g_variant_unref(boxed);
    }
    g_variant_unref(children);
    g_variant_unref(properties);
}

std::string menu_path(const test::tray_item& item) {
    const test::variant path = test::item_property(item, "Menu");
    return path ? g_variant_get_string(path.get(), nullptr) : "/";
}

std::vector<entry> entries_of(const test::tray_item& item) {
    const test::variant reply = test::bus_call(item.bus_name, menu_path(item), menu_interface, "GetLayout",
                                               g_variant_new("(iias)", 0, -1, nullptr));
    std::vector<entry> entries;
    if (!reply) return entries;
    GVariant* const root = g_variant_get_child_value(reply.get(), 1);
    collect(root, entries);
    g_variant_unref(root);
    return entries;
}

}  // namespace

test::variant test::bus_call(const std::string& name, const std::string& path, const std::string& interface,
                             const std::string& method, GVariant* arguments) {
    if (name.empty()) return nullptr;
    answer got;
    g_dbus_connection_call(connection(), name.c_str(), path.c_str(), interface.c_str(), method.c_str(),
                           arguments, nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START, 10000, nullptr, on_answer,
                           &got);
    turn_until([&] { return got.here; }, std::chrono::hours(1));  // the call has a limit of its own
    return variant(got.value);
}

std::vector<test::tray_item> test::tray_items() {
    const variant registered =
        property(watcher, "/StatusNotifierWatcher", watcher, "RegisteredStatusNotifierItems");
    std::vector<tray_item> items;
    if (!registered) return items;
    for (gsize i = 0; i < g_variant_n_children(registered.get()); ++i) {
        const variant child(g_variant_get_child_value(registered.get(), i));
        const std::string full = g_variant_get_string(child.get(), nullptr);
        const std::size_t slash = full.find('/');
        items.push_back({full.substr(0, slash), full.substr(slash)});
    }
    return items;
}

test::variant test::item_property(const tray_item& item, const std::string& name) {
    return property(item.bus_name, item.path, item_interface, name);
}

std::string test::item_text(const tray_item& item, const std::string& name) {
    const variant value = item_property(item, name);
    return value ? g_variant_get_string(value.get(), nullptr) : "(none)";
}

std::vector<test::tray_item> test::tray_items(const std::string& id) {
    std::vector<tray_item> items;
    for (const tray_item& item : tray_items())
        if (item_text(item, "Id") == id) items.push_back(item);
    return items;
}

bool test::tray_items_become(const std::string& id, std::size_t count) {
    return turn_until([&] { return tray_items(id).size() == count; });
}

test::tray_item test::wait_for_tray_item(const std::string& id) {
    EXPECT_TRUE(tray_items_become(id, 1)) << id;
    const std::vector<tray_item> items = tray_items(id);
    return items.empty() ? tray_item() : items[0];
}

std::vector<std::string> test::tray_labels(const tray_item& item) {
    std::vector<std::string> labels;
    for (const entry& each : entries_of(item)) labels.push_back(each.label);
    return labels;
}

bool test::tray_labels_become(const tray_item& item, const std::vector<std::string>& labels) {
    return turn_until([&] { return tray_labels(item) == labels; });
}

bool test::choose_tray_entry(const tray_item& item, const std::string& label) {
    for (const entry& each : entries_of(item)) {
        if (each.label != label) continue;
        // Without an answer when the click takes the program off the bus.
        bus_call(item.bus_name, menu_path(item), menu_interface, "Event",
                 g_variant_new("(isvu)", each.id, "clicked", g_variant_new_string(""), 0));
        return true;
    }
    return false;
}
