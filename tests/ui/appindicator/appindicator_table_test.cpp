// SPDX-License-Identifier: MIT
// The property table, its order and its locks. A constructor of the base that has made every property
// already, in place of the core's, turns each initialisation into a report.
#include "ui/appindicator/indicator.hpp"
#include "ui/window/lock_witness.hpp"

#include <zo_ui/zo_appindicator/appindicator_p.hpp>

namespace {

struct row {
    const char* type;
    const char* name;
    const char* value;
};

constexpr row rows[] = {
    {"indicator_data_ptr", "indicator", "indicator_data_ptr(new indicator_data)"},
    {"std::string", "icon", "icon"},
    {"std::string", "title", "title"},
    {"std::string", "name", "name"},
    {"std::string", "label", "\"\""},
};

bool made_already = false;

}  // namespace

_zo_object::_zo_object() {
    zo_property_init<bool>(property_list, "object-destroyed", false);
    if (!made_already) return;
    for (const row& r : rows) zo_property_init<int>(property_list, r.name, 4711);
}

namespace {

TEST(AppindicatorTable, IsInitialisedInItsOrderUnderOneLock) {
    made_already = true;
    test::captured_output output;
    test::taken_locks.clear();
    zo_appindicator_ptr indicator = zo_appindicator_new("n", "t", "i");
    made_already = false;
    ASSERT_EQ(test::taken_locks.size(), 1U);
    const test::taken_lock lock = test::taken_locks[0];
    EXPECT_EQ(lock.file, "src/zo_ui/zo_appindicator");
    const std::vector<std::string> lines = output.lines();
    ASSERT_EQ(lines.size(), std::size(rows));
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(lines[i],
                  std::string("\x1b[1;31mZO-SYSTEM**ERROR**\x1b[0;0m: assertion failed: zo_property_init<") +
                      rows[i].type + ">(property_list,\"" + rows[i].name + "\"," + rows[i].value + ") - " +
                      rows[i].name +
                      " - src/zo_ui/zo_appindicator:" + std::to_string(lock.line + 1 + static_cast<int>(i)));
    for (const row& r : rows) EXPECT_EQ(boost::any_cast<int>(indicator->property_list.at(r.name)), 4711);
    zo_object_unref(zo_appindicator_to_object(indicator));
}

TEST(AppindicatorTable, HoldsWhatWasGiven) {
    test::captured_output output;
    const test::scoped_indicator indicator("the name", "the title", "the icon");
    property_list& list = indicator.object()->property_list;
    const auto text = [&](const char* name) {
        std::string value = "unread";
        EXPECT_TRUE(zo_property_get_extract<std::string>(list, name, &value));
        return value;
    };
    EXPECT_EQ(text("name"), "the name");
    EXPECT_EQ(text("title"), "the title");
    EXPECT_EQ(text("icon"), "the icon");
    EXPECT_EQ(text("label"), "");
    indicator_data_ptr iw;
    EXPECT_TRUE(zo_property_get_extract<indicator_data_ptr>(list, "indicator", &iw));
    EXPECT_TRUE(iw);
    EXPECT_EQ(list.size(), std::size(rows) + 1);
    EXPECT_EQ(output.text(), "");
}

TEST(AppindicatorTable, TheShowTaskReadsUnderItsLock) {
    test::scoped_indicator indicator("");
    test::taken_locks.clear();
    indicator.show();
    ASSERT_FALSE(test::taken_locks.empty());
    EXPECT_EQ(test::taken_locks.back().line, 278);
    for (const test::taken_lock& lock : test::taken_locks) EXPECT_EQ(lock.file, "src/zo_ui/zo_appindicator");
}

}  // namespace
