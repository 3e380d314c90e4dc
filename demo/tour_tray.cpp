// SPDX-License-Identifier: MIT
// The tray's icon and menu as the desktop's host sees them: over the session bus.
#include "notifications.hpp"
#include "texts.hpp"
#include "tour_gallery.hpp"
#include "tour_messages.hpp"
#include "tour_tools.hpp"
#include "tray.hpp"

#include <memory>

namespace {

using namespace demo::tour;

struct release_variant {
    void operator()(GVariant* variant) const { g_variant_unref(variant); }
};
using variant = std::unique_ptr<GVariant, release_variant>;

// Calls the program's own exported objects through the bus, while the loop answers.
variant call(const char* destination, const std::string& path, const char* interface, const char* method,
             GVariant* arguments) {
    struct reply {
        bool came = false;
        GVariant* value = nullptr;
    } answer;
    GDBusConnection* bus = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr);
    if (!bus) throw failed_step("there is a session bus");
    if (!destination) destination = g_dbus_connection_get_unique_name(bus);
    constexpr int patience = 10'000;
    g_dbus_connection_call(
        bus, destination, path.c_str(), interface, method, arguments, nullptr, G_DBUS_CALL_FLAGS_NONE,
        patience, nullptr,
        [](GObject* source, GAsyncResult* result, gpointer data) {
            auto* seen = static_cast<reply*>(data);
            seen->value = g_dbus_connection_call_finish(G_DBUS_CONNECTION(source), result, nullptr);
            seen->came = true;
        },
        &answer);
    expect(std::string(method) + " is answered", [&] { return answer.came; });
    g_object_unref(bus);
    return variant(answer.value);
}

std::string item_path() {
    std::string name = demo::tray_name;
    for (char& c : name)
        if (!g_ascii_isalnum(c)) c = '_';
    return "/org/ayatana/NotificationItem/" + name;
}

// Has the desktop's host, which somebody else wrote, taken the icon in?
bool host_has_the_icon() {
    const variant items =
        call("org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher", "org.freedesktop.DBus.Properties",
             "Get", g_variant_new("(ss)", "org.kde.StatusNotifierWatcher", "RegisteredStatusNotifierItems"));
    if (!items) return false;
    std::unique_ptr<char, decltype(&g_free)> text(g_variant_print(items.get(), FALSE), g_free);
    return std::string(text.get()).find(item_path()) != std::string::npos;
}

// The number that the exported menu gives to an entry.
int number_of(const std::string& label) {
    const variant layout = call(nullptr, item_path() + "/Menu", "com.canonical.dbusmenu", "GetLayout",
                                g_variant_new("(iias)", 0, -1, nullptr));
    if (!layout) throw failed_step("the menu is exported");
    const variant root(g_variant_get_child_value(layout.get(), 1));
    const variant entries(g_variant_get_child_value(root.get(), 2));
    for (gsize i = 0; i < g_variant_n_children(entries.get()); ++i) {
        const variant boxed(g_variant_get_child_value(entries.get(), i));
        const variant entry(g_variant_get_variant(boxed.get()));
        int number = 0;
        GVariant* properties = nullptr;
        g_variant_get(entry.get(), "(i@a{sv}@av)", &number, &properties, nullptr);
        const variant owned(properties);
        const char* its = nullptr;
        if (g_variant_lookup(properties, "label", "&s", &its) && label == its) return number;
    }
    throw failed_step("the tray's menu has \"" + label + "\"");
}

void choose(const std::string& label) {
    call(nullptr, item_path() + "/Menu", "com.canonical.dbusmenu", "Event",
         g_variant_new("(isvu)", number_of(label), "clicked", g_variant_new_int32(0), 0U));
}

}  // namespace

void demo::tour::tray_menu(visit& v) {
    open_page("tray");
    click(on_page("show-tray"));
    expect("the desktop's tray has the icon", host_has_the_icon);
    choose(_("Raise a notification"));
    v.expect_logged("tray", "3-raise");
    v.expect_logged("messages", "raised: backup");
    v.picture("tray-icon-and-its-notification");
    choose(_("Close the panel"));
    expect("the tray closes the panel", [] { return !has_window_of_class("zo-manager"); });
    choose(_("Open the panel"));
    expect("the tray opens the panel", [] { return has_window_of_class("zo-manager"); });
    close_messages(v.shop);
    expect("its notification is closed", [&] { return v.shop.raised.empty(); });
}
