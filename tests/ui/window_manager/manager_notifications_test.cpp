// SPDX-License-Identifier: MIT
// The notifications of a panel follow it, after its windows and in the order of their ids.
#include "ui/window_manager/panel.hpp"

namespace {

class ManagerNotifications : public testing::Test {
  protected:
    ManagerNotifications() {
        panel.show();
        // Not shown in the order of their ids.
        for (const std::size_t i : {2U, 0U, 1U}) {
            zo_notification_set_manager(notifications[i], panel);
            zo_notification_open_show(notifications[i]);
        }
        test::run_tasks();
        EXPECT_EQ(popups().size(), 3U);
        window.show();
        zo_window_save(window);
        watch_all();
    }
    ~ManagerNotifications() override {
        for (const zo_notification_ptr& notification : notifications) zo_notification_destroy(notification);
        test::run_tasks();
    }

    std::map<unsigned long, GtkWidget*>& popups() const {
        std::map<unsigned long, GtkWidget*>* container = nullptr;
        EXPECT_TRUE(zo_window_manager_get_local_notification_container(panel, &container));
        return *container;
    }

    void watch_all() {
        const auto note = [this](const char* what) { return [this, what](const auto&) { told += what; }; };
        zo_window_manager_on_show(panel, note("panel "));
        zo_window_manager_on_hide(panel, note("panel "));
        zo_window_manager_on_close(panel, note("panel "));
        zo_window_set_window_show_callback(window, note("window "));
        zo_window_set_window_hide_callback(window, note("window "));
        for (std::size_t i = 0; i < 3; ++i) {
            zo_notification_on_close(notifications[i], note(names[i]));
            g_object_set_data(G_OBJECT(popups().at(zo_notification_get_id(notifications[i]))), "name",
                              const_cast<char*>(names[i]));
        }
        for (const auto& [id, popup] : popups())
            for (const char* signal : {"show", "hide"})
                g_signal_connect(popup, signal, G_CALLBACK(on_popup), this);
    }

    static void on_popup(GtkWidget* popup, ManagerNotifications* test) {
        test->told += static_cast<const char*>(g_object_get_data(G_OBJECT(popup), "name"));
    }

    std::string after(bool (*operation)(zo_window_manager_ptr)) {
        told.clear();
        panel.run(operation);
        return std::exchange(told, {});
    }

    static constexpr const char* names[] = {"1 ", "2 ", "3 "};
    std::string told;
    test::scoped_panel panel;
    test::joined_window window{panel, "w"};
    std::vector<zo_notification_ptr> notifications{zo_notification_new(), zo_notification_new(),
                                                   zo_notification_new()};
};

TEST_F(ManagerNotifications, AreHiddenAndShown) {
    EXPECT_EQ(after(zo_window_manager_hide), "panel window 1 2 3 ");
    EXPECT_EQ(after(zo_window_manager_show), "panel window 1 2 3 ");
}

TEST_F(ManagerNotifications, EndWithThePanel) {
    panel.run(zo_window_manager_hide);  // what is hidden is not hidden again
    EXPECT_EQ(after(zo_window_manager_close), "panel 1 2 3 ");
    EXPECT_TRUE(popups().empty());
    panel.open();
    EXPECT_EQ(after(zo_window_manager_show), "panel window ");
}

}  // namespace
