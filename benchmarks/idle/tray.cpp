// SPDX-License-Identifier: MIT
#include <idle/tray.hpp>

#include <string>

int bench::icons_of(const session_bus& bus, pid_t process) {
    constexpr const char* watcher = "org.kde.StatusNotifierWatcher";
    const std::vector<answer> told =
        bus.call({watcher, "/StatusNotifierWatcher", "org.freedesktop.DBus.Properties"}, "Get",
                 {g_variant_new("(ss)", watcher, "RegisteredStatusNotifierItems")});
    GVariant* items = nullptr;
    g_variant_get(told.front().get(), "(v)", &items);
    GVariantIter next;
    g_variant_iter_init(&next, items);
    int count = 0;
    for (const char* item = nullptr; g_variant_iter_next(&next, "&s", &item);) {
        // The owner's name, with the icon's path behind it.
        const std::string name(item);
        if (bus.owner(name.substr(0, name.find('/'))) == process) ++count;
    }
    g_variant_unref(items);
    return count;
}
