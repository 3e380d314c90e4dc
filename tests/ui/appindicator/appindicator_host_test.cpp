// SPDX-License-Identifier: MIT
// Tray hosts that come late, go, crash and come back.
#include "support/log_check.hpp"
#include "ui/appindicator/indicator.hpp"

#include <optional>

namespace {

// GTK's own, when an icon that waits for a host finds a place in the host's tray of the old kind first. It
// does not come every time, so the test says it once itself.
class tolerated_message {
  public:
    ~tolerated_message() { g_log("Gdk", G_LOG_LEVEL_CRITICAL, "gdk_window_thaw_toplevel_updates"); }

  private:
    const test::expected_glib_message gtk_says_{"gdk_window_thaw_toplevel_updates"};
};

class AppindicatorHost : public testing::Test {
  protected:
    AppindicatorHost() {
        indicator.count("a", "A", called);
        indicator.show();
    }

    void expect_alive() {
        const test::tray_item item = test::wait_for_tray_item("hosted");
        test::choose_and_wait(item, "A", called);
        EXPECT_EQ(test::tray_items("hosted").size(), 1U);
    }

    const tolerated_message tolerated;
    std::optional<test::tray_host> host;
    test::scoped_indicator indicator{"hosted"};
    int called = 0;
};

TEST_F(AppindicatorHost, ComesLater) {
    EXPECT_EQ(test::menus().size(), 1U);
    EXPECT_TRUE(test::tray_items().empty());
    host.emplace();
    expect_alive();
}

TEST_F(AppindicatorHost, Restarts) {
    host.emplace();
    expect_alive();
    host->stop();
    host.emplace();
    expect_alive();
}

TEST_F(AppindicatorHost, CrashesAndIsStartedAgain) {
    host.emplace();
    expect_alive();
    host->crash();
    host.emplace();
    expect_alive();
}

TEST_F(AppindicatorHost, IsGoneWhenTheIndicatorIsDestroyed) {
    host.emplace();
    expect_alive();
    host->crash();
    indicator.destroy();
    EXPECT_TRUE(test::menus().empty());
    EXPECT_EQ(indicator.get().use_count(), 1);
    host.emplace();
    EXPECT_TRUE(test::tray_items().empty());
}

TEST_F(AppindicatorHost, NeverComes) {
    indicator.destroy();
    EXPECT_TRUE(test::menus().empty());
    EXPECT_EQ(indicator.get().use_count(), 1);
}

// What was destroyed before the host came does not come with it.
TEST_F(AppindicatorHost, ShowsWhatIsThereWhenItComes) {
    test::scoped_indicator gone("gone");
    gone.show();
    gone.destroy();
    host.emplace();
    expect_alive();
    EXPECT_TRUE(test::tray_items("gone").empty());
}

}  // namespace
