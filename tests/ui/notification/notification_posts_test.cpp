// SPDX-License-Identifier: MIT
// Under which file and line each operation is posted: a service in place of the core's only notes.
#include "support/posted_tasks.hpp"
#include "ui/notification/popup.hpp"

#include <zo_ui/zo_notification/notification_p.hpp>
#include <zo_ui/zo_window_manager/manager_notification_p.hpp>

using test::posted;
using test::posts;

namespace {

class NotificationPosts : public testing::Test {
  protected:
    NotificationPosts() { posts.clear(); }
    ~NotificationPosts() override {
        notification->close_for_good();
        posts.clear();
    }

    std::vector<int> lines() const {
        std::vector<int> found;
        for (const posted& post : posts) {
            EXPECT_EQ(post.file, "src/zo_ui/zo_notification");
            found.push_back(post.line);
        }
        return found;
    }
    void run_all() {
        std::vector<posted> taken;
        taken.swap(posts);
        for (const posted& post : taken) post.task();
    }

    const zo_notification_ptr notification = zo_notification_new();
};

TEST_F(NotificationPosts, NameTheirPlaceAndHoldTheObject) {
    const long before = notification.use_count();
    zo_notification_open_show(notification);
    EXPECT_EQ(lines(), (std::vector<int>{204, 375}));
    EXPECT_EQ(notification.use_count(), before + 2);
    EXPECT_EQ(test::state_of(notification), test::state{}) << "only posted";
    posts[0].task();
    EXPECT_EQ(test::state_of(notification), (test::state{true, false, false}));
    posts[1].task();
    EXPECT_EQ(test::state_of(notification), (test::state{true, true, false}));
    posts.clear();
    zo::hide_notification(*notification);
    zo::show_notification(*notification);
    EXPECT_EQ(lines(), (std::vector<int>{427, 375}));
    run_all();
    zo_notification_destroy(notification);
    notification->destroy("somebody", 1);
    zo::destroy_notification(*notification, "somebody", 1);
    EXPECT_EQ(lines(), (std::vector<int>{510, 510, 510}));
    run_all();
    EXPECT_EQ(test::state_of(notification), (test::state{false, false, true}));
}

TEST_F(NotificationPosts, ATimeoutNamesItsPlaceAndHoldsTheObject) {
    zo_notification_set_timeout(notification, 1234);
    notification->_open();
    const long before = notification.use_count();
    EXPECT_TRUE(posts.empty()) << "one that is not shown runs none";
    notification->_show();
    EXPECT_EQ(lines(), std::vector<int>{421});
    EXPECT_EQ(posts[0].milliseconds, 1234U);
    EXPECT_EQ(notification.use_count(), before + 1);
    zo_notification_set_timeout(notification, 5);
    EXPECT_EQ(posts.size(), 1U) << "for the next show";
    const auto run_out = posts[0].task;
    posts.clear();
    run_out();
    EXPECT_EQ(test::state_of(notification), (test::state{false, false, true}));
    run_out();
}

// The full time again, not the rest of it.
TEST_F(NotificationPosts, EachShowArmsTheWholeTimeout) {
    zo_notification_set_timeout(notification, 1234);
    notification->_open();
    for (int round = 0; round < 3; ++round) {
        notification->_show();
        ASSERT_EQ(posts.size(), 1U);
        EXPECT_EQ(posts[0].milliseconds, 1234U);
        posts.clear();
        zo::notification_access::shown_at(*notification) -= 1;
        notification->_hide();
    }
}

}  // namespace
