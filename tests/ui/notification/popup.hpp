// SPDX-License-Identifier: MIT
// A notification for one test, and its popup found from outside.
#pragma once

#include "support/desktop.hpp"
#include "support/ui.hpp"

#include <map>
#include <string>
#include <vector>

namespace test {

using popup_container = std::map<unsigned long, GtkWidget*>;

// The three flags of a notification.
state state_of(const zo_notification_ptr& notification);

// Closes the notification at the end of the scope.
class scoped_notification {
  public:
    explicit scoped_notification(const std::string& title = "t", const std::string& content = "c");
    ~scoped_notification();
    scoped_notification(const scoped_notification&) = delete;
    scoped_notification& operator=(const scoped_notification&) = delete;
    operator zo_notification_ptr() const { return notification_; }
    const zo_notification_ptr& get() const { return notification_; }

    void add_action(const std::string& name, const std::string& label) const;

    // Each runs the tasks it posts.
    GtkWidget* show() const;
    void close() const;

    // Found by its title; null when it is not open.
    GtkWidget* popup() const;
    GtkWidget* part(const std::string& style_class) const;
    GtkWidget* action(const std::string& name) const;

  private:
    zo_notification_ptr notification_;
    std::string title_;
};

struct spot {
    int x = 0;
    int y = 0;
    bool operator==(const spot&) const = default;
};
std::ostream& operator<<(std::ostream& out, const spot& p);

// Where GTK and the server have a popup, in logical pixels.
spot spot_of(GtkWidget* popup);
int height_of(GtkWidget* popup);

// Waits until the server has it there.
bool comes_to(GtkWidget* popup, const spot& wanted);

// The stack of a manager.
popup_container& container_of(const zo_window_manager_ptr& manager);

}  // namespace test
