// SPDX-License-Identifier: MIT
// The ways to close, each once and for good.
#include "ui/notification/popup.hpp"

#include <cstdlib>

namespace {

using test::state;
using calls = std::vector<std::string>;

class NotificationClose : public testing::Test {
  protected:
    void SetUp() override {
        zo_notification_on_close(notification, [this](const zo_notification_ptr& self) {
            EXPECT_EQ(self, notification.get());
            called.emplace_back("close");
        });
    }

    void add(const std::string& name, std::function<void(std::string)> callback) {
        EXPECT_TRUE(zo_notification_add_action(notification, name, "Label", std::move(callback)));
    }
    void expect_closed() {
        test::run_tasks();
        EXPECT_EQ(test::state_of(notification), (state{false, false, true}));
        EXPECT_FALSE(notification.popup());
        EXPECT_FALSE(zo_notification_to_object(notification)->is_reffed());
    }

    calls called;
    test::scoped_notification notification;
};

TEST_F(NotificationClose, ByTheApplication) {
    notification.show();
    EXPECT_EQ(test::state_of(notification), (state{true, true, false}));
    zo_notification_destroy(notification);
    EXPECT_TRUE(called.empty()) << "posted";
    expect_closed();
    EXPECT_EQ(called, calls{"close"});
}

TEST_F(NotificationClose, OfOneThatWasNeverOpened) {
    notification.close();
    expect_closed();
    EXPECT_EQ(called, calls{"close"});
}

TEST_F(NotificationClose, ByItsButtonThenAgain) {
    notification.show();
    gtk_button_clicked(GTK_BUTTON(notification.part("title-close")));
    expect_closed();
    const test::captured_output output;
    for (int i = 0; i < 2; ++i) zo_notification_destroy(notification);
    zo_notification_to_object(notification)->destroy("again", 1);
    test::run_tasks();
    EXPECT_EQ(called, calls{"close"});
    EXPECT_EQ(output.text(), "") << "closing twice is silent";
}

TEST_F(NotificationClose, ByTheRealPointer) {
    GtkWidget* popup = notification.show();
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(popup); }));
    test::click(notification.part("title-close"));
    EXPECT_TRUE(test::turn_until([&] { return !called.empty(); }));
    expect_closed();
}

TEST_F(NotificationClose, ByAnAction) {
    add("one", [&](const std::string& name) { called.push_back("one:" + name); });
    add("two", [&](const std::string& name) { called.push_back("two:" + name); });
    add("two", [&](const std::string&) { called.emplace_back("never"); });
    notification.show();
    gtk_button_clicked(GTK_BUTTON(notification.action("two")));
    expect_closed();
    EXPECT_EQ(called, (calls{"two:two", "close"}));
}

TEST_F(NotificationClose, ByAButtonWithAnUnknownName) {
    add("one", [&](const std::string&) { called.emplace_back("one"); });
    notification.show();
    GtkWidget* button = notification.action("one");
    gtk_widget_set_name(button, "One");
    gtk_button_clicked(GTK_BUTTON(button));
    expect_closed();
    EXPECT_EQ(called, calls{"close"});
}

// A process of its own: the toolkit cannot be used any more once an exception went through it.
TEST_F(NotificationClose, AnEmptyActionIsFatal) {
    const auto press = [this] {
        add("empty", nullptr);
        notification.show();
        try {
            gtk_button_clicked(GTK_BUTTON(notification.action("empty")));
        } catch (const std::bad_function_call&) {
            std::_Exit(3);
        }
    };
    GTEST_FLAG_SET(death_test_style, "threadsafe");  // with a connection of its own to the server
    EXPECT_EXIT(press(), testing::ExitedWithCode(3), "");
}

TEST_F(NotificationClose, WhenItsTimeIsOver) {
    zo_notification_set_timeout(notification, 30);
    notification.show();
    EXPECT_TRUE(test::turn_until([&] { return !called.empty(); }));
    expect_closed();
}

TEST_F(NotificationClose, WithoutATimeNeverByItself) {
    const test::scoped_notification negative("negative");
    const test::scoped_notification zero("zero");
    const test::scoped_notification timed("timed");
    zo_notification_set_timeout(zero, 0);
    zo_notification_set_timeout(negative, -50);
    zo_notification_set_timeout(timed, 60);
    notification.show();
    negative.show();
    zero.show();
    timed.show();
    EXPECT_TRUE(test::turn_until([&] { return test::state_of(timed).destroyed; }));
    EXPECT_TRUE(test::state_of(notification).visible);
    EXPECT_TRUE(test::state_of(negative).visible);
    EXPECT_TRUE(test::state_of(zero).visible);
}

