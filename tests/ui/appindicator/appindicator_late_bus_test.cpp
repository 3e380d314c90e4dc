// SPDX-License-Identifier: MIT
// A session bus that is there and answers too late: the icon waits with its menu, and who does not wait any
// longer does not stay on the bus. The bus is one of the test's own, stopped like any process.
#include "ui/appindicator/indicator.hpp"

#include <zo_ui/zo_appindicator/appindicator_p.hpp>

#include <sys/wait.h>
#include <csignal>
#include <cstdlib>
#include <memory>

namespace {

using unref = decltype(&g_object_unref);

class late_bus {
  public:
    late_bus() {
        const std::unique_ptr<GDataInputStream, unref> output(
            g_data_input_stream_new(g_subprocess_get_stdout_pipe(daemon_.get())), g_object_unref);
        const std::unique_ptr<char, decltype(&g_free)> address(
            g_data_input_stream_read_line(output.get(), nullptr, nullptr, nullptr), g_free);
        setenv("DBUS_SESSION_BUS_ADDRESS", address.get(), 1);
        const auto flags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                             G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
        watching_.reset(
            g_dbus_connection_new_for_address_sync(address.get(), flags, nullptr, nullptr, nullptr));
        watch_ = g_dbus_connection_signal_subscribe(watching_.get(), nullptr, "org.freedesktop.DBus",
                                                    "NameOwnerChanged", nullptr, nullptr,
                                                    G_DBUS_SIGNAL_FLAGS_NONE, on_name, this, nullptr);
        // Behind its answer, the bus knows who watches.
        const test::variant here(g_dbus_connection_call_sync(
            watching_.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "GetId",
            nullptr, nullptr, G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr));
        EXPECT_TRUE(here);
    }
    ~late_bus() {
        g_dbus_connection_signal_unsubscribe(watching_.get(), watch_);
        g_dbus_connection_close_sync(watching_.get(), nullptr, nullptr);
        g_subprocess_force_exit(daemon_.get());
        g_subprocess_wait(daemon_.get(), nullptr, nullptr);
    }
    late_bus(const late_bus&) = delete;
    late_bus& operator=(const late_bus&) = delete;

    void stop() {
        const int pid = std::atoi(g_subprocess_get_identifier(daemon_.get()));
        g_subprocess_send_signal(daemon_.get(), SIGSTOP);
        int state = 0;
        EXPECT_EQ(waitpid(pid, &state, WUNTRACED), pid);
        EXPECT_TRUE(WIFSTOPPED(state));
    }
    void go_on() { g_subprocess_send_signal(daemon_.get(), SIGCONT); }

    // Connections of others since the watching began.
    int came = 0;
    int left = 0;

  private:
    static void on_name(GDBusConnection*, const char*, const char*, const char*, const char*, GVariant* names,
                        gpointer data) {
        auto& self = *static_cast<late_bus*>(data);
        const char* name = nullptr;
        const char* before = nullptr;
        const char* after = nullptr;
        g_variant_get(names, "(&s&s&s)", &name, &before, &after);
        if (name[0] != ':' || std::string(name) == g_dbus_connection_get_unique_name(self.watching_.get()))
            return;
        ++(*after ? self.came : self.left);
    }

    const std::unique_ptr<GSubprocess, unref> daemon_{
        g_subprocess_new(G_SUBPROCESS_FLAGS_STDOUT_PIPE, nullptr, "dbus-daemon", "--session", "--nofork",
                         "--nopidfile", "--print-address", nullptr),
        g_object_unref};
    std::unique_ptr<GDBusConnection, unref> watching_{nullptr, g_object_unref};
    guint watch_ = 0;
};

class AppindicatorLateBus : public testing::Test {
  protected:
    AppindicatorLateBus() { bus.stop(); }
    ~AppindicatorLateBus() override {
        indicator.destroy();
        EXPECT_TRUE(test::turn_until([&] { return bus.left == bus.came; })) << "stays on the bus";
    }

    indicator_data_ptr record() const {
        indicator_data_ptr iw;
        zo_property_get_extract<indicator_data_ptr>(indicator.object()->property_list, "indicator", &iw);
        return iw;
    }

    void show() {
        indicator.count("a", "A", called);
        indicator.show();
        EXPECT_TRUE(GTK_IS_MENU(record()->menu));
        EXPECT_FALSE(record()->indicator);
    }

    void expect_one_visit() {
        bus.go_on();
        EXPECT_TRUE(test::turn_until([&] { return bus.came == 1; })) << "is not asked";
        EXPECT_TRUE(test::turn_until([&] { return bus.left == 1; })) << "stays on the bus";
    }

    late_bus bus;
    test::scoped_indicator indicator{"late"};
    int called = 0;
};

TEST_F(AppindicatorLateBus, TheIconComesWithTheMenuOfTheShowing) {
    show();
    GtkWidget* const menu = record()->menu;
    indicator.count("b", "B", called);
    indicator.show();
    EXPECT_FALSE(record()->indicator);
    bus.go_on();
    ASSERT_TRUE(test::turn_until([&] { return record()->indicator != nullptr; }));
    EXPECT_EQ(record()->menu, menu);
    EXPECT_EQ(GTK_WIDGET(app_indicator_get_menu(record()->indicator)), menu);
    EXPECT_EQ(test::children(menu).size(), 1U);
}

TEST_F(AppindicatorLateBus, ADestroyedIndicatorLeavesTheBus) {
    show();
    indicator.destroy();
    expect_one_visit();
    EXPECT_FALSE(record());
    EXPECT_TRUE(test::menus().empty());
}

TEST_F(AppindicatorLateBus, AnIndicatorThatWasLetGoLeavesTheBus) {
    zo_appindicator_show(indicator);
    test::run_tasks();
    zo_object_unref(indicator.object());
    indicator.let_go();
    test::run_tasks();
    EXPECT_EQ(zo_object_ref_count("[zo_appindicator]"), 0);
    expect_one_visit();
}

}  // namespace
