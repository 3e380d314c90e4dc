// SPDX-License-Identifier: MIT
// After the end of the service the toolkit is going away: closing forgets the widgets, and destroys none. The
// end is final for the process, so everything is one test.
#include "ui/window/event_log.hpp"

namespace {

using handle = const zo_window_ptr&;

// The forgotten toplevel still holds its window; somebody else destroys it in the end.
void destroy_forgotten(GtkWidget* toplevel) {
    ASSERT_TRUE(GTK_IS_WINDOW(toplevel));
    gtk_widget_destroy(toplevel);
}

// What is still on screen is laid out, maximised and clicked like anything else.
void expect_lively(GtkWidget* toplevel) {
    GtkWidget* const label = gtk_label_new("a late child that makes the window wider than it was before");
    gtk_container_add(GTK_CONTAINER(test::find_class(toplevel, "window-content")), label);
    gtk_widget_show(label);
    EXPECT_TRUE(test::turn_until([&] { return gtk_widget_get_allocated_width(label) > 1; }));
    GdkEvent* const event = gdk_event_new(GDK_WINDOW_STATE);
    event->window_state.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(toplevel)));
    event->window_state.changed_mask = GDK_WINDOW_STATE_MAXIMIZED;
    event->window_state.new_window_state = static_cast<GdkWindowState>(164);
    gtk_main_do_event(event);
    gdk_event_free(event);
    for (const char* button : {"title-menu", "title-minimize", "title-close"})
        gtk_button_clicked(GTK_BUTTON(test::find_class(toplevel, button)));
    test::run_tasks();
    EXPECT_TRUE(gtk_widget_get_visible(toplevel));
}

class WindowServiceEnd : public testing::Test {
  protected:
    WindowServiceEnd() {
        for (handle w : {closed, asked, destroyed, outside}) {
            zo_window_set_enable_title_menu(w, true);
            zo_window_set_menu_create_handler(w, [](handle, GtkGrid*) {});
            zo_window_open(w);
            zo_window_show(w);
        }
        test::run_tasks();
        closed_tree = test::toplevel_named("closed");
        asked_tree = test::toplevel_named("asked");
        destroyed_tree = test::toplevel_named("destroyed");
        outside_tree = test::toplevel_named("outside");
        EXPECT_TRUE(test::turn_until([&] { return test::is_on_screen(asked_tree); }));
        gtk_button_clicked(GTK_BUTTON(test::find_class(closed_tree, "title-menu")));
        for (handle w : {closed, asked, destroyed, outside}) log.watch(w);
    }

    // Queued before the end, these two still run.
    void end_with_two_queued() {
        zo_window_close(closed);
        zo_window_destroy(destroyed);
        zo_system_service_end();
        EXPECT_TRUE(zo_system_service_done());
        EXPECT_EQ(log.take_names(), "close close destroy");
        EXPECT_EQ(test::state_of(closed), test::state());
        EXPECT_EQ(test::state_of(destroyed), test::state{.destroyed = true});
        EXPECT_EQ(zo_window_instance_id(closed), 1);
        EXPECT_EQ(zo_window_instance_id(destroyed), 2);
        for (GtkWidget* tree : {closed_tree, destroyed_tree}) EXPECT_TRUE(gtk_widget_get_visible(tree));
    }

    // The user may still close a window by its title button, as long as the loop turns.
    void close_by_the_title_button() {
        gtk_button_clicked(GTK_BUTTON(test::find_class(asked_tree, "title-close")));
        EXPECT_EQ(log.take_names(), "close");
        EXPECT_EQ(test::state_of(asked), test::state());
        EXPECT_TRUE(gtk_widget_get_visible(asked_tree));
    }

    // Posts are taken and dropped; what works at once still does.
    void expect_posts_dropped() {
        for (const auto operation : {zo_window_open, zo_window_show, zo_window_close})
            EXPECT_TRUE(operation(closed));
        EXPECT_TRUE(zo_window_destroy(asked, "late", 1));
        EXPECT_TRUE(zo_window_set_title(closed, "late"));
        test::run_tasks();
        EXPECT_EQ(log.take_names(), "");
        std::string title;
        EXPECT_TRUE(zo_window_get_title(closed, title));
        EXPECT_EQ(title, "late");
    }

    test::event_log log;
    zo_window_ptr closed = zo_window_new("closed");
    zo_window_ptr asked = zo_window_new("asked");
    zo_window_ptr destroyed = zo_window_new("destroyed");
    zo_window_ptr outside = zo_window_new("outside");
    GtkWidget* closed_tree = nullptr;
    GtkWidget* asked_tree = nullptr;
    GtkWidget* destroyed_tree = nullptr;
    GtkWidget* outside_tree = nullptr;
};

TEST_F(WindowServiceEnd, ForgetsTheWidgets) {
    ASSERT_EQ(test::toplevels("tool-menu").size(), 1U);
    GtkWidget* const menu = test::toplevels("tool-menu")[0];
    end_with_two_queued();
    EXPECT_TRUE(gtk_widget_get_visible(menu));
    close_by_the_title_button();
    expect_lively(asked_tree);
    expect_posts_dropped();

    // A toplevel that is taken away closes its window as ever.
    destroy_forgotten(outside_tree);
    EXPECT_EQ(log.take_names(), "close");
    EXPECT_EQ(test::state_of(outside), test::state());

    // Whoever destroys the forgotten ones tells nobody, and frees the windows.
    for (GtkWidget* tree : {closed_tree, asked_tree, destroyed_tree, menu}) destroy_forgotten(tree);
    EXPECT_EQ(log.take_names(), "");
    EXPECT_EQ(zo_window_instance_id(closed), 1);
    EXPECT_EQ(destroyed.use_count(), 1);
    for (handle w : {closed, asked, outside}) zo_object_unref(zo_window_to_object(w));
}

}  // namespace
