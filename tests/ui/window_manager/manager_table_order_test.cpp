// SPDX-License-Identifier: MIT
// The property table in its order. A constructor of the base that has made every property already, in place
// of the core's, turns each initialisation into a report.
#include "ui/window/lock_witness.hpp"
#include "ui/window_manager/panel.hpp"

namespace {

struct row {
    const char* type;
    const char* name;
    const char* value;
};

constexpr const char* callback = "std::function<void(zo_window_manager_ptr)>";
constexpr row rows[] = {
    {"bool", "manager-visible", "false"},     {"bool", "manager-opened", "false"},
    {"bool", "manager-destroyed", "false"},   {"bool", "manager-keep-extended", "false"},
    {callback, "manager-open", "nullptr"},    {callback, "manager-show", "nullptr"},
    {callback, "manager-hide", "nullptr"},    {callback, "manager-close", "nullptr"},
    {callback, "manager-destroy", "nullptr"},
};

}  // namespace

_zo_object::_zo_object() {
    for (const row& r : rows) zo_property_init<int>(property_list, r.name, 4711);
}

namespace {

TEST(ManagerTableOrder, IsInitialisedUnderOneLock) {
    test::captured_output output;
    const zo_window_manager_ptr manager = zo_window_manager_new("");
    ASSERT_FALSE(test::taken_locks.empty());
    const test::taken_lock lock = test::taken_locks.front();
    EXPECT_EQ(lock.file, "src/zo_ui/zo_window_manager");
    const std::vector<std::string> lines = output.lines();
    ASSERT_EQ(lines.size(), std::size(rows));
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(lines[i],
                  std::string("\x1b[1;31mZO-SYSTEM**ERROR**\x1b[0;0m: assertion failed: zo_property_init<") +
                      rows[i].type + ">(property_list,\"" + rows[i].name + "\"," + rows[i].value + ") - " +
                      rows[i].name + " - src/zo_ui/zo_window_manager:" +
                      std::to_string(lock.line + 1 + static_cast<int>(i)));
    const zo_object_ptr object = zo_window_manager_to_object(manager);
    EXPECT_EQ(object->property_list.size(), std::size(rows));
    zo_object_unref(object);
}

}  // namespace
