// SPDX-License-Identifier: MIT
// A property that is missing is reported by whoever reads it, and the call goes on. Each report names the
// line after its lock, or after the check before it.
#include "ui/window/lock_witness.hpp"
#include "ui/window/property_steps.hpp"
#include "ui/window/window_tables.hpp"

#include <algorithm>

namespace {

class WindowReports : public testing::Test {
  protected:
    // Exactly one report since the last call, by the check of this number under a lock that was taken.
    void expect_report(const std::string& expression, const std::string& context, int check = 1) {
        const std::string begin = "\x1b[1;31mZO-SYSTEM**ERROR**\x1b[0;0m: assertion failed: " + expression +
                                  " - " + context + " - src/zo_ui/zo_window:";
        const std::vector<std::string> lines = output.lines();
        ASSERT_EQ(lines.size(), 1U) << context << "\n" << output.text();
        ASSERT_EQ(lines[0].substr(0, begin.size()), begin);
        const int line = std::stoi(lines[0].substr(begin.size()));
        EXPECT_EQ(lines[0], begin + std::to_string(line));
        EXPECT_TRUE(test::was_locked_at(line - check)) << lines[0];
        forget();
    }

    void forget() {
        output.clear();
        test::taken_locks.clear();
    }

    test::captured_output output;
    test::scoped_window window{""};
};

TEST_F(WindowReports, Flags) {
    const std::string expression = "zo_property_get_extract<bool>(ptr->property_list,name,&value)";
    for (const test::window_flag& flag : test::window_flags) {
        test::erase_property(window, flag.property);
        forget();
        EXPECT_FALSE(flag.get(window));
        expect_report(expression, flag.property);
        EXPECT_FALSE(zo_window_get_bool_property(window, flag.property));
        expect_report(expression, flag.property);
        EXPECT_TRUE(flag.set(window, true));  // makes it anew
        EXPECT_TRUE(flag.get(window));
        EXPECT_EQ(output.text(), "");
    }
    EXPECT_FALSE(zo_window_get_bool_property(window, "no-such-flag"));
    expect_report(expression, "no-such-flag");
}

TEST_F(WindowReports, Counter) {
    test::erase_property(window, "instanceId");
    forget();
    EXPECT_EQ(zo_window_instance_id(window), 0);
    expect_report("zo_property_get_extract<int>(ptr->property_list,\"instanceId\",&value)", "instanceId");
}

TEST_F(WindowReports, State) {
    for (const auto& [property, query] : {std::pair{"window-opened", &zo_window_is_opened},
                                          std::pair{"window-visible", &zo_window_is_visible},
                                          std::pair{"window-destroyed", &zo_window_is_destroyed}}) {
        test::erase_property(window, property);
        forget();
        bool value = true;
        EXPECT_TRUE(query(window, &value));
        EXPECT_FALSE(value);
        expect_report(test::reading("bool", property, "&value"), property);
        zo_window_set_bool_property(window, property, false);
    }
}

TEST_F(WindowReports, Texts) {
    for (const test::window_text_row& row : test::window_texts) {
        const std::string property = row.property;
        test::erase_property(window, property);
        forget();
        std::string text = "before";
        EXPECT_TRUE(row.get(window, text));
        EXPECT_EQ(text, "");
        expect_report("zo_property_get_extract<std::string>(ptr->property_list,\"" + property + "\",&value)",
                      property);
        EXPECT_TRUE(row.set(window, "text"));
        expect_report(test::reading("std::string", property, "&old"), property);
        EXPECT_TRUE(row.get(window, text));
        EXPECT_EQ(text, "text");
        test::erase_property(window, row.change_property);
        forget();
        test::run_tasks();
        expect_report(
            test::reading("std::function<void(zo_window_ptr,std::string)>", row.change_property, "&fn"),
            row.change_property);
    }
}

TEST_F(WindowReports, Events) {
    zo_window_push_event(window, zo_window_event_new(1));
    test::erase_property(window, "window-on-event");
    forget();
    test::run_tasks();
    expect_report(
        test::reading("std::function<void(zo_window_ptr,zo_window_event_ptr)>", "window-on-event", "&fn"),
        "window-on-event");
}

TEST_F(WindowReports, Steps) {
    for (const test::property_step& step : test::property_steps()) {
        SCOPED_TRACE(step.what);
        const test::scoped_window used("");
        for (const auto operation : step.before) operation(used);
        test::run_tasks();
        test::erase_property(used, step.property);
        forget();
        step.run(*used.get());
        // The state is asked for more than once; each time is a report of its own.
        std::vector<std::string> lines = output.lines();
        lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
        output.clear();
        for (const std::string& line : lines) std::cout << line << "\n";
        expect_report(step.expression, step.property, step.check);
    }
}

// All reads of an opening fail: in their order, under one lock, and the window opens all the same.
TEST_F(WindowReports, Opening) {
    std::vector<std::pair<std::string, std::string>> reads{
        {"window-open", test::reading_callback("window-open")}};
    const char* const flags[] = {"popup-window",
                                 "window-managed",
                                 "use-rgba-visual",
                                 "use-system-decoration",
                                 "skip-pager",
                                 "skip-taskbar-hint",
                                 "re-sizable",
                                 "keep-above",
                                 "drag-enabled",
                                 "use-built-in-title",
                                 "enable-title-back",
                                 "enable-title-exit",
                                 "enable-title-menu",
                                 "enable-title-hint",
                                 "enable-title-save-to-photo",
                                 "enable-title-close",
                                 "enable-title-minimize",
                                 "enable-content-ads",
                                 "use_scroll"};
    for (const std::string flag : flags) {
        std::string variable = "&" + flag;
        std::replace(variable.begin(), variable.end(), '-', '_');
        reads.emplace_back(flag, test::reading("bool", flag, variable.c_str()));
    }
    for (const auto& [name, variable] :
         {std::pair{"window-title-text", "&window_title_text"}, std::pair{"window-class", "&window_class"},
          std::pair{"window-id", "&window_id"}})
        reads.emplace_back(name, test::reading("std::string", name, variable));
    for (const auto& [name, expression] : reads) test::erase_property(window, name);
    forget();

    window.get()->_open();

    const std::vector<std::string> lines = output.lines();
    ASSERT_EQ(lines.size(), 23U);
    ASSERT_EQ(reads.size(), 23U);
    const int lock = std::stoi(lines[0].substr(lines[0].rfind(':') + 1)) - 1;
    EXPECT_TRUE(test::was_locked_at(lock));
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(lines[i], "\x1b[1;31mZO-SYSTEM**ERROR**\x1b[0;0m: assertion failed: " + reads[i].second +
                                " - " + reads[i].first +
                                " - src/zo_ui/zo_window:" + std::to_string(lock + 1 + static_cast<int>(i)));
    EXPECT_TRUE(test::state_of(window).opened);
    EXPECT_EQ(test::toplevels("zo-window").size(), 1U);
}

}  // namespace
