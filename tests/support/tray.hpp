// SPDX-License-Identifier: MIT
// The tray as its host sees it: what is registered with it, read and clicked over the session bus. Calls turn
// the loop until the answer is there, since it is this very program that answers most of them.
#pragma once

#include <gio/gio.h>

#include <memory>
#include <string>
#include <vector>

namespace test {

struct release_variant {
    void operator()(GVariant* value) const { g_variant_unref(value); }
};
using variant = std::unique_ptr<GVariant, release_variant>;

// The answer to a call, null when it fails. Takes floating `arguments`.
variant bus_call(const std::string& name, const std::string& path, const std::string& interface,
                 const std::string& method, GVariant* arguments);

struct tray_item {
    std::string bus_name;
    std::string path;
};

// What is registered with the desktop's tray host; nothing without a host.
std::vector<tray_item> tray_items();

// A property of an item, such as "Title"; null when it cannot be read.
variant item_property(const tray_item& item, const std::string& name);

// A property that is a string, or "(none)".
std::string item_text(const tray_item& item, const std::string& name);

// The registered items with this id.
std::vector<tray_item> tray_items(const std::string& id);

// Waits until exactly `count` items with this id are registered.
bool tray_items_become(const std::string& id, std::size_t count);

// Waits for the item with this id and gives it; its absence fails the test.
tray_item wait_for_tray_item(const std::string& id);

// The labels of an item's menu in the order in which hosts show them.
std::vector<std::string> tray_labels(const tray_item& item);

// Waits until these are the labels.
bool tray_labels_become(const tray_item& item, const std::vector<std::string>& labels);

// Chooses the entry with this label as a host does when the user clicks it. False when there is none
// (yet: a menu takes a moment longer than its icon).
bool choose_tray_entry(const tray_item& item, const std::string& label);

// A real tray host of the test's own desktop, from construction (when it is ready) to the end of the scope.
class tray_host {
  public:
    tray_host();
    ~tray_host();
    tray_host(const tray_host&) = delete;
    tray_host& operator=(const tray_host&) = delete;

    // Ends it as a session does, or as a crash does, and waits until it has left the bus.
    void stop();
    void crash();

  private:
    void end(int signal);
    int pid_ = 0;
};

}  // namespace test
