// SPDX-License-Identifier: MIT
// The three properties that a joined window has beside its own.
#include "ui/window_manager/panel.hpp"

namespace {

using click_function = std::function<void(GtkWidget*)>;

class ManagerTaskProperties : public testing::Test {
  protected:
    static property_list& list_of(const zo_window_ptr& window) {
        return zo_window_to_object(window)->property_list;
    }

    // The value, which has to be there with exactly this type.
    template <typename T>
    static T value(const zo_window_ptr& window, const char* name) {
        T value{};
        EXPECT_TRUE(zo_property_get_extract<T>(list_of(window), name, &value)) << name;
        return value;
    }
    static GtkWidget* button_of(const zo_window_ptr& window) {
        return value<GtkWidget*>(window, "manager-widget");
    }
    static GtkWidget* close_of(const zo_window_ptr& window) {
        return value<GtkWidget*>(window, "manager-close-widget");
    }
    static click_function* click_of(const zo_window_ptr& window) {
        return value<click_function*>(window, "manager-click-cb");
    }

    test::scoped_panel panel;
    test::scoped_window a{"a"};
};

TEST_F(ManagerTaskProperties, ComeWithJoining) {
    const std::size_t before = list_of(a).size();
    for (const char* name : {"manager-widget", "manager-close-widget", "manager-click-cb"})
        EXPECT_EQ(list_of(a).count(name), 0U) << name;
    panel.join(a);
    EXPECT_EQ(list_of(a).size(), before + 3);
    EXPECT_FALSE(button_of(a));
    EXPECT_FALSE(close_of(a));
    ASSERT_TRUE(click_of(a));
    EXPECT_TRUE(*click_of(a));
}

// The buttons while there are any, the handler from joining to leaving.
TEST_F(ManagerTaskProperties, FollowTheWindow) {
    panel.open();
    panel.join(a);
    click_function* const click = click_of(a);
    a.open();
    EXPECT_EQ(button_of(a), test::task_button("a"));
    EXPECT_EQ(close_of(a), test::close_button("a"));
    EXPECT_EQ(click_of(a), click);
    zo_window_close(a);
    test::run_tasks();
    EXPECT_FALSE(button_of(a));
    EXPECT_FALSE(close_of(a));
    EXPECT_EQ(click_of(a), click);
    zo_window_set_window_manager(a, {});
    test::run_tasks();
    EXPECT_FALSE(button_of(a));
    EXPECT_FALSE(close_of(a));
    EXPECT_FALSE(click_of(a));
}

// Whatever was noted there before.
TEST_F(ManagerTaskProperties, AreNullAfterJoining) {
    GtkWidget* stale = GTK_WIDGET(g_object_ref_sink(gtk_label_new("stale")));
    zo_property_set<GtkWidget*>(list_of(a), "manager-widget", stale);
    zo_property_set<GtkWidget*>(list_of(a), "manager-close-widget", stale);
    panel.join(a);
    EXPECT_FALSE(button_of(a));
    EXPECT_FALSE(close_of(a));
    g_object_unref(stale);
}

// The click handler alone acts, whatever it is given.
TEST_F(ManagerTaskProperties, TheHandlerTogglesTheWindow) {
    panel.open();
    panel.join(a);
    a.open();
    (*click_of(a))(nullptr);
    EXPECT_TRUE(test::state_of(a.get()).visible);
    (*click_of(a))(nullptr);
    EXPECT_FALSE(test::state_of(a.get()).visible);
}

// From now on it is the manager's list that keeps the window alive.
TEST_F(ManagerTaskProperties, JoiningTakesTheLibrarysReference) {
    const zo_object_ptr object = zo_window_to_object(a);
    EXPECT_TRUE(object->is_reffed());
    panel.join(a);
    EXPECT_FALSE(object->is_reffed());
}

}  // namespace
