// SPDX-License-Identifier: MIT
// The nine properties of the panel: names, types, first values, and the report when one is missing.
#include "ui/window/lock_witness.hpp"
#include "ui/window_manager/panel.hpp"

namespace {

using callback = std::function<void(zo_window_manager_ptr)>;
constexpr const char* flags[] = {"manager-visible", "manager-opened", "manager-destroyed",
                                 "manager-keep-extended"};
constexpr const char* callbacks[] = {"manager-open", "manager-show", "manager-hide", "manager-close",
                                     "manager-destroy"};
constexpr const char* callback_type = "std::function<void(zo_window_manager_ptr)>";

class ManagerTable : public testing::Test {
  protected:
    property_list& properties() const { return zo_window_manager_to_object(panel)->property_list; }

    // Every report of the operation, without the line number.
    std::vector<std::string> reports_of(const std::function<void()>& operation) const {
        test::captured_output output;
        operation();
        test::run_tasks();
        std::vector<std::string> reports;
        for (std::string line : output.lines()) {
            const std::string begin = "\x1b[1;31mZO-SYSTEM**ERROR**\x1b[0;0m: assertion failed: ";
            EXPECT_EQ(line.substr(0, begin.size()), begin);
            const std::string file = " - src/zo_ui/zo_window_manager:";
            const std::size_t place = line.find(file);
            EXPECT_NE(place, std::string::npos) << line;
            reports.push_back(line.substr(begin.size(), place - begin.size()));
        }
        return reports;
    }

    static std::string access(const std::string& operation, const std::string& type, const std::string& name,
                              const std::string& value, const std::string& list = "property_list") {
        return operation + "<" + type + ">(" + list + ",\"" + name + "\"," + value + ") - " + name;
    }
    static std::string read(const char* name) {
        return access("zo_property_get_extract", callback_type, name, "&fn");
    }
    static std::string written(const char* name, const char* value) {
        return access("zo_property_set", "bool", name, value);
    }

    void erase(const char* name) const { properties().erase(name); }
    std::vector<std::string> run(bool (*operation)(zo_window_manager_ptr)) const {
        return reports_of([&] { operation(panel); });
    }

    test::scoped_panel panel;
};

TEST_F(ManagerTable, ItsDefaults) {
    EXPECT_EQ(properties().size(), std::size(flags) + std::size(callbacks) + 1);  // and the base's mark
    for (const char* name : flags) {
        bool value = true;
        EXPECT_TRUE(zo_property_get_extract<bool>(properties(), name, &value)) << name;
        EXPECT_FALSE(value) << name;
    }
    for (const char* name : callbacks) {
        callback value = [](const zo_window_manager_ptr&) {};
        EXPECT_TRUE(zo_property_get_extract<callback>(properties(), name, &value)) << name;
        EXPECT_FALSE(value) << name;
    }
}

TEST_F(ManagerTable, SettersStoreUnderTheirProperty) {
    constexpr bool (*setters[])(zo_window_manager_ptr, callback) = {
        zo_window_manager_on_open, zo_window_manager_on_show, zo_window_manager_on_hide,
        zo_window_manager_on_close, zo_window_manager_on_destroy};
    for (std::size_t i = 0; i < std::size(callbacks); ++i) {
        int called = 0;
        EXPECT_TRUE(setters[i](panel, [&](const zo_window_manager_ptr&) { ++called; }));
        for (const char* name : callbacks) {
            callback value;
            EXPECT_TRUE(zo_property_get_extract<callback>(properties(), name, &value));
            if (value) value(panel);
            EXPECT_EQ(called, name == callbacks[i] ? 1 : 0);
            called = 0;
        }
        EXPECT_TRUE(setters[i](panel, nullptr));
    }
}

TEST_F(ManagerTable, AMissingCallbackIsReportedByWhoReadsIt) {
    const std::pair<const char*, bool (*)(zo_window_manager_ptr)> steps[] = {
        {"manager-open", zo_window_manager_open},
        {"manager-show", zo_window_manager_show},
        {"manager-hide", zo_window_manager_hide},
        {"manager-close", zo_window_manager_close},
    };
    for (const auto& [name, operation] : steps) {
        erase(name);
        EXPECT_EQ(run(operation), std::vector<std::string>{read(name)});
    }
    erase("manager-destroy");
    EXPECT_EQ(run(zo_window_manager_destroy), std::vector<std::string>{read("manager-destroy")});
}

TEST_F(ManagerTable, MissingFlagsAreReportedByTheirReaders) {
    bool value = true;
    const auto flag = [](const char* name) {
        return std::vector<std::string>{access("zo_property_get_extract", "bool", name, "&value")};
    };
    for (const auto& [name, query] : {std::pair{"manager-opened", &zo_window_manager_is_opened},
                                      {"manager-visible", &zo_window_manager_is_visible},
                                      {"manager-destroyed", &zo_window_manager_is_destroyed}}) {
        value = true;
        erase(name);
        EXPECT_EQ(reports_of([&, query = query] { EXPECT_TRUE(query(panel, &value)); }), flag(name));
        EXPECT_FALSE(value);
        zo_property_set<bool>(properties(), name, false);
    }
    erase("manager-keep-extended");
    EXPECT_EQ(reports_of([&] { EXPECT_FALSE(zo_window_manager_get_keep_extended(panel)); }),
              flag("manager-keep-extended"));
}

TEST_F(ManagerTable, AnotherTypeIsReportedAsAMissingProperty) {
    const std::string visible = access("zo_property_get_extract", "bool", "manager-visible", "&value");
    zo_property_set<int>(properties(), "manager-visible", 1);
    bool value = true;
    EXPECT_EQ(reports_of([&] { EXPECT_TRUE(zo_window_manager_is_visible(panel, &value)); }),
              std::vector<std::string>{visible});
    EXPECT_FALSE(value);
    zo_property_set<bool>(properties(), "manager-visible", false);
    zo_property_set<int>(properties(), "manager-open", 1);
    EXPECT_EQ(run(zo_window_manager_open), std::vector<std::string>{read("manager-open")});
    EXPECT_TRUE(test::panel());
    panel.close();
    zo_property_set<int>(properties(), "manager-destroy", 1);
    EXPECT_EQ(run(zo_window_manager_destroy), std::vector<std::string>{read("manager-destroy")});
    bool is_destroyed = false;
    EXPECT_TRUE(zo_window_manager_is_destroyed(panel, &is_destroyed) && is_destroyed);
}

TEST_F(ManagerTable, IsLockedAtTheManagersSource) {
    test::taken_locks.clear();
    const test::scoped_panel other;
    ASSERT_EQ(test::taken_locks.size(), 2U);  // the base's and its own
    EXPECT_EQ(test::taken_locks[1].file, "src/zo_ui/zo_window_manager");
}

}  // namespace
