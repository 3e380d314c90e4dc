// SPDX-License-Identifier: MIT
// The three flags, the order of the virtual operations, the reports, and the first values of what has no
// property.
#include "support/slot_of.hpp"
#include "ui/notification/popup.hpp"
#include "ui/window/lock_witness.hpp"

#include <zo_ui/zo_notification/notification_p.hpp>

#include <algorithm>

namespace {

using access = zo::notification_access;

class NotificationTable : public testing::Test {
  protected:
    property_list& properties() const { return notification.get()->property_list; }

    // The reports, as far as they quote the access.
    static std::vector<std::string> expressions(const test::captured_output& output) {
        std::vector<std::string> found;
        for (const std::string& line : output.lines()) {
            const std::size_t begin = line.find("zo_property");
            EXPECT_NE(begin, std::string::npos) << line;
            found.push_back(line.substr(begin, line.find(" - ") - begin));
        }
        return found;
    }

    test::scoped_notification notification;
};

TEST_F(NotificationTable, ItsDefaults) {
    EXPECT_EQ(properties().size(), 4U);  // and the base's mark
    for (const char* name : {"window-visible", "window-opened", "window-destroyed"}) {
        bool value = true;
        EXPECT_TRUE(zo_property_get_extract<bool>(properties(), name, &value)) << name;
        EXPECT_FALSE(value) << name;
    }
    _zo_notification& object = *notification.get();
    EXPECT_EQ(access::timeout_id(object), 0U);
    EXPECT_EQ(access::shown_at(object), 0);
    EXPECT_EQ(access::shown_for(object), 0);
    EXPECT_FALSE(access::manager(object));
    EXPECT_FALSE(access::widgets(object).window);
    EXPECT_TRUE(access::callables(object).actions.empty());
    EXPECT_FALSE(access::callables(object).on_close);
    EXPECT_FALSE(access::callables(object).on_link);
    EXPECT_TRUE(object.is_reffed());
}

// A check names the line after its lock, or after the check before it: the flags are made at 139, 140 and
// 141, and hiding writes at 572.
TEST_F(NotificationTable, LocksWhereItsReportsSay) {
    const auto locked_at = [](int line) {
        return std::count_if(test::taken_locks.begin(), test::taken_locks.end(), [&](const auto& lock) {
            return lock.file == "src/zo_ui/zo_notification" && lock.line == line;
        });
    };
    test::taken_locks.clear();
    const test::scoped_notification other("other");
    EXPECT_EQ(locked_at(138), 1);
    other.show();
    test::taken_locks.clear();
    other.get()->_hide();
    EXPECT_EQ(locked_at(571), 1);
    EXPECT_EQ(test::state_of(other), (test::state{true, false, false}));
}

TEST_F(NotificationTable, AMissingFlagIsReportedWithItsExpression) {
    notification.show();
    const auto lines_of = [&](const char* name, auto operation) {
        bool before = false;
        zo_property_get_extract<bool>(properties(), name, &before);
        properties().erase(name);
        const test::captured_output output;
        operation();
        const std::vector<std::string> found = expressions(output);
        zo_property_set<bool>(properties(), name, before);
        return found;
    };
    _zo_notification& object = *notification.get();
    const auto read = [](const std::string& name) {
        return std::vector<std::string>{"zo_property_get_extract<bool>(property_list,\"" + name +
                                        "\",&value)"};
    };
    EXPECT_EQ(lines_of("window-opened", [&] { object._hide(); }), read("window-opened"));
    EXPECT_TRUE(test::state_of(notification).visible) << "what is not open is not hidden";
    EXPECT_EQ(lines_of("window-destroyed", [&] { object._show(); }), read("window-destroyed"));
    EXPECT_EQ(lines_of("window-visible", [&] { object._show(); })[0], read("window-visible")[0]);
}

using test::slot_of;

TEST_F(NotificationTable, TheOrderOfItsOperationsIsThatOfTheBase) {
    EXPECT_EQ(slot_of(&_zo_notification::to_object), 2);
    EXPECT_EQ(slot_of(&_zo_notification::get_type), 3);
    EXPECT_EQ(slot_of(&_zo_notification::destroy), 4);
    EXPECT_EQ(slot_of(&_zo_notification::describe), 5);
}

}  // namespace
