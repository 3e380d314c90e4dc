// SPDX-License-Identifier: MIT
#include "support/ui.hpp"

#include <memory>

namespace {

GtkWidget* owned_box() { return GTK_WIDGET(g_object_ref_sink(gtk_event_box_new())); }

void destroy(GtkWidget* widget) {
    gtk_widget_destroy(widget);
    g_object_unref(widget);
}

TEST(WidgetDestroy, CallsTheCallableOnce) {
    GtkWidget* box = owned_box();
    int calls = 0;
    zo_ui_connect_widget_destroy(box, [&] { ++calls; });
    gtk_widget_destroy(box);
    EXPECT_EQ(calls, 1);
    destroy(box);
    EXPECT_EQ(calls, 1);
}

TEST(WidgetDestroy, KeepsTheFirstCallable) {
    GtkWidget* box = owned_box();
    std::string called;
    zo_ui_connect_widget_destroy(box, [&] { called += "first"; });
    zo_ui_connect_widget_destroy(box, [&] { called += "second"; });
    destroy(box);
    EXPECT_EQ(called, "first");
}

TEST(WidgetDestroy, ConnectingAnewInsideTheCallableIsIgnored) {
    GtkWidget* box = owned_box();
    int again = 0;
    zo_ui_connect_widget_destroy(box, [&] { zo_ui_connect_widget_destroy(box, [&] { ++again; }); });
    destroy(box);
    EXPECT_EQ(again, 0);
}

TEST(WidgetDestroy, AllowsAnEmptyCallable) {
    GtkWidget* box = owned_box();
    zo_ui_connect_widget_destroy(box, nullptr);
    destroy(box);
}

TEST(WidgetDestroy, LetsGoOfTheCallable) {
    const auto token = std::make_shared<int>(0);
    GtkWidget* box = owned_box();
    zo_ui_connect_widget_destroy(box, [token] {});
    EXPECT_EQ(token.use_count(), 2);
    destroy(box);
    EXPECT_EQ(token.use_count(), 1);
}

}  // namespace
