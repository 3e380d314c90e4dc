// SPDX-License-Identifier: MIT
// After the end of the service the toolkit is going away: destroying forgets the icon and its menu, and
// destroys neither. The end is final for the process, so everything is one test.
#include "ui/appindicator/indicator.hpp"

namespace {

class AppindicatorServiceEnd : public test::with_tray_host {};

TEST_F(AppindicatorServiceEnd, ForgetsTheIcon) {
    int called = 0;
    test::scoped_indicator staying("staying");
    test::scoped_indicator ending("ending");
    test::scoped_indicator dropped("dropped");
    staying.count("a", "Stay", called);
    ending.count("a", "End", called);
    for (test::scoped_indicator* each : {&staying, &ending, &dropped}) each->show();
    const test::tray_item staying_item = test::wait_for_tray_item("staying");
    const test::tray_item ending_item = test::wait_for_tray_item("ending");
    test::wait_for_tray_item("dropped");
    const std::vector<GtkWidget*> menus = test::menus();
    ASSERT_EQ(menus.size(), 3U);

    // Queued before the end, it still runs.
    ending.object()->destroy("test", 1);
    zo_system_service_end();
    EXPECT_FALSE(ending.object()->is_reffed());
    EXPECT_EQ(test::menus(), menus);

    // What is still in the tray is clicked like anything else, and the forgotten one calls nobody.
    test::choose_and_wait(staying_item, "Stay", called);
    EXPECT_TRUE(test::turn_until([&] { return test::choose_tray_entry(ending_item, "End"); }));
    test::choose_and_wait(staying_item, "Stay", called);
    EXPECT_EQ(called, 2);

    // Posts are taken and dropped.
    EXPECT_TRUE(zo_appindicator_show(staying));
    EXPECT_TRUE(zo_appindicator_add_action(staying, "b", "B", nullptr));
    staying.object()->destroy("test", 1);
    zo_object_unref(dropped.object());
    dropped.let_go();
    test::run_tasks();
    EXPECT_EQ(test::menus(), menus);

    // Whoever destroys the forgotten menus frees the objects.
    for (GtkWidget* menu : menus) gtk_widget_destroy(menu);
    EXPECT_EQ(ending.get().use_count(), 1);
    zo_object_unref(staying.object());
    for (test::scoped_indicator* each : {&staying, &ending}) each->let_go();
}

}  // namespace
