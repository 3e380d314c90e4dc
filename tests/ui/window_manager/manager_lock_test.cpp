// SPDX-License-Identifier: MIT
// The lock button: class, tooltip, property and flag go together.
#include "ui/window_manager/panel.hpp"

#include <zo_ui/zo_window_manager/manager_p.hpp>

namespace {

class ManagerLock : public testing::Test {
  protected:
    GtkWidget* lock() const { return widgets().lock_button; }
    zo::panel_widgets& widgets() const { return zo::manager_access::widgets(*panel.get()); }

    void expect_locked(bool locked) const {
        EXPECT_EQ(widgets().keep_extended, locked);
        EXPECT_EQ(zo_window_manager_get_keep_extended(panel), locked);
        if (!test::panel()) return;
        EXPECT_EQ(test::has_class(lock(), "lock-locked"), locked);
        EXPECT_EQ(test::has_class(lock(), "lock-unlocked"), !locked);
        char* tooltip = gtk_widget_get_tooltip_text(lock());
        EXPECT_EQ(std::string(tooltip ? tooltip : ""),
                  zo_ui_get_translate(locked ? "toolbar-locked" : "toolbar-unlocked"));
        g_free(tooltip);
    }

    test::scoped_panel panel;
};

TEST_F(ManagerLock, ClickedTwiceIsAsBefore) {
    panel.open();
    expect_locked(false);
    gtk_button_clicked(GTK_BUTTON(lock()));
    expect_locked(true);
    gtk_button_clicked(GTK_BUTTON(lock()));
    expect_locked(false);
}

// The property at once, the panel by a task.
TEST_F(ManagerLock, IsSetByTheApplication) {
    panel.open();
    EXPECT_TRUE(zo_window_manager_set_keep_extended(panel, true));
    EXPECT_TRUE(zo_window_manager_get_keep_extended(panel));
    EXPECT_FALSE(widgets().keep_extended);
    EXPECT_TRUE(test::has_class(lock(), "lock-unlocked"));
    test::run_tasks();
    expect_locked(true);
    panel.keep_extended(true);
    expect_locked(true);
    panel.keep_extended(false);
    expect_locked(false);
}

TEST_F(ManagerLock, IsRememberedWhileThePanelIsClosed) {
    panel.keep_extended(true);
    expect_locked(true);
    panel.open();
    expect_locked(true);
    panel.close();
    panel.keep_extended(false);
    panel.open();
    expect_locked(false);
}

// Its click is the library's own entry of the list, for as long as the button lives.
TEST_F(ManagerLock, HasTheOneCallableOfItsButton) {
    panel.open();
    const auto ignore = [](GtkWidget*) {};
    GtkWidget* const first = lock();
    EXPECT_FALSE(zo_ui_connect_button_click_signal(first, ignore));
    g_object_ref(first);
    panel.close();
    panel.open();
    EXPECT_TRUE(zo_ui_connect_button_click_signal(first, ignore));
    gtk_button_clicked(GTK_BUTTON(first));
    expect_locked(false);
    g_object_unref(first);
}

TEST_F(ManagerLock, TheLockButtonPointerIsLeftInPlace) {
    panel.open();
    GtkWidget* const first = lock();
    ASSERT_TRUE(first);
    panel.close();
    EXPECT_EQ(lock(), first);
    EXPECT_FALSE(widgets().window);
    EXPECT_FALSE(widgets().taskbox_right);
    panel.keep_extended(true);  // touches no freed button
    panel.open();
    expect_locked(true);
}

}  // namespace
