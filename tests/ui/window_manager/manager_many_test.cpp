// SPDX-License-Identifier: MIT
// A thousand joined windows. That every counter is back at 0 is checked after the test.
#include "ui/window_manager/panel.hpp"

namespace {

constexpr int many = 1000;

// A tenth of the windows has an id of its own. GLib keeps a quark for every widget name, and the table that a
// process with more than 2,048 quarks outgrows is left behind, which the leak checker sees.
std::string id_of(int i) { return i % 10 < 2 ? "w" + std::to_string(i) : "one-of-many"; }

TEST(ManagerMany, WindowsComeAndGo) {
    const test::scoped_panel panel;
    panel.show();
    std::vector<zo_window_ptr> windows;
    for (int i = 0; i < many; ++i) {
        windows.push_back(zo_window_new(id_of(i)));
        zo_window_set_window_manager(windows.back(), panel);
        zo_window_open(windows.back());
    }
    test::run_tasks();
    const auto buttons = [] {
        return gtk_container_get_children(GTK_CONTAINER(test::part("manager-taskbox-center")));
    };
    GList* children = buttons();
    EXPECT_EQ(g_list_length(children), 2U * many);
    g_list_free(children);
    for (const zo_window_ptr& window : windows) zo_window_set_title(window, "retitled");
    test::run_tasks();
    EXPECT_STREQ(gtk_button_get_label(GTK_BUTTON(test::task_button("w0"))), "retitled");
    EXPECT_STREQ(gtk_button_get_label(GTK_BUTTON(test::task_button("w991"))), "retitled");
    // Only some: the rest of the time would be the toolkit's.
    for (int i = 0; i < many; i += 50) zo_window_show(windows[static_cast<std::size_t>(i)]);
    test::run_tasks();
    for (const zo_window_ptr& window : windows) zo_window_hide(window);
    test::run_tasks();
    EXPECT_NEAR(gtk_widget_get_opacity(test::task_button("w500")), 0.6, 0.005);
    for (int i = 0; i < many; i += 2) zo_window_close(windows[static_cast<std::size_t>(i)]);
    test::run_tasks();
    EXPECT_FALSE(test::task_button("w500"));
    EXPECT_TRUE(test::task_button("w501"));
    windows.clear();
    panel.close();
    panel.run(zo_window_manager_destroy);
    EXPECT_EQ(zo_object_ref_count("[zo_window]"), 0);
}

}  // namespace
