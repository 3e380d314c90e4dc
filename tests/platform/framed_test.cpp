// SPDX-License-Identifier: MIT
// Windows of other programs in the frames of a window manager, against what other tools say of the same
// screen.
#include "support/loop.hpp"
#include "support/output.hpp"

#include <gtest/gtest.h>
#include <zo_ui/platform/linux.hpp>

#include "platform/foreign_window.hpp"
#include "platform/x_client.hpp"

#include <unistd.h>

#include <clocale>

namespace {

struct info {
    unsigned long window = 99;
    std::string title = "before", res_name = "before", res_class = "before";
    int pid = 99;
    bool read() { return getActiveWindowInfo(window, title, res_name, res_class, pid); }
};

class Framed : public testing::Test {
  protected:
    Framed() { std::setlocale(LC_ALL, ""); }
    ~Framed() override {
        EXPECT_EQ(errors.count(), 0);
        std::setlocale(LC_ALL, "C");
    }

    void activate(const test::foreign_window& window) {
        ASSERT_NE(window.id(), 0U);
        EXPECT_TRUE(setActiveWindow(window.id()));
        EXPECT_TRUE(test::turn_until([&] { return getActiveWindow() == window.id(); }));
    }

    test::counted_errors errors;
    test::x_client asking;
};

TEST_F(Framed, TheFocusedWindowsFactsAreReadAtOnce) {
    test::foreign_window window({"title=Notes \u2713", "type=UTF8_STRING", "class=notes,Notes", "pid=4711"});
    activate(window);
    info active;
    EXPECT_TRUE(active.read());
    EXPECT_EQ(active.window, window.id());
    EXPECT_EQ(active.title, "Notes \u2713");
    EXPECT_EQ(active.res_name, "notes");
    EXPECT_EQ(active.res_class, "Notes");
    EXPECT_EQ(active.pid, 4711);
}

TEST_F(Framed, ActivatingMovesTheFocusBetweenPrograms) {
    test::foreign_window first({"title=first"}), second({"title=second"});
    for (int round = 0; round < 3; ++round) {
        activate(first);
        activate(second);
    }
    EXPECT_EQ(setActiveWindow(asking, first.id()), 1);
    XFlush(asking);
    EXPECT_TRUE(test::turn_until([&] { return getActiveWindow(asking) == first.id(); }));
}

TEST_F(Framed, OtherToolsSayTheSame) {
    test::foreign_window window({"title=Agreed", "class=agreed,Agreement", "pid=4712"});
    activate(window);
    EXPECT_EQ(test::output_of("xdotool getwindowfocus -f"), std::to_string(get_focus_window(asking)));
    EXPECT_EQ(test::output_of("xdotool getwindowfocus"), std::to_string(getActiveWindow(asking)));
    info active;
    ASSERT_TRUE(active.read());
    const std::string property = "xprop -id " + std::to_string(active.window) + " -notype ";
    EXPECT_EQ(test::output_of(property + "WM_NAME"), "WM_NAME = \"" + active.title + "\"");
    EXPECT_EQ(test::output_of(property + "WM_CLASS"),
              "WM_CLASS = \"" + active.res_name + "\", \"" + active.res_class + "\"");
    EXPECT_EQ(test::output_of(property + "_NET_WM_PID"), "_NET_WM_PID = " + std::to_string(active.pid));
    EXPECT_EQ(test::output_of("xdotool getwindowpid " + std::to_string(active.window)),
              std::to_string(active.pid));
    EXPECT_EQ(test::output_of("xdotool getactivewindow"), std::to_string(active.window));
}

TEST_F(Framed, WithoutAProcessIdTheRestIsFilledInAndTheResultIsFalse) {
    test::foreign_window window({"title=No id", "class=no,Id"});
    activate(window);
    info active;
    EXPECT_FALSE(active.read());
    EXPECT_EQ(active.window, 0U);
    EXPECT_EQ(active.pid, 0);
    EXPECT_EQ(active.title + "/" + active.res_name + "/" + active.res_class, "No id/no/Id");
}

TEST_F(Framed, AProcessIdBelowZeroIsToldAndIsAFailure) {
    test::foreign_window window({"title=Odd", "class=odd,Odd", "pid=-3"});
    activate(window);
    info active;
    EXPECT_FALSE(active.read());
    EXPECT_EQ(active.window, 0U);
    EXPECT_EQ(active.pid, -3);
}

TEST_F(Framed, TheLowestProcessIdIsOne) {
    test::foreign_window window({"title=First", "class=first,First", "pid=1"});
    activate(window);
    info active;
    EXPECT_TRUE(active.read());
    EXPECT_EQ(active.window, window.id());
    EXPECT_EQ(active.pid, 1);
}

TEST_F(Framed, WithoutAClassOnlyTheTitleIsFilledIn) {
    test::foreign_window window({"title=No class", "pid=4713"});
    activate(window);
    info active;
    EXPECT_FALSE(active.read());
    EXPECT_EQ(active.window, 0U);
    EXPECT_EQ(active.pid, 0);
    EXPECT_EQ(active.title + "/" + active.res_name + "/" + active.res_class, "No class/before/before");
}

TEST_F(Framed, WithoutANameNothingIsFilledIn) {
    test::foreign_window window({"class=no,Name", "pid=4714"});
    activate(window);
    info active;
    EXPECT_FALSE(active.read());
    EXPECT_EQ(active.window, 0U);
    EXPECT_EQ(active.pid, 0);
    EXPECT_EQ(active.title + "/" + active.res_name + "/" + active.res_class, "before/before/before");
}

TEST_F(Framed, AnEmptyNameIsEnough) {
    test::foreign_window window({"title=", "class=empty,Name", "pid=4715"});
    activate(window);
    info active;
    EXPECT_TRUE(active.read());
    EXPECT_EQ(active.title, "");
}

TEST_F(Framed, HidingUnmapsTheWindow) {
    test::foreign_window window({"title=hidden"});
    activate(window);
    ASSERT_TRUE(asking.is_viewable(window.id()));
    EXPECT_TRUE(HideWindow(window.id()));
    EXPECT_FALSE(asking.is_viewable(window.id()));
    EXPECT_TRUE(test::turn_until([&] { return getActiveWindow() != window.id(); }));
}

TEST_F(Framed, AWindowThatEndsIsNoLongerActive) {
    test::foreign_window window({"title=ends", "class=ends,Ends", "pid=4716"});
    activate(window);
    window.end();
    EXPECT_TRUE(test::turn_until([&] { return getActiveWindow() == 0; }));
    info active;
    EXPECT_FALSE(active.read());
    EXPECT_EQ(active.window, 0U);
    EXPECT_TRUE(setActiveWindow(window.id()));
    EXPECT_TRUE(HideWindow(window.id()));
}

TEST_F(Framed, ThePrintOutShowsTheFacts) {
    test::foreign_window window({"title=Printed", "class=printed,Print", "pid=4717"});
    activate(window);
    const test::captured_output output;
    testX11ActiveWindow();
    EXPECT_EQ(output.text(), "window    id: " + std::to_string(window.id()) + "\nwindow   pid: 4717 " +
                                 std::to_string(getpid()) +
                                 "\nWindow title: Printed\nres     name: printed\nres    class: Print\n");
}

}  // namespace
