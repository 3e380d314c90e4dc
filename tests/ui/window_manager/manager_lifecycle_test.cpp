// SPDX-License-Identifier: MIT
// The states of the panel: what each operation does in each of them, and what its callback sees.
#include "ui/window_manager/panel.hpp"

namespace {

constexpr test::state none{};
constexpr test::state opened{.opened = true};
constexpr test::state shown{.opened = true, .visible = true};

struct operation {
    const char* name;
    bool (*post)(zo_window_manager_ptr);
};

constexpr operation open_it{"open", zo_window_manager_open};
constexpr operation show_it{"show", zo_window_manager_show};
constexpr operation hide_it{"hide", zo_window_manager_hide};
constexpr operation close_it{"close", zo_window_manager_close};
constexpr operation destroy_it{"destroy", zo_window_manager_destroy};

class ManagerLifecycle : public testing::Test {
  protected:
    ManagerLifecycle() {
        const auto note = [this](const char* name) {
            return [this, name](const zo_window_manager_ptr& manager) {
                EXPECT_EQ(manager, panel.get());
                told.emplace_back(name, test::state_of(manager));
                if (inside) std::exchange(inside, nullptr)();
            };
        };
        EXPECT_TRUE(zo_window_manager_on_open(panel, note("open")));
        EXPECT_TRUE(zo_window_manager_on_show(panel, note("show")));
        EXPECT_TRUE(zo_window_manager_on_hide(panel, note("hide")));
        EXPECT_TRUE(zo_window_manager_on_close(panel, note("close")));
        EXPECT_TRUE(zo_window_manager_on_destroy(panel, note("destroy")));
    }

    // Runs one operation, and expects its callback with the state, or none.
    void expect(const operation& done, const test::state& after, bool tells = true) {
        told.clear();
        panel.run(done.post);
        EXPECT_EQ(test::state_of(panel), after) << done.name;
        ASSERT_EQ(told.size(), tells ? 1U : 0U) << done.name;
        if (!tells) return;
        EXPECT_EQ(told[0].first, done.name);
        EXPECT_EQ(told[0].second, after) << done.name;
    }
    void expect_ignored(const operation& done) { expect(done, test::state_of(panel), false); }

