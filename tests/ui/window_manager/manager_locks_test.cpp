// SPDX-License-Identifier: MIT
// Whoever the panel calls may use every function: no property lock is held meanwhile.
#include "support/lock_probe.hpp"
#include "ui/window_manager/panel.hpp"

namespace {

class ManagerLocks : public testing::Test {
  protected:
    void expect_free() {
        ++asked;
        EXPECT_TRUE(test::lock_is_free(zo_window_manager_to_object(panel)));
        EXPECT_TRUE(test::lock_is_free(a));
    }

    // Asks while GTK emits the signal.
    void ask_at(GtkWidget* widget, const char* signal) {
        g_signal_connect_swapped(widget, signal, G_CALLBACK(+[](ManagerLocks* test) { test->expect_free(); }),
                                 this);
    }

    // Asks whenever a widget comes into the panel.
    class asking_at_entries {
      public:
        explicit asking_at_entries(ManagerLocks* test)
            : signal_(g_signal_lookup("parent-set", GTK_TYPE_WIDGET)),
              hook_(g_signal_add_emission_hook(signal_, 0, on_parent_set, test, nullptr)) {}
        ~asking_at_entries() { g_signal_remove_emission_hook(signal_, hook_); }
        asking_at_entries(const asking_at_entries&) = delete;
        asking_at_entries& operator=(const asking_at_entries&) = delete;

      private:
        static gboolean on_parent_set(GSignalInvocationHint*, guint, const GValue* values, gpointer test) {
            auto* widget = GTK_WIDGET(g_value_get_object(values));
            if (gtk_widget_get_toplevel(widget) == test::panel())
                static_cast<ManagerLocks*>(test)->expect_free();
            return TRUE;
        }
        guint signal_;
        gulong hook_;
    };

    int asked = 0;
    test::scoped_panel panel;
    test::joined_window a{panel, "a"};
};

TEST_F(ManagerLocks, AreFreeInTheCallbacks) {
    for (const auto setter : {zo_window_manager_on_open, zo_window_manager_on_show, zo_window_manager_on_hide,
                              zo_window_manager_on_close, zo_window_manager_on_destroy})
        setter(panel, [this](const zo_window_manager_ptr&) { expect_free(); });
    for (const auto operation : {zo_window_manager_open, zo_window_manager_show, zo_window_manager_hide,
                                 zo_window_manager_close, zo_window_manager_destroy})
        panel.run(operation);
    EXPECT_EQ(asked, 5);
}

TEST_F(ManagerLocks, AreFreeWhileButtonsAreMadeChangedAndTaken) {
    panel.open();
    {
        const asking_at_entries asking(this);
        a.open();
    }
    EXPECT_EQ(std::exchange(asked, 0), 2);
    GtkWidget* button = test::task_button("a");
    ask_at(button, "notify::label");
    zo_window_set_title(a, "another");
    test::run_tasks();
    EXPECT_GE(std::exchange(asked, 0), 1);
    a.run(zo_window_show);
    ask_at(button, "notify::opacity");
    a.run(zo_window_hide);
    EXPECT_GE(std::exchange(asked, 0), 1);
    ask_at(button, "destroy");
    a.run(zo_window_close);
    EXPECT_EQ(std::exchange(asked, 0), 1);
    a.open();
    asked = 0;
    ask_at(test::task_button("a"), "destroy");
    ask_at(test::close_button("a"), "destroy");
    zo_window_set_window_manager(a, {});
    test::run_tasks();
    EXPECT_EQ(std::exchange(asked, 0), 2);
    panel.join(a);
    asked = 0;
    ask_at(test::task_button("a"), "destroy");
    panel.close();
    EXPECT_EQ(asked, 1);
}

TEST_F(ManagerLocks, AreFreeWhenTheLockButtonChanges) {
    panel.open();
    ask_at(test::part("lock-unlocked"), "notify::tooltip-markup");
    gtk_button_clicked(GTK_BUTTON(test::part("lock-unlocked")));
    EXPECT_GE(std::exchange(asked, 0), 1);
    panel.keep_extended(false);
    EXPECT_GE(asked, 1);
}

}  // namespace
