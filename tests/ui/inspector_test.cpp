// SPDX-License-Identifier: MIT
// GTK's inspector opens on each kind of window, and picks their widgets, without a word in GLib's log.
#include "support/desktop.hpp"
#include "support/ui.hpp"

#include <gio/gio.h>
#include <cstring>

// The inspector leaves a little memory behind; leaks of the library's own are looked for by all other tests.
extern "C" __attribute__((visibility("default"))) int __lsan_is_turned_off() { return 1; }

namespace {

GtkWidget* inspector() {
    GtkWidget* found = nullptr;
    GList* toplevels = gtk_window_list_toplevels();
    for (GList* at = toplevels; at; at = at->next)
        if (std::strcmp(G_OBJECT_TYPE_NAME(at->data), "GtkInspectorWindow") == 0)
            found = static_cast<GtkWidget*>(at->data);
    g_list_free(toplevels);
    return found;
}

bool is_shown() { return inspector() && test::is_on_screen(inspector()); }

// What it picked flashes for a moment, by a timeout of the inspector's that would not survive the widget.
void close_inspector() {
    EXPECT_TRUE(
        test::turn_until([] { return !g_main_context_find_source_by_user_data(nullptr, inspector()); }));
    gtk_window_set_interactive_debugging(FALSE);
    EXPECT_TRUE(test::turn_until([] { return !inspector() || !gtk_widget_get_visible(inspector()); }));
}

// As the key binding does it.
void expect_to_open_on(GtkWidget* toplevel) {
    ASSERT_NE(toplevel, nullptr);
    gboolean handled = FALSE;
    g_signal_emit_by_name(toplevel, "enable-debugging", FALSE, &handled);
    EXPECT_TRUE(handled);
    EXPECT_TRUE(test::turn_until(is_shown));
    close_inspector();
}

class Inspector : public testing::Test {
  protected:
    Inspector() : settings_(g_settings_new("org.gtk.Settings.Debug")) {
        g_settings_set_boolean(settings_, "enable-inspector-keybinding", TRUE);
        g_settings_set_boolean(settings_, "inspector-warning", FALSE);
    }
    ~Inspector() override { g_object_unref(settings_); }

  private:
    GSettings* settings_;
};

TEST_F(Inspector, OpensOnAWindow) {
    test::scoped_window window("w");
    expect_to_open_on(window.show());
}

TEST_F(Inspector, OpensOnAPopupWindow) {
    test::scoped_window window("popup");
    zo_window_set_popup_window(window, true);
    expect_to_open_on(window.show());
}

TEST_F(Inspector, OpensOnThePanelAndOnANotification) {
    const zo_window_manager_ptr manager = zo_window_manager_new("");
    zo_window_manager_open(manager);
    zo_window_manager_show(manager);
    const zo_notification_ptr notification = zo_notification_new();
    zo_notification_set_title(notification, "title");
    zo_notification_open_show(notification);
    test::run_tasks();
    GList* toplevels = gtk_window_list_toplevels();
    int opened = 0;
    for (GList* at = toplevels; at; at = at->next) {
        auto* toplevel = static_cast<GtkWidget*>(at->data);
        if (!gtk_widget_get_visible(toplevel)) continue;
        expect_to_open_on(toplevel);
        ++opened;
    }
    g_list_free(toplevels);
    EXPECT_EQ(opened, 2);
    zo_notification_destroy(notification);
    zo_window_manager_close(manager);
    zo_window_manager_destroy(manager);
    test::run_tasks();
}

TEST_F(Inspector, OpensByItsKeyAndStaysWhileTheWindowGoes) {
    test::scoped_window window("w");
    GtkWidget* toplevel = window.show();
    test::run_command(
        {"xdotool", "windowfocus", test::x_window(toplevel)});  // there may be no window manager
    ASSERT_TRUE(test::turn_until([&] { return gtk_window_is_active(GTK_WINDOW(toplevel)); }));
    test::type_key("ctrl+shift+d");
    ASSERT_TRUE(test::turn_until(is_shown));
    close_inspector();
    gtk_window_set_interactive_debugging(TRUE);
    ASSERT_TRUE(test::turn_until(is_shown));
    zo_window_close(window);
    test::run_tasks();
    EXPECT_EQ(test::toplevel_named("w"), nullptr);
    EXPECT_TRUE(is_shown());
    close_inspector();
}

}  // namespace
