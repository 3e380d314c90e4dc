// SPDX-License-Identifier: MIT
#include "ui/window/window_tables.hpp"

namespace {

class WindowFlags : public testing::TestWithParam<test::window_flag> {
  protected:
    bool stored(const zo_window_ptr& window) {
        return zo_window_get_bool_property(window, GetParam().property);
    }

    void expect_others_untouched(const zo_window_ptr& window) {
        for (const test::window_flag& other : test::window_flags) {
            if (other.property == GetParam().property) continue;
            EXPECT_EQ(other.get(window), other.initial) << other.name;
        }
    }
};

TEST_P(WindowFlags, AreReadAndWritten) {
    test::captured_output output;
    test::scoped_window window("");
    const bool initial = GetParam().initial;
    EXPECT_EQ(GetParam().get(window), initial);
    EXPECT_EQ(stored(window), initial);
    for (const bool value : {!initial, !initial, initial, initial}) {
        EXPECT_TRUE(GetParam().set(window, value));
        EXPECT_EQ(GetParam().get(window), value);
        EXPECT_EQ(stored(window), value);
    }
    EXPECT_TRUE(zo_window_set_bool_property(window, GetParam().property, !initial));
    EXPECT_EQ(GetParam().get(window), !initial);
    EXPECT_EQ(output.text(), "");
}

TEST_P(WindowFlags, StandAlone) {
    test::scoped_window window("");
    GetParam().set(window, !GetParam().initial);
    expect_others_untouched(window);
    EXPECT_EQ(test::state_of(window), test::state());
}

TEST_P(WindowFlags, OfAnEmptyHandleAreFalseWithOneWarning) {
    const std::string name = GetParam().name;
    test::captured_output output;
    EXPECT_FALSE(GetParam().get({}));
    EXPECT_EQ(output.text(), test::null_handle_line("zo_window_get_" + name));
    output.clear();
    EXPECT_FALSE(GetParam().set({}, true));
    EXPECT_FALSE(GetParam().set({}, false));
    EXPECT_EQ(output.text(), test::null_handle_line("zo_window_set_" + name) +
                                 test::null_handle_line("zo_window_set_" + name));
}

// The properties keep what was set, whatever an opening makes of it, and nothing is posted or drawn.
TEST_P(WindowFlags, KeepWhatWasSetWhenTheWindowOpens) {
    test::captured_output output;
    test::scoped_window window;
    GetParam().set(window, !GetParam().initial);
    ASSERT_TRUE(window.open());
    EXPECT_EQ(GetParam().get(window), !GetParam().initial);
    expect_others_untouched(window);
    zo_window_close(window);
    test::run_tasks();
    EXPECT_EQ(GetParam().get(window), !GetParam().initial);
}

TEST_P(WindowFlags, CanBeSetAfterTheEnd) {
    test::captured_output output;
    test::scoped_window window("");
    zo_window_destroy(window);
    test::run_tasks();
    EXPECT_TRUE(GetParam().set(window, !GetParam().initial));
    EXPECT_EQ(GetParam().get(window), !GetParam().initial);
    EXPECT_EQ(output.text(), "");
}

INSTANTIATE_TEST_SUITE_P(All, WindowFlags, testing::ValuesIn(test::window_flags),
                         [](const auto& flag) { return std::string(flag.param.name); });

TEST(WindowFlagTable, IsComplete) { EXPECT_EQ(std::size(test::window_flags), 19U); }

TEST(WindowBoolProperty, CreatesAnUnknownName) {
    test::captured_output output;
    test::scoped_window window("");
    EXPECT_TRUE(zo_window_set_bool_property(window, "own-flag", true));
    EXPECT_TRUE(zo_window_get_bool_property(window, "own-flag"));
    EXPECT_EQ(output.text(), "");
}

TEST(WindowBoolProperty, ReadsTheState) {
    test::scoped_window window;
    EXPECT_FALSE(zo_window_get_bool_property(window, "window-opened"));
    window.open();
    EXPECT_TRUE(zo_window_get_bool_property(window, "window-opened"));
    EXPECT_FALSE(zo_window_get_bool_property(window, "window-visible"));
}

TEST(WindowBoolProperty, OfAnEmptyHandleIsFalse) {
    test::captured_output output;
    EXPECT_FALSE(zo_window_get_bool_property({}, "keep-above"));
    EXPECT_FALSE(zo_window_set_bool_property({}, "keep-above", true));
    EXPECT_EQ(output.text(), test::null_handle_line("zo_window_get_bool_property") +
                                 test::null_handle_line("zo_window_set_bool_property"));
}

}  // namespace