TEST_F(NotificationClose, BeforeItsTimeLeavesNothingBehind) {
    zo_notification_set_timeout(notification, 20);
    const test::scoped_notification later("later");
    zo_notification_set_timeout(later, 60);
    notification.show();
    later.show();
    notification.close();
    EXPECT_TRUE(test::turn_until([&] { return test::state_of(later).destroyed; }));
    EXPECT_EQ(called, calls{"close"});
}

TEST_F(NotificationClose, WhenSomebodyElseDestroysThePopup) {
    const test::scoped_notification below("below");
    GtkWidget* popup = notification.show();
    GtkWidget* other = below.show();
    gtk_widget_destroy(popup);
    EXPECT_EQ(test::state_of(notification), (state{false, false, true}));
    expect_closed();
    EXPECT_EQ(called, calls{"close"});
    EXPECT_TRUE(test::comes_to(other, {50, 75}));
}

// Everything may be asked of it inside its own callback, and nothing of it comes back.
TEST_F(NotificationClose, ItsCallbackMayCallEverything) {
    zo_notification_on_close(notification, [this](const zo_notification_ptr& self) {
        called.emplace_back("close");
        zo_notification_set_title(self, "again");
        zo_notification_set_content(self, "again");
        zo_notification_set_timeout(self, 1);
        zo_notification_add_action(self, "a", "a", [self](const std::string&) {});
        zo_notification_on_close(self, [this, self](auto) { called.emplace_back("again"); });
        zo_notification_on_activate_link_callback(self, [self](auto, auto) { return true; });
        zo_notification_open_show(self);
        zo_notification_destroy(self);
        test::run_tasks();  // a nested loop
        zo_notification_open_show(self);
    });
    notification.show();
    notification.close();
    expect_closed();
    EXPECT_EQ(called, calls{"close"});
}

TEST_F(NotificationClose, AnActionMayCloseAndOpenIt) {
    add("one", [&](const std::string&) {
        called.emplace_back("one");
        zo_notification_destroy(notification);
        test::run_tasks();
        zo_notification_open_show(notification);
    });
    notification.show();
    gtk_button_clicked(GTK_BUTTON(notification.action("one")));
    expect_closed();
    EXPECT_EQ(called, (calls{"one", "close"}));
}

TEST_F(NotificationClose, ItNeverOpensAgain) {
    notification.close();
    EXPECT_FALSE(notification.show());
    expect_closed();
}

TEST_F(NotificationClose, DropsItsCallables) {
    const auto token = std::make_shared<int>(0);
    add("one", [token](const std::string&) {});
    zo_notification_on_close(notification, [token](auto) {});
    zo_notification_on_activate_link_callback(notification, [token](auto, auto) { return true; });
    EXPECT_EQ(token.use_count(), 4);
    notification.show();
    notification.close();
    EXPECT_EQ(token.use_count(), 1);
    zo_notification_on_close(notification, [token](auto) {});
    EXPECT_EQ(token.use_count(), 1) << "nobody would let go of it any more";
}

// The application's handle goes in the callback; what is left runs to its end.
TEST(NotificationEnd, TheLastHandleGoesInItsCallback) {
    zo_notification_ptr notification = zo_notification_new();
    int closed = 0;
    zo_notification_on_close(notification, [&](const zo_notification_ptr&) {
        ++closed;
        notification.reset();
    });
    zo_notification_open_show(notification);
    test::run_tasks();
    gtk_button_clicked(GTK_BUTTON(test::find_class(test::toplevels("zo-notification")[0], "title-close")));
    test::run_tasks();
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(zo_object_ref_count("[zo_notification]"), 0);
}

// Nobody holds it but the library.
TEST(NotificationEnd, LivesOnWithoutAHandleUntilItCloses) {
    {
        const zo_notification_ptr notification = zo_notification_new();
        zo_notification_set_timeout(notification, 20);
        zo_notification_open_show(notification);
    }
    test::run_tasks();
    EXPECT_EQ(zo_object_ref_count("[zo_notification]"), 1);
    EXPECT_TRUE(test::turn_until([] { return zo_object_ref_count("[zo_notification]") == 0; }));
}

TEST(NotificationEnd, DropsEveryCountedReference) {
    const test::scoped_notification notification;
    zo_object_ref(zo_notification_to_object(notification));
    zo_object_ref(zo_notification_to_object(notification));
    notification.close();
    EXPECT_FALSE(zo_notification_to_object(notification)->is_reffed());
}

}  // namespace
