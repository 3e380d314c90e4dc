// SPDX-License-Identifier: MIT
// The stack of the process: below one another with a gap of 2, and moved up when one leaves.
#include "ui/notification/popup.hpp"

#include <memory>

namespace {

constexpr int x = 50;
constexpr int top = 75;
constexpr int gap = 2;

int below(GtkWidget* popup) { return test::spot_of(popup).y + test::height_of(popup) + gap; }

TEST(NotificationStack, EachStandsBelowTheOneBefore) {
    const test::scoped_notification first("1", "one");
    const test::scoped_notification second("2", "two\nlines");
    const test::scoped_notification third("3", "three");
    GtkWidget* a = first.show();
    GtkWidget* b = second.show();
    GtkWidget* c = third.show();
    EXPECT_TRUE(test::comes_to(a, {x, top})) << test::spot_of(a);
    EXPECT_TRUE(test::comes_to(b, {x, below(a)})) << test::spot_of(b);
    EXPECT_TRUE(test::comes_to(c, {x, below(b)})) << test::spot_of(c);
    EXPECT_GT(test::height_of(b), test::height_of(a));
    EXPECT_TRUE(test::turn_until([&] { return test::is_on_screen(c); }));
}

TEST(NotificationStack, ClosingTheMiddleOneClosesTheGap) {
    const test::scoped_notification first("1", "one");
    const test::scoped_notification second("2", "two\nlines");
    const test::scoped_notification third("3", "three");
    GtkWidget* a = first.show();
    second.show();
    GtkWidget* c = third.show();
    second.close();
    EXPECT_FALSE(second.popup());
    EXPECT_TRUE(test::comes_to(c, {x, below(a)})) << test::spot_of(c);
    EXPECT_EQ(test::spot_of(a), (test::spot{x, top}));
    first.close();
    EXPECT_TRUE(test::comes_to(c, {x, top}));
}

// Whoever is told of the close, or runs next on the loop, finds the others moved.
TEST(NotificationStack, ClosesTheGapBeforeAnybodyLooks) {
    const test::scoped_notification first("1", "one");
    const test::scoped_notification second("2", "two");
    const test::scoped_notification third("3", "three");
    const test::scoped_notification fourth("4", "four");
    GtkWidget* a = first.show();
    for (const auto* each : {&second, &third}) each->show();
    GtkWidget* d = fourth.show();
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(d); }));
    const auto place = [d] {
        int y = 0;
        gtk_window_get_position(GTK_WINDOW(d), nullptr, &y);
        return y;
    };
    const int height = test::height_of(a) + gap;
    int told = 0;
    int next = 0;
    zo_notification_on_close(second, [&](const zo_notification_ptr&) { told = place(); });
    zo_notification_destroy(second);
    zo_system_service_exec([&] { next = place(); }, "test", 1);
    test::run_tasks();
    EXPECT_EQ(told, top + 2 * height);
    EXPECT_EQ(next, told);
    zo_notification_destroy(third);
    zo_system_service_exec([&] { next = place(); }, "test", 1);
    test::run_tasks();
    EXPECT_EQ(next, top + height);
}

// Also one that has never been in the stack.
TEST(NotificationStack, ClosesTheGapBeforeAnotherIsToldOfItsClose) {
    const test::scoped_notification first("1", "one");
    const test::scoped_notification second("2", "two");
    first.show();
    GtkWidget* const b = second.show();
    const zo_notification_ptr other = zo_notification_new();
    int told = 0;
    zo_notification_on_close(
        other, [&](const zo_notification_ptr&) { gtk_window_get_position(GTK_WINDOW(b), nullptr, &told); });
    zo_notification_destroy(first);
    zo_notification_destroy(other);
    test::run_tasks();
    EXPECT_EQ(told, top);
}

TEST(NotificationStack, IsInTheOrderOfMaking) {
    const test::scoped_notification first("1");
    const test::scoped_notification second("2");
    const test::scoped_notification third("3");
    GtkWidget* c = third.show();
    GtkWidget* a = first.show();  // the whole stack counts: below the one that is there
    EXPECT_TRUE(test::comes_to(a, {x, below(c)}));
    GtkWidget* b = second.show();
    EXPECT_TRUE(test::comes_to(b, {x, below(a)}));
    third.close();  // and closing sorts them
    EXPECT_TRUE(test::comes_to(a, {x, top}));
    EXPECT_TRUE(test::comes_to(b, {x, below(a)}));
}

TEST(NotificationStack, ALongOneNeverComesInAgainFromAbove) {
    std::vector<std::unique_ptr<test::scoped_notification>> all;
    for (int i = 0; i < 50; ++i)
        all.push_back(std::make_unique<test::scoped_notification>(
            std::to_string(i), std::string(60, '\n') + "the end of a long one"));
    for (const auto& one : all) one->show();
    for (const auto& one : all) EXPECT_GE(test::spot_of(one->popup()).y, top);
    EXPECT_GT(test::spot_of(all.back()->popup()).y, 30000);
    while (all.size() > 1) all.erase(all.begin());
    EXPECT_TRUE(test::comes_to(all[0]->popup(), {x, top}));
}

TEST(NotificationStack, OneThatTheApplicationHidesKeepsItsPlace) {
    const test::scoped_notification first("1", "one");
    const test::scoped_notification second("2", "two");
    GtkWidget* a = first.show();
    ASSERT_TRUE(test::comes_to(a, {x, top}));
    const int y = below(a);
    gtk_widget_hide(a);
    GtkWidget* b = second.show();
    EXPECT_TRUE(test::comes_to(b, {x, y})) << test::spot_of(b);
}

}  // namespace
