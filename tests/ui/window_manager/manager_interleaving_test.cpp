// SPDX-License-Identifier: MIT
// In which order the panel and its windows tell what happens to them.
#include "ui/window/event_log.hpp"
#include "ui/window_manager/panel.hpp"

namespace {

class ManagerInterleaving : public testing::Test {
  protected:
    ManagerInterleaving() {
        constexpr std::pair<const char*, decltype(&zo_window_manager_on_open)> steps[] = {
            {"open", zo_window_manager_on_open},
            {"show", zo_window_manager_on_show},
            {"hide", zo_window_manager_on_hide},
            {"close", zo_window_manager_on_close},
            {"destroy", zo_window_manager_on_destroy}};
        for (const auto& [name, setter] : steps)
            setter(panel, [this, name = name](const zo_window_manager_ptr&) { note("panel", name); });
        watch("a", a);
        watch("b", b);
    }

    void note(const char* who, const char* what) {
        told += (told.empty() ? "" : " ") + std::string(who) + ":" + what;
    }

    void watch(const char* who, const zo_window_ptr& window) {
        constexpr std::pair<const char*, decltype(&zo_window_set_window_open_callback)> steps[] = {
            {"open", zo_window_set_window_open_callback},
            {"show", zo_window_set_window_show_callback},
            {"hide", zo_window_set_window_hide_callback},
            {"close", zo_window_set_window_close_callback},
            {"activate", zo_window_set_window_activate_callback},
            {"restore", zo_window_set_window_restore_callback},
            {"destroy", zo_window_set_window_destroy_callback}};
        for (const auto& [name, setter] : steps)
            setter(window, [this, who, name = name](const zo_window_ptr&) { note(who, name); });
    }

    // Both windows and the panel on screen, the windows saved as visible.
    void show_all() {
        panel.show();
        for (test::joined_window* window : {&a, &b}) {
            window->show();
            zo_window_save(*window);
        }
        told.clear();
    }

    std::string after(bool (*operation)(zo_window_manager_ptr)) {
        told.clear();
        panel.run(operation);
        return std::exchange(told, {});
    }
    std::string after_click(GtkWidget* button) {
        told.clear();
        gtk_button_clicked(GTK_BUTTON(button));
        test::run_tasks();
        return std::exchange(told, {});
    }

    std::string told;
    test::scoped_panel panel;
    test::joined_window a{panel, "a"};
    test::joined_window b{panel, "b"};
};

TEST_F(ManagerInterleaving, ThePanelTellsBeforeItsWindows) {
    show_all();
    EXPECT_EQ(after(zo_window_manager_hide), "panel:hide a:hide b:hide");
    EXPECT_EQ(after(zo_window_manager_show), "panel:show a:show a:restore b:show b:restore");
    EXPECT_EQ(after(zo_window_manager_close), "panel:close a:hide b:hide");
    EXPECT_EQ(after(zo_window_manager_open), "panel:open");
    EXPECT_EQ(after(zo_window_manager_show), "panel:show a:show a:restore b:show b:restore");
    EXPECT_EQ(after(zo_window_manager_close), "panel:close a:hide b:hide");
    EXPECT_EQ(after(zo_window_manager_destroy), "panel:destroy a:close a:destroy b:close b:destroy");
}

// Not in the order of joining.
TEST_F(ManagerInterleaving, TheWindowsFollowInTheOrderOfOpening) {
    show_all();
    a.run(zo_window_close);
    a.show();
    zo_window_save(a);
    EXPECT_EQ(after(zo_window_manager_hide), "panel:hide b:hide a:hide");
    EXPECT_EQ(after(zo_window_manager_show), "panel:show b:show b:restore a:show a:restore");
    EXPECT_EQ(after(zo_window_manager_close), "panel:close b:hide a:hide");
    EXPECT_EQ(after(zo_window_manager_destroy), "panel:destroy a:close a:destroy b:close b:destroy");
}

TEST_F(ManagerInterleaving, AClickShowsAndThenActivates) {
    show_all();
    EXPECT_EQ(after_click(test::task_button("a")), "a:hide");
    EXPECT_EQ(after_click(test::task_button("a")), "a:show a:activate");
    EXPECT_EQ(after_click(test::close_button("b")), "b:close");
    EXPECT_EQ(test::row(), "a x");
}

// At once and not by a task; closing is a task.
TEST_F(ManagerInterleaving, AClickActsAtOnce) {
    show_all();
    gtk_button_clicked(GTK_BUTTON(test::task_button("a")));
    EXPECT_EQ(std::exchange(told, {}), "a:hide");
    gtk_button_clicked(GTK_BUTTON(test::close_button("b")));
    EXPECT_EQ(told, "");
    EXPECT_EQ(test::row(), "b x a x");
}

TEST_F(ManagerInterleaving, AClosedPanelSendsItsWindowsBack) {
    a.open();
    told.clear();
    a.run(zo_window_show);
    EXPECT_EQ(told, "a:show a:hide");
}

}  // namespace
