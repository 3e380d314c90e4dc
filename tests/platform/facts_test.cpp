// SPDX-License-Identifier: MIT
// Class, name and process id of a window, from properties as programs write them, and as they should not.
#include <gtest/gtest.h>
#include <zo_ui/platform/linux.hpp>

#include "platform/foreign_window.hpp"
#include "platform/x_client.hpp"

#include <clocale>

namespace {

class Facts : public testing::Test {
  protected:
    Facts() { std::setlocale(LC_ALL, ""); }
    ~Facts() override {
        EXPECT_EQ(errors.count(), 0);
        std::setlocale(LC_ALL, "C");
    }

    // The name, or "-" when there is none.
    std::string name_of(Window window) {
        std::string name = "before";
        if (get_window_name(asking, window, name)) return name;
        EXPECT_EQ(name, "before");
        return "-";
    }

    std::string class_of(Window window) {
        std::string name = "name before", class_name = "class before";
        if (get_window_class(asking, window, name, class_name)) return name + "/" + class_name;
        EXPECT_EQ(name + "/" + class_name, "name before/class before");
        return "-";
    }

    test::counted_errors errors;
    test::x_client owner;
    test::x_client asking;
};

TEST_F(Facts, NamesOfOtherProgramsComeInTheProcesssEncoding) {
    const test::foreign_window latin({"title=Gr\xfc\xdf Gott", "type=STRING"});
    EXPECT_EQ(name_of(latin.id()), "Gr\u00fc\u00df Gott");
    const test::foreign_window utf8(
        {"title=\u0417\u0434\u0440\u0430\u0432\u043e \u2713", "type=UTF8_STRING"});
    EXPECT_EQ(name_of(utf8.id()), "\u0417\u0434\u0440\u0430\u0432\u043e \u2713");
    const test::foreign_window compound({"title=\u0417\u0434\u0440\u0430\u0432\u043e", "type=COMPOUND_TEXT"});
    EXPECT_EQ(
        test::output_of("xprop -id " + std::to_string(compound.id()) + " -notype WM_NAME").find("WM_NAME = "),
        0U);
    EXPECT_EQ(name_of(compound.id()), "\u0417\u0434\u0440\u0430\u0432\u043e");
}

TEST_F(Facts, ANameThatTheLocaleLacksIsNone) {
    const Window window = owner.make();
    std::setlocale(LC_ALL, "C");
    owner.set_text(window, "WM_NAME", "UTF8_STRING", "\u0417\u0434\u0440\u0430\u0432\u043e");
    EXPECT_EQ(name_of(window), "-");
    owner.set_text(window, "WM_NAME", "UTF8_STRING", "plain");
    EXPECT_EQ(name_of(window), "plain");
}

TEST_F(Facts, AnEmptyNameIsAName) {
    const Window window = owner.make();
    EXPECT_EQ(name_of(window), "-");
    for (const char* type : {"STRING", "UTF8_STRING", "COMPOUND_TEXT"}) {
        owner.set_text(window, "WM_NAME", type, "");
        EXPECT_EQ(name_of(window), "") << type;
    }
}

TEST_F(Facts, TheFirstOfSeveralStringsIsTheName) {
    const Window window = owner.make();
    owner.set_text(window, "WM_NAME", "STRING", std::string("first\0second", 12));
    EXPECT_EQ(name_of(window), "first");
}

TEST_F(Facts, ANameThatIsNoTextIsNone) {
    const Window window = owner.make();
    owner.set_longs(window, "WM_NAME", "CARDINAL", {65, 66});
    EXPECT_EQ(name_of(window), "-");
    owner.set_text(window, "WM_NAME", "ZO_UNHEARD_OF", "text");
    EXPECT_EQ(name_of(window), "-");
}

TEST_F(Facts, TheClassIsThePairOfTheHint) {
    const test::foreign_window window({"class=navigator,Browser"});
    EXPECT_EQ(class_of(window.id()), "navigator/Browser");
    const test::foreign_window without({"title=x"});
    EXPECT_EQ(class_of(without.id()), "-");
}

TEST_F(Facts, AClassOfAnotherTypeIsNone) {
    const Window window = owner.make();
    owner.set_longs(window, "WM_CLASS", "CARDINAL", {1, 2});
    EXPECT_EQ(class_of(window), "-");
    owner.set_text(window, "WM_CLASS", "STRING", "");
    EXPECT_EQ(class_of(window), "/");
    owner.set_text(window, "WM_CLASS", "STRING", "only");
    EXPECT_EQ(class_of(window), "only/");
}

TEST_F(Facts, TheProcessIdIsWhatTheProgramSays) {
    const test::foreign_window without({"title=x"});
    EXPECT_EQ(getWindowPid(asking, without.id()), 0);
    const test::foreign_window with({"pid=4711"});
    EXPECT_EQ(getWindowPid(asking, with.id()), 4711);
}

TEST_F(Facts, OnlyACardinalOf32BitsIsAProcessId) {
    const Window window = owner.make();
    owner.set_longs(window, "_NET_WM_PID", "CARDINAL", {12, 34});
    EXPECT_EQ(getWindowPid(asking, window), 12);
    owner.set_longs(window, "_NET_WM_PID", "CARDINAL", {-5});
    EXPECT_EQ(getWindowPid(asking, window), -5);
    owner.set_longs(window, "_NET_WM_PID", "CARDINAL", {});
    EXPECT_EQ(getWindowPid(asking, window), 0);
    owner.set_longs(window, "_NET_WM_PID", "WINDOW", {12});
    EXPECT_EQ(getWindowPid(asking, window), 0);
    owner.set_text(window, "_NET_WM_PID", "CARDINAL", "1234");
    EXPECT_EQ(getWindowPid(asking, window), 0);
}

TEST_F(Facts, AWindowThatIsGoneHasNone) {
    for (const Window window : {owner.make_dead(), Window{0}, Window{1}}) {
        EXPECT_EQ(name_of(window), "-");
        EXPECT_EQ(class_of(window), "-");
        EXPECT_EQ(getWindowPid(asking, window), 0);
    }
}

TEST_F(Facts, WithoutAConnectionThereIsNone) {
    std::string name = "before", other;
    EXPECT_FALSE(get_window_name(nullptr, owner.root(), name));
    EXPECT_FALSE(get_window_class(nullptr, owner.root(), name, other));
    EXPECT_EQ(name, "before");
    EXPECT_EQ(getWindowPid(nullptr, owner.root()), 0);
}

}  // namespace
