// SPDX-License-Identifier: MIT
// The end of an indicator, and that nothing is left of it.
#include "ui/appindicator/indicator.hpp"

namespace {

constexpr const char* warning = "\x1b[1;35mZO-SYSTEM**WARNING**\x1b[0;0m: ";
constexpr const char* error = "\x1b[1;31mZO-SYSTEM**ERROR**\x1b[0;0m: ";

class AppindicatorDestroy : public test::with_tray_host {
  protected:
    void add_counting() {
        for (const char* name : {"a", "b", "c"}) indicator.count(name, name, called);
    }

    test::scoped_indicator indicator{"ending"};
    int called = 0;
};

TEST_F(AppindicatorDestroy, TakesTheIconAndTheMenuAway) {
    add_counting();
    indicator.show();
    test::wait_for_tray_item("ending");
    GtkWidget* menu = test::menus().at(0);
    std::vector<GtkWidget*> items = test::children(menu);
    g_object_add_weak_pointer(G_OBJECT(menu), reinterpret_cast<gpointer*>(&menu));
    for (GtkWidget*& item : items)
        g_object_add_weak_pointer(G_OBJECT(item), reinterpret_cast<gpointer*>(&item));
    indicator.destroy();
    EXPECT_TRUE(test::tray_items_become("ending", 0));
    EXPECT_TRUE(test::turn_until([&] { return !menu; }));
    EXPECT_TRUE(test::turn_until([&] { return items == std::vector<GtkWidget*>(3, nullptr); }));
    EXPECT_EQ(indicator.get().use_count(), 1);
}

// Even when somebody else still holds a widget of it.
TEST_F(AppindicatorDestroy, LetsTheHandlesGoAtOnce) {
    add_counting();
    indicator.show();
    GtkWidget* const menu = GTK_WIDGET(g_object_ref(test::menus().at(0)));
    indicator.destroy();
    EXPECT_EQ(indicator.get().use_count(), 1);
    EXPECT_TRUE(test::menus().empty());
    g_object_unref(menu);
}

TEST_F(AppindicatorDestroy, TheApplicationsHandleKeepsTheObject) {
    indicator.show();
    indicator.destroy();
    EXPECT_EQ(zo_object_ref_count("[zo_appindicator]"), 1);
    EXPECT_EQ(indicator.object()->get_type(), "[zo_appindicator]");
    EXPECT_FALSE(indicator.object()->is_reffed());
    indicator.let_go();
    EXPECT_EQ(zo_object_ref_count("[zo_appindicator]"), 0);
}

TEST_F(AppindicatorDestroy, IsPosted) {
    indicator.show();
    indicator.object()->destroy("test", 1);
    EXPECT_EQ(test::menus().size(), 1U);
    EXPECT_TRUE(indicator.object()->is_reffed());
    test::run_tasks();
    EXPECT_TRUE(test::menus().empty());
    indicator.let_go();
}

TEST_F(AppindicatorDestroy, ASecondCallWarnsAndDoesNothing) {
    indicator.show();
    indicator.destroy();
    test::captured_output output;
    indicator.object()->destroy("some/file.cpp", 77);
    EXPECT_EQ(output.text(), std::string(warning) +
                                 "CALLING DESTROY MULTIPLE TIMES IS NOT AN OPTION "
                                 "\x1b[0;35m[zo_appindicator]\x1b[0;0m-some/file.cpp:77\n");
    output.clear();
    test::run_tasks();
    EXPECT_EQ(output.text(), "");
}

TEST_F(AppindicatorDestroy, AGuardOfTheWrongTypeIsAnError) {
    const zo_object_ptr object = indicator.object();
    zo_property_set<int>(object->property_list, "object-destroyed", 3);
    indicator.show();
    test::captured_output output;
    object->destroy("test", 1);
    test::run_tasks();
    EXPECT_EQ(output.text(), std::string(error) +
                                 "bad cast destroy any: src/zo_ui/zo_appindicator:152 - "
                                 "boost::bad_any_cast: failed conversion using boost::any_cast\n");
    EXPECT_EQ(test::menus().size(), 1U);
    zo_property_set<bool>(object->property_list, "object-destroyed", false);
}

TEST_F(AppindicatorDestroy, OfAnIndicatorNeverShown) {
    add_counting();
    test::run_tasks();
    indicator.destroy();
    EXPECT_EQ(indicator.get().use_count(), 1);
}

TEST_F(AppindicatorDestroy, LaterTasksDoNothing) {
    indicator.destroy();
    test::captured_output output;
    const auto held = std::make_shared<int>(0);
    EXPECT_TRUE(zo_appindicator_add_action(indicator, "a", "A", [held](auto, auto&) {}));
    EXPECT_TRUE(zo_appindicator_show(indicator));
    test::run_tasks();
    EXPECT_EQ(held.use_count(), 1);
    EXPECT_TRUE(test::menus().empty());
    EXPECT_TRUE(test::tray_items_become("ending", 0));
    EXPECT_EQ(output.text(), "");
}

// All in one turn of the loop, before the tray has heard of the icon.
TEST_F(AppindicatorDestroy, RightBehindTheShowing) {
    add_counting();
    zo_appindicator_show(indicator);
    indicator.destroy();
    EXPECT_EQ(indicator.get().use_count(), 1);
    test::scoped_indicator next("next");
    next.show();
    test::wait_for_tray_item("next");
    EXPECT_TRUE(test::tray_items_become("ending", 0));
}

TEST_F(AppindicatorDestroy, BeforeTheShowTaskRuns) {
    add_counting();
    indicator.object()->destroy("test", 1);
    zo_appindicator_show(indicator);
    test::run_tasks();
    EXPECT_TRUE(test::menus().empty());
    EXPECT_EQ(indicator.get().use_count(), 1);
    indicator.let_go();
}

// An indicator that is never destroyed but let go takes its icon along, on the loop.
TEST_F(AppindicatorDestroy, WithoutADestroyTheIconGoesWithTheObject) {
    indicator.show();
    test::wait_for_tray_item("ending");
    zo_object_unref(indicator.object());
    indicator.let_go();
    EXPECT_EQ(zo_object_ref_count("[zo_appindicator]"), 0);
    EXPECT_EQ(test::menus().size(), 1U);
    test::run_tasks();
    EXPECT_TRUE(test::menus().empty());
    EXPECT_TRUE(test::tray_items_become("ending", 0));
}

TEST_F(AppindicatorDestroy, ManyComeAndGo) {
    for (int round = 0; round < 40; ++round) {
        test::scoped_indicator other("many");
        other.count("a", "A", called);
        other.show();
        if (round % 10 == 0) test::wait_for_tray_item("many");
    }
    EXPECT_TRUE(test::tray_items_become("many", 0));
    EXPECT_TRUE(test::menus().empty());
    EXPECT_EQ(zo_object_ref_count("[zo_appindicator]"), 1);
}

}  // namespace