    std::vector<std::pair<std::string, test::state>> told;
    std::function<void()> inside;
    test::captured_output output;
    test::scoped_panel panel;
};

TEST_F(ManagerLifecycle, ItsTable) {
    for (const operation& ignored : {show_it, hide_it, close_it}) expect_ignored(ignored);
    for (int round = 0; round < 2; ++round) {
        expect(open_it, opened);
        for (const operation& ignored : {open_it, hide_it}) expect_ignored(ignored);
        expect(show_it, shown);
        for (const operation& ignored : {open_it, show_it}) expect_ignored(ignored);
        expect(hide_it, opened);
        for (const operation& ignored : {open_it, hide_it}) expect_ignored(ignored);
        expect(show_it, shown);
        expect(close_it, none);
        for (const operation& ignored : {show_it, hide_it, close_it}) expect_ignored(ignored);
        expect(open_it, opened);
        expect(close_it, none);
    }
    expect(destroy_it, {.destroyed = true});
    for (const operation& ignored : {open_it, show_it, hide_it, close_it, destroy_it})
        expect_ignored(ignored);
    EXPECT_EQ(output.text(), "");
}

// An opened panel stays as it is.
TEST_F(ManagerLifecycle, AfterTheDestructionNothingChangesAnyMore) {
    expect(open_it, opened);
    expect(destroy_it, {.opened = true, .destroyed = true});
    for (const operation& ignored : {open_it, show_it, hide_it, close_it, destroy_it})
        expect_ignored(ignored);
    ASSERT_TRUE(test::panel());
    gtk_widget_destroy(test::panel());
}

TEST_F(ManagerLifecycle, OperationsReturnAtOnce) {
    for (const operation& posted : {open_it, show_it, hide_it, close_it, destroy_it}) {
        EXPECT_TRUE(posted.post(panel));
        EXPECT_EQ(test::state_of(panel), none);
    }
    EXPECT_TRUE(told.empty());
    test::run_tasks();
    ASSERT_EQ(told.size(), 5U);
    EXPECT_EQ(told[1], std::pair(std::string("show"), shown));
    EXPECT_EQ(told[3], std::pair(std::string("close"), none));
}

TEST_F(ManagerLifecycle, OpeningBuildsOnce) {
    panel.open();
    GtkWidget* first = test::panel();
    panel.open();
    EXPECT_EQ(test::toplevels("zo-manager"), std::vector<GtkWidget*>{first});
    EXPECT_FALSE(gtk_widget_get_visible(first));
}

TEST_F(ManagerLifecycle, AReopenedPanelIsANewOne) {
    panel.open();
    GtkWidget* first = GTK_WIDGET(g_object_ref(test::panel()));
    GtkWidget* lock = GTK_WIDGET(g_object_ref(test::part("lock-unlocked")));
    panel.close();
    EXPECT_TRUE(test::toplevels("zo-manager").empty());
    panel.open();
    EXPECT_NE(test::panel(), first);
    EXPECT_NE(test::part("lock-unlocked"), lock);
    gtk_button_clicked(GTK_BUTTON(lock));
    EXPECT_FALSE(zo_window_manager_get_keep_extended(panel));
    g_object_unref(lock);
    g_object_unref(first);
}

TEST_F(ManagerLifecycle, ShowingPutsItOnScreenAndHidingTakesItOff) {
    GtkWidget* window = panel.show();
    EXPECT_TRUE(gtk_widget_get_mapped(window));
    EXPECT_TRUE(gtk_widget_get_mapped(test::part("lock-unlocked")));
    panel.run(zo_window_manager_hide);
    EXPECT_FALSE(gtk_widget_get_visible(window));
    EXPECT_EQ(test::panel(), window);
    EXPECT_EQ(panel.show(), window);
}

// Callbacks may do anything.
TEST_F(ManagerLifecycle, CallbacksMayCallTheNextOperation) {
    const auto nested = [this](bool (*operation)(zo_window_manager_ptr)) {
        return [this, operation] { panel.run(operation); };
    };
    inside = nested(zo_window_manager_close);
    panel.open();
    EXPECT_EQ(test::state_of(panel), none);
    panel.open();
    inside = nested(zo_window_manager_close);
    panel.run(zo_window_manager_show);
    EXPECT_EQ(test::state_of(panel), none);
    panel.show();
    inside = nested(zo_window_manager_open);
    panel.close();
    EXPECT_EQ(test::state_of(panel), opened);
    inside = nested(zo_window_manager_destroy);
    panel.run(zo_window_manager_show);
    EXPECT_TRUE(test::state_of(panel).destroyed);
    gtk_widget_destroy(test::panel());
}

TEST_F(ManagerLifecycle, AnEmptyCallbackTakesOneAway) {
    EXPECT_TRUE(zo_window_manager_on_open(panel, nullptr));
    expect(open_it, opened, false);
}

TEST_F(ManagerLifecycle, ASecondDestructionWithAReasonIsRefused) {
    EXPECT_TRUE(zo_window_manager_destroy(panel, "first", 1));
    EXPECT_EQ(output.text(), "");
    EXPECT_EQ(test::state_of(panel), none);
    EXPECT_TRUE(zo_window_manager_destroy(panel, "src/app.cpp", 12));
    EXPECT_EQ(output.text(),
              "\x1b[1;35mZO-SYSTEM**WARNING**\x1b[0;0m: CALLING DESTROY MULTIPLE TIMES IS NOT AN OPTION "
              "\x1b[0;35m[zo_window_manager]\x1b[0;0m-src/app.cpp:12\n");
    test::run_tasks();
    EXPECT_TRUE(test::state_of(panel).destroyed);
    EXPECT_EQ(told.size(), 1U);
}

TEST_F(ManagerLifecycle, AMarkOfAnotherTypeIsAnErrorLine) {
    const zo_object_ptr object = zo_window_manager_to_object(panel);
    zo_property_set<int>(object->property_list, "object-destroyed", 1);
    EXPECT_TRUE(zo_window_manager_destroy(panel, "reason", 1));
    EXPECT_NE(output.text().find("bad cast destroy any: src/zo_ui/zo_window_manager:"), std::string::npos);
    test::run_tasks();
    EXPECT_FALSE(test::state_of(panel).destroyed);
}

TEST_F(ManagerLifecycle, ItsTypeAndHandles) {
    const zo_object_ptr object = zo_window_manager_to_object(panel);
    EXPECT_EQ(object->get_type(), "[zo_window_manager]");
    EXPECT_TRUE(zo_is_window_manager(object));
    EXPECT_EQ(zo_window_manager_from_object(object), panel.get());
    EXPECT_TRUE(object->is_reffed());
    EXPECT_EQ(zo_object_ref_count("[zo_window_manager]"), 1);
    test::scoped_window window;
    EXPECT_FALSE(zo_is_window_manager(zo_window_to_object(window)));
    EXPECT_FALSE(zo_window_manager_from_object(zo_window_to_object(window)));
    EXPECT_EQ(output.text(), "");
}

TEST_F(ManagerLifecycle, ItsContainerOfNotifications) {
    std::map<unsigned long, GtkWidget*>* first = nullptr;
    std::map<unsigned long, GtkWidget*>* second = nullptr;
    EXPECT_TRUE(zo_window_manager_get_local_notification_container(panel, &first));
    ASSERT_TRUE(first);
    EXPECT_TRUE(first->empty());
    panel.open();
    EXPECT_TRUE(zo_window_manager_get_local_notification_container(panel, &second));
    EXPECT_EQ(first, second);
}

}  // namespace
