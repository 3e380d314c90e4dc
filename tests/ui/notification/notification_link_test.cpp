// SPDX-License-Identifier: MIT
// Links in the text.
#include "ui/notification/popup.hpp"

namespace {

using test::state;

class NotificationLink : public testing::Test {
  protected:
    bool activate() {
        gboolean handled = FALSE;
        g_signal_emit_by_name(notification.part("content-text"), "activate-link", "zo-test:uri", &handled);
        return handled;
    }

    test::scoped_notification notification{"t", "see <a href=\"zo-test:uri\">this</a>"};
};

TEST_F(NotificationLink, ItsCallbackAnswers) {
    std::string seen;
    bool answer = true;
    zo_notification_on_activate_link_callback(notification,
                                              [&](const zo_notification_ptr& self, std::string& uri) {
                                                  EXPECT_EQ(self, notification.get());
                                                  seen = uri;
                                                  return answer;
                                              });
    notification.show();
    EXPECT_TRUE(activate());
    EXPECT_EQ(seen, "zo-test:uri");
    EXPECT_EQ(test::state_of(notification), (state{true, true, false})) << "it stays";
}

TEST_F(NotificationLink, ARealClickReachesIt) {
    int called = 0;
    zo_notification_on_activate_link_callback(notification, [&](auto, auto) { return ++called > 0; });
    GtkWidget* popup = notification.show();
    ASSERT_TRUE(test::turn_until([&] { return test::is_on_screen(popup); }));
    GtkWidget* label = notification.part("content-text");
    // The first words stand at the label's left end; the link is the second of them.
    PangoLayout* layout = gtk_label_get_layout(GTK_LABEL(label));
    PangoRectangle in_layout;
    pango_layout_index_to_pos(layout, 5, &in_layout);
    int x = 0;
    int y = 0;
    gtk_label_get_layout_offsets(GTK_LABEL(label), &x, &y);
    x += in_layout.x / PANGO_SCALE + 2;
    y += (in_layout.y + in_layout.height / 2) / PANGO_SCALE;
    GtkAllocation place;
    gtk_widget_get_allocation(label, &place);
    int root_x = 0;
    int root_y = 0;
    gtk_widget_translate_coordinates(label, popup, x - place.x, y - place.y, &x, &y);
    gdk_window_get_root_coords(gtk_widget_get_window(popup), x, y, &root_x, &root_y);
    test::click_at(root_x, root_y);
    EXPECT_TRUE(test::turn_until([&] { return called == 1; }));
    EXPECT_TRUE(test::state_of(notification).visible);
}

// What it asks for comes after the label has done with the link, even when it runs a loop of its own.
TEST_F(NotificationLink, ItMayCloseTheNotification) {
    bool inside = false;
    zo_notification_on_close(notification,
                             [&](const zo_notification_ptr&) { EXPECT_FALSE(inside) << "too early"; });
    zo_notification_on_activate_link_callback(notification,
                                              [&](const zo_notification_ptr& self, std::string&) {
                                                  inside = true;
                                                  zo_notification_destroy(self);
                                                  test::run_tasks();
                                                  EXPECT_TRUE(test::state_of(self).opened);
                                                  inside = false;
                                                  return true;
                                              });
    notification.show();
    EXPECT_TRUE(activate());
    test::run_tasks();
    EXPECT_EQ(test::state_of(notification), (state{false, false, true}));
}

TEST_F(NotificationLink, ItMayReplaceItself) {
    int second = 0;
    zo_notification_on_activate_link_callback(
        notification, [&](const zo_notification_ptr& self, std::string&) {
            zo_notification_on_activate_link_callback(self, [&](auto, auto) { return ++second > 0; });
            return false;
        });
    notification.show();
    {
        // GTK opens what nobody dealt with, and this desktop knows no program for it.
        gboolean handled = FALSE;
        GtkWidget* label = notification.part("content-text");
        const gulong last =
            g_signal_connect(label, "activate-link", G_CALLBACK(+[] { return TRUE; }), nullptr);
        g_signal_emit_by_name(label, "activate-link", "zo-test:uri", &handled);
        EXPECT_TRUE(handled) << "asked after the callback declined";
        g_signal_handler_disconnect(label, last);
    }
    EXPECT_TRUE(activate());
    EXPECT_EQ(second, 1);
}

TEST_F(NotificationLink, WithoutACallbackIsLeftToGtk) {
    notification.show();
    GtkWidget* label = notification.part("content-text");
    int asked = 0;
    g_signal_connect(label, "activate-link", G_CALLBACK(+[](GtkLabel*, char*, int* count) {
                         ++*count;
                         return TRUE;
                     }),
                     &asked);
    EXPECT_TRUE(activate());
    EXPECT_EQ(asked, 1);
}

}  // namespace
