// SPDX-License-Identifier: MIT
// Placing a popup and closing gaps ask the server for nothing, however many there are: X requests counted.
#include "ui/notification/popup.hpp"

#include <zo_ui/zo_notification/notification_p.hpp>

#include <gdk/gdkx.h>
#include <memory>

namespace {

using stack = std::vector<std::unique_ptr<test::scoped_notification>>;

unsigned long requests() { return NextRequest(GDK_DISPLAY_XDISPLAY(gdk_display_get_default())); }

stack show(int count) {
    stack all;
    for (int i = 0; i < count; ++i) {
        all.push_back(std::make_unique<test::scoped_notification>(std::to_string(i)));
        all.back()->show();
    }
    test::settle_desktop();
    return all;
}

// Of one that is shown below `count` others.
unsigned long requests_of_showing(int count) {
    const stack all = show(count);
    const test::scoped_notification next("next");
    next.get()->_open();
    gtk_widget_realize(next.popup());
    const unsigned long before = requests();
    next.get()->_show();
    return requests() - before;
}

// Of the last one's leaving, when nobody has to move.
unsigned long requests_of_leaving(int count) {
    const stack all = show(count);
    const unsigned long before = requests();
    all.back()->get()->close_for_good();
    test::run_tasks();
    return requests() - before;
}

// Of all of them leaving in one turn of the loop, the oldest first: each would move all the others.
unsigned long requests_of_leaving_together(int count) {
    const stack all = show(count);
    const unsigned long before = requests();
    for (const auto& each : all) zo_notification_destroy(*each);
    test::run_tasks();
    return requests() - before;
}

// The toolkit's own share of that: it looks at every window that is on screen.
unsigned long requests_of_destroying(int count, int others) {
    const stack all = show(others);
    std::vector<GtkWidget*> popups;
    for (int i = 0; i < count; ++i) {
        popups.push_back(gtk_window_new(GTK_WINDOW_POPUP));
        gtk_container_add(GTK_CONTAINER(popups.back()), gtk_button_new_with_label("plain"));
        gtk_widget_show_all(popups.back());
    }
    test::settle_desktop();
    const unsigned long before = requests();
    for (GtkWidget* popup : popups) gtk_widget_destroy(popup);
    test::run_tasks();
    return requests() - before;
}

TEST(NotificationRequests, ShowingDoesNotGrowWithTheStack) {
    requests_of_showing(1);  // what the toolkit does the first time
    EXPECT_EQ(requests_of_showing(30), requests_of_showing(1));
}

TEST(NotificationRequests, LeavingMovesOnlyThoseBelow) {
    EXPECT_EQ(requests_of_leaving(30), requests_of_destroying(1, 29));
}

TEST(NotificationRequests, LeavingTogetherMovesNobody) {
    const unsigned long events = 1;  // the desktop's, which nobody listens to any more
    EXPECT_EQ(requests_of_leaving_together(30), requests_of_destroying(30, 0) + events);
}

}  // namespace
