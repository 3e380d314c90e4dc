// SPDX-License-Identifier: MIT
// Each notification of a panel that closes is told who ends it, once, and in the order of the ids.
#include "ui/window_manager/panel.hpp"

#include <zo_ui/zo_notification/notification_p.hpp>
#include <zo_ui/zo_window_manager/manager_p.hpp>

#include <boost/make_shared.hpp>

namespace {

class recording_notification : public _zo_notification {
  public:
    recording_notification(std::string name, std::vector<std::string>& ends)
        : name_(std::move(name)), ends_(ends) {}
    void destroy(std::string reason, int line) override {
        ends_.push_back(name_ + " " + reason + ":" + std::to_string(line));
    }

  private:
    std::string name_;
    std::vector<std::string>& ends_;
};

TEST(ManagerNotificationReason, IsThePanelsClosing) {
    std::vector<std::string> ends;
    const test::scoped_panel panel;
    panel.open();
    auto& notifications = panel.get()->manager_notifications();
    notifications[1002] = boost::make_shared<recording_notification>("second", ends);
    notifications[1001] = boost::make_shared<recording_notification>("first", ends);
    panel.close();
    EXPECT_EQ(ends, (std::vector<std::string>{"first src/zo_ui/zo_window_manager:421",
                                              "second src/zo_ui/zo_window_manager:421"}));
    EXPECT_TRUE(notifications.empty());
    EXPECT_EQ(zo_object_ref_count("[zo_notification]"), 0);
}

}  // namespace
