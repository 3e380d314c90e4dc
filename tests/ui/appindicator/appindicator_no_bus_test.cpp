// SPDX-License-Identifier: MIT
// Without a session bus, and on a bus that never answers: no crash, no waiting, no icon.
#include "support/log_check.hpp"
#include "ui/appindicator/indicator.hpp"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <cstdlib>

namespace {

void use_bus(const std::string& address) { setenv("DBUS_SESSION_BUS_ADDRESS", address.c_str(), 1); }

class AppindicatorNoBus : public testing::Test {
  protected:
    void show() {
        indicator.count("a", "A", called);
        indicator.show();
        ASSERT_EQ(test::menus().size(), 1U);
        gtk_menu_item_activate(GTK_MENU_ITEM(test::find_name(test::menus()[0], "a")));
        EXPECT_EQ(called, 1);
    }

    test::scoped_indicator indicator{"lonely"};
    int called = 0;
};

TEST_F(AppindicatorNoBus, TheIndicatorLivesAndEnds) {
    use_bus("disabled:");
    {
        const test::expected_glib_message warning("session bus");
        show();
        // The icon is refused the bus, and its menu.
        EXPECT_TRUE(test::turn_until([&] { return warning.count() == 2; }));
    }
    indicator.show();
    indicator.destroy();
    EXPECT_TRUE(test::menus().empty());
    EXPECT_EQ(indicator.get().use_count(), 1);
}

// Somebody listens and says nothing.
TEST_F(AppindicatorNoBus, ABusThatHangsHangsNobody) {
    const std::string path = std::string(g_get_user_runtime_dir()) + "/silent";
    const int silent = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un name{};
    name.sun_family = AF_UNIX;
    path.copy(name.sun_path, sizeof name.sun_path - 1);
    ASSERT_EQ(bind(silent, reinterpret_cast<const sockaddr*>(&name), sizeof name), 0);
    ASSERT_EQ(listen(silent, 5), 0);
    use_bus("unix:path=" + path);
    show();
    indicator.show();
    EXPECT_EQ(test::menus().size(), 1U);
    indicator.destroy();
    EXPECT_TRUE(test::menus().empty());
    EXPECT_EQ(indicator.get().use_count(), 1);
    close(silent);
}

}  // namespace
