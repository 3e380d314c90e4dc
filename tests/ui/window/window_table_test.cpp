// SPDX-License-Identifier: MIT
// The property table in its order. A constructor of the base that has made every property already, in place
// of the core's, turns each initialisation into a report.
#include "ui/window/lock_witness.hpp"
#include "ui/window/window_tables.hpp"

namespace {

struct row {
    const char* type;
    const char* name;
    const char* value;
};

constexpr const char* plain = "std::function<void(zo_window_ptr)>";
constexpr const char* text = "std::function<void(zo_window_ptr,std::string)>";

constexpr row rows[] = {
    {plain, "window-open", "nullptr"},
    {plain, "window-show", "nullptr"},
    {plain, "window-hide", "nullptr"},
    {plain, "window-close", "nullptr"},
    {plain, "window-activate", "nullptr"},
    {plain, "window-restore", "nullptr"},
    {plain, "window-destroy", "nullptr"},
    {"std::function<bool(zo_window_ptr)>", "window-close-request", "nullptr"},
    {plain, "go-back", "nullptr"},
    {plain, "hint-request", "nullptr"},
    {plain, "app-exit-request", "nullptr"},
    {"std::function<void(zo_window_ptr,GdkPixbuf*)>", "handle-photo", "nullptr"},
    {"std::function<void(zo_window_ptr,GtkGrid*)>", "menu-create", "nullptr"},
    {text, "window-title-change", "nullptr"},
    {text, "window-class-change", "nullptr"},
    {text, "window-id-change", "nullptr"},
    {"std::function<void(zo_window_ptr,zo_window_event_ptr)>", "window-on-event", "nullptr"},
    {"bool", "popup-window", "false"},
    {"bool", "window-managed", "true"},
    {"bool", "window-visible", "false"},
    {"bool", "window-opened", "false"},
    {"bool", "window-destroyed", "false"},
    {"bool", "window-restore-visible", "false"},
    {"bool", "window-restore-opened", "false"},
    {"bool", "window-restore-destroyed", "false"},
    {"bool", "use-rgba-visual", "true"},
    {"bool", "use-system-decoration", "false"},
    {"bool", "skip-pager", "true"},
    {"bool", "skip-taskbar-hint", "true"},
    {"bool", "re-sizable", "false"},
    {"bool", "keep-above", "true"},
    {"bool", "drag-enabled", "true"},
    {"bool", "use-built-in-title", "true"},
    {"bool", "enable-title-back", "false"},
    {"bool", "enable-title-exit", "false"},
    {"bool", "enable-title-menu", "false"},
    {"bool", "enable-title-hint", "false"},
    {"bool", "enable-title-save-to-photo", "false"},
    {"bool", "enable-title-close", "true"},
    {"bool", "enable-title-minimize", "true"},
    {"bool", "enable-content-ads", "false"},
    {"bool", "use_scroll", "true"},
    {"std::string", "window-title-text", "\"\""},
    {"std::string", "window-class", "\"global-window\""},
    {"std::string", "window-id", "\"\""},
    {"int", "instanceId", "0"},
};

constexpr int first_value = 4711;

}  // namespace

_zo_object::_zo_object() {
    for (const row& r : rows) zo_property_init<int>(property_list, r.name, first_value);
}

namespace {

TEST(WindowTable, IsInitialisedInItsOrderUnderOneLock) {
    test::captured_output output;
    const zo_window_ptr window = zo_window_new("");
    const test::taken_lock lock = test::taken_locks.back();
    EXPECT_EQ(lock.file, "src/zo_ui/zo_window");
    const std::vector<std::string> lines = output.lines();
    ASSERT_EQ(lines.size(), std::size(rows));
    int line = lock.line;
    for (const row& r : rows) {
        ++line;
        EXPECT_EQ(lines[static_cast<std::size_t>(line - lock.line - 1)],
                  std::string("\x1b[1;31mZO-SYSTEM**ERROR**\x1b[0;0m: assertion failed: zo_property_init<") +
                      r.type + ">(property_list,\"" + r.name + "\"," + r.value + ") - " + r.name +
                      " - src/zo_ui/zo_window:" + std::to_string(line));
    }
    zo_object_unref(zo_window_to_object(window));
}

TEST(WindowTable, KeepsFirstValues) {
    test::captured_output output;
    const zo_window_ptr window = zo_window_new("");
    const zo_object_ptr object = zo_window_to_object(window);
    EXPECT_EQ(object->property_list.size(), std::size(rows));
    for (const auto& [name, value] : object->property_list)
        EXPECT_EQ(boost::any_cast<int>(value), first_value) << name;
    zo_object_unref(object);
}

}  // namespace
