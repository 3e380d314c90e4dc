// SPDX-License-Identifier: MIT
#pragma once

#include "support/tray.hpp"
#include "support/ui.hpp"

#include <zo_core/zo_core.hpp>

#include <string>
#include <vector>

namespace test {

using indicator_handle = const zo_appindicator_ptr&;

// Destroys the indicator at the end of the scope and runs the tasks that belong to it.
class scoped_indicator {
  public:
    explicit scoped_indicator(const std::string& name, const std::string& title = "Title",
                              const std::string& icon = "mail-unread")
        : indicator_(zo_appindicator_new(name, title, icon)) {}
    ~scoped_indicator() { destroy(); }
    scoped_indicator(const scoped_indicator&) = delete;
    scoped_indicator& operator=(const scoped_indicator&) = delete;
    operator zo_appindicator_ptr() const { return indicator_; }
    const zo_appindicator_ptr& get() const { return indicator_; }
    zo_object_ptr object() const { return zo_appindicator_to_object(indicator_); }

    // Adds an action that counts.
    void count(const std::string& name, const std::string& label, int& counter) {
        zo_appindicator_add_action(indicator_, name, label,
                                   [&counter](zo_appindicator_ptr, std::string&) { ++counter; });
    }

    void show() {
        zo_appindicator_show(indicator_);
        run_tasks();
    }

    void destroy() {
        if (!indicator_) return;
        if (!destroyed_) object()->destroy("test", 1);
        destroyed_ = true;
        run_tasks();
    }

    // Drops the test's handle; somebody else destroys the indicator, or has done it.
    void let_go() { indicator_.reset(); }

  private:
    zo_appindicator_ptr indicator_;
    bool destroyed_ = false;
};

// Tests with a tray host, one for the whole program.
class with_tray_host : public testing::Test {
  protected:
    static void SetUpTestSuite() { host = new tray_host; }
    static void TearDownTestSuite() {
        delete host;
        host = nullptr;
    }
    static inline tray_host* host = nullptr;
};

// The menus that exist in this process, of whatever indicator.
inline std::vector<GtkWidget*> menus() {
    std::vector<GtkWidget*> result;
    GList* all = gtk_window_list_toplevels();
    for (GList* item = all; item; item = item->next) {
        GtkWidget* const child = gtk_bin_get_child(GTK_BIN(item->data));
        if (child && GTK_IS_MENU(child)) result.push_back(child);
    }
    g_list_free(all);
    return result;
}

// Chooses an entry and waits until the counter has moved.
inline void choose_and_wait(const tray_item& item, const std::string& label, const int& counter) {
    const int before = counter;
    EXPECT_TRUE(turn_until([&] { return choose_tray_entry(item, label); })) << label;
    EXPECT_TRUE(turn_until([&] { return counter != before; })) << label;
}

}  // namespace test
