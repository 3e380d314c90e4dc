// SPDX-License-Identifier: MIT
// Which events the widgets ask for, and which signals are connected for which flags.
#include "ui/window/tree_support.hpp"

namespace {

struct tree {
    explicit tree(test::scoped_window& window)
        : toplevel(window.open()),
          title_event_box(test::find_class(toplevel, "title-event-box")),
          title_box(test::find_class(toplevel, "window-title")),
          ads(test::find_class(toplevel, "window-ads-container")),
          content(test::find_class(toplevel, "window-content")),
          content_event_box(gtk_widget_get_parent(content)) {}

    GtkWidget* toplevel;
    GtkWidget* title_event_box;
    GtkWidget* title_box;
    GtkWidget* ads;
    GtkWidget* content;
    GtkWidget* content_event_box;
};

TEST(WindowSignals, TheEventMasksAreExactlyThese) {
    test::scoped_window window("w");
    const tree built(window);
    GtkWidget* plain = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    EXPECT_EQ(gtk_widget_get_events(plain) & 17152, 0x300) << "what GTK asks for itself";
    EXPECT_EQ(gtk_widget_get_events(built.toplevel), gtk_widget_get_events(plain) | 17152);
    gtk_widget_destroy(plain);
    EXPECT_EQ(gtk_widget_get_events(built.content_event_box), 768);
    EXPECT_EQ(gtk_widget_get_events(built.title_event_box), 772);
}

TEST(WindowSignals, AllOfThemWithEveryPart) {
    test::scoped_window window("w");
    zo_window_set_enable_content_ads(window, true);
    const tree built(window);
    const auto own = [&](GtkWidget* widget, const char* signal) {
        return test::own_handlers(window, widget, signal);
    };
    EXPECT_EQ(own(built.toplevel, "focus-in-event"), 1u);
    EXPECT_EQ(own(built.toplevel, "focus-out-event"), 1u);
    EXPECT_EQ(own(built.toplevel, "window-state-event"), 1u);
    EXPECT_EQ(own(built.toplevel, "delete-event"), 1u);
    EXPECT_EQ(own(built.content_event_box, "button-press-event"), 1u);
    EXPECT_EQ(own(built.title_event_box, "button-press-event"), 2u);
    EXPECT_EQ(own(built.title_event_box, "motion-notify-event"), 1u);
    EXPECT_EQ(own(built.title_event_box, "button-release-event"), 1u);
    EXPECT_EQ(own(built.title_box, "size-allocate"), 1u);
    EXPECT_EQ(own(built.ads, "size-allocate"), 1u);
    EXPECT_EQ(own(built.content, "size-allocate"), 1u);
}

TEST(WindowSignals, WithoutDragTheTitleBarOnlyClosesTheToolMenu) {
    test::scoped_window window("w");
    zo_window_set_drag_enabled(window, false);
    const tree built(window);
    EXPECT_EQ(test::own_handlers(window, built.title_event_box, "button-press-event"), 1u);
    EXPECT_FALSE(test::has_handler(built.title_event_box, "motion-notify-event"));
    EXPECT_FALSE(test::has_handler(built.title_event_box, "button-release-event"));
}

TEST(WindowSignals, WithoutScrollingNoSizeIsListenedTo) {
    test::scoped_window window("w");
    zo_window_set_use_scroll(window, false);
    zo_window_set_enable_content_ads(window, true);
    const tree built(window);
    for (GtkWidget* widget : {built.title_box, built.ads, built.content})
        EXPECT_FALSE(test::has_handler(widget, "size-allocate"));
    EXPECT_EQ(test::own_handlers(window, built.content_event_box, "button-press-event"), 1u);
}

TEST(WindowSignals, WithoutATitleBarTheRestIsConnected) {
    test::scoped_window window("w");
    zo_window_set_use_built_in_title(window, false);
    const tree built(window);
    EXPECT_EQ(test::own_handlers(window, built.content_event_box, "button-press-event"), 1u);
    EXPECT_EQ(test::own_handlers(window, built.content, "size-allocate"), 1u);
    EXPECT_EQ(test::own_handlers(window, built.toplevel, "focus-in-event"), 1u);
    EXPECT_EQ(test::own_handlers(window, built.toplevel, "window-state-event"), 1u);
}

struct seen_events {
    std::vector<std::string> names;
    static gboolean note(GtkWidget*, GdkEvent* event, gpointer data) {
        const char* name = event->type == GDK_FOCUS_CHANGE ? "focus" : "state";
        static_cast<seen_events*>(data)->names.push_back(name);
        return FALSE;
    }
};

// Handlers that the application connects later still run, as does GTK's own.
TEST(WindowSignals, EventsGoOnToOthers) {
    seen_events seen;
    test::scoped_window window("w");
    GtkWidget* toplevel = window.show();
    g_signal_connect(toplevel, "focus-in-event", G_CALLBACK(seen_events::note), &seen);
    g_signal_connect(toplevel, "focus-out-event", G_CALLBACK(seen_events::note), &seen);
    g_signal_connect(toplevel, "window-state-event", G_CALLBACK(seen_events::note), &seen);
    for (const GdkEventType type : {GDK_FOCUS_CHANGE, GDK_FOCUS_CHANGE, GDK_WINDOW_STATE}) {
        GdkEvent* event = gdk_event_new(type);
        event->any.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(toplevel)));
        if (type == GDK_FOCUS_CHANGE) event->focus_change.in = seen.names.empty();
        gtk_widget_event(toplevel, event);
        gdk_event_free(event);
    }
    EXPECT_EQ(seen.names, (std::vector<std::string>{"focus", "focus", "state"}));
}

// While the focus goes from the toplevel itself to a widget inside it, GTK does not hear that the window has
// lost it; whoever gives the signal itself is answered and heard as ever.
TEST(WindowSignals, AFocusOutGoesOnAlsoWhileTheFocusMovesInside) {
    test::scoped_window window("w");
    GtkWidget* toplevel = window.open();
    GtkWidget* entry = gtk_entry_new();
    gtk_widget_show(entry);
    zo_window_add_content_child(window, entry, false, false, 0, false);
    window.show();
    struct moving {
        GtkWidget* toplevel;
        int moves = 0;
        seen_events seen{};
        static void give(GtkWindow*, GtkWidget*, moving* self) {
            GdkEvent* event = gdk_event_new(GDK_FOCUS_CHANGE);
            event->focus_change.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(self->toplevel)));
            gboolean stopped = TRUE;
            ++self->moves;
            g_signal_emit_by_name(self->toplevel, "focus-out-event", event, &stopped);
            EXPECT_FALSE(stopped);
            gdk_event_free(event);
        }
    } during{toplevel};
    gtk_window_set_focus(GTK_WINDOW(toplevel), nullptr);
    g_signal_connect(toplevel, "focus-out-event", G_CALLBACK(seen_events::note), &during.seen);
    const gulong id = g_signal_connect(toplevel, "set-focus", G_CALLBACK(moving::give), &during);
    gtk_window_set_focus(GTK_WINDOW(toplevel), entry);
    g_signal_handler_disconnect(toplevel, id);
    EXPECT_EQ(during.moves, 1);
    EXPECT_EQ(during.seen.names, std::vector<std::string>{"focus"});
    g_signal_handlers_disconnect_by_data(toplevel, &during.seen);
}

}  // namespace
