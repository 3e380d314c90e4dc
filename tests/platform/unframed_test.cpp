// SPDX-License-Identifier: MIT
// Windows of other programs that get no frame: they ask a window manager for none, or there is no window
// manager.
#include "support/loop.hpp"
#include "support/output.hpp"

#include <gtest/gtest.h>
#include <zo_ui/platform/linux.hpp>

#include "platform/foreign_window.hpp"
#include "platform/x_client.hpp"

namespace {

class Unframed : public testing::Test {
  protected:
    ~Unframed() override { EXPECT_EQ(errors.count(), 0); }

    void focus(Window window) {
        ASSERT_NE(window, 0U);
        EXPECT_TRUE(test::turn_until([&] {
            asking.focus(window);
            return get_focus_window(asking) == window;
        }));
    }

    test::counted_errors errors;
    test::x_client asking;
};

TEST_F(Unframed, TheFocusedWindowIsItsOwnTopAndNamesNone) {
    const test::foreign_window window({"bare", "title=bare", "class=bare,Bare", "pid=4711"});
    focus(window.id());
    EXPECT_EQ(test::output_of("xdotool getwindowfocus -f"), std::to_string(window.id()));
    EXPECT_EQ(get_top_window(asking, window.id()), window.id());
    EXPECT_EQ(get_named_window(asking, window.id()), 0U);
    EXPECT_EQ(getActiveWindow(asking), 0U);
    EXPECT_EQ(getActiveWindow(), 0U);
}

TEST_F(Unframed, ItsFactsAreReadAllTheSame) {
    const test::foreign_window window({"bare", "title=bare", "class=bare,Bare", "pid=4711"});
    std::string title, res_name, res_class;
    EXPECT_TRUE(get_window_name(asking, window.id(), title));
    EXPECT_TRUE(get_window_class(asking, window.id(), res_name, res_class));
    EXPECT_EQ(title + "/" + res_name + "/" + res_class, "bare/bare/Bare");
    EXPECT_EQ(getWindowPid(asking, window.id()), 4711);
}

TEST_F(Unframed, NoActiveWindowHasNoFacts) {
    const test::foreign_window window({"bare", "title=bare", "class=bare,Bare", "pid=4711"});
    focus(window.id());
    unsigned long active = 99;
    int pid = 99;
    std::string title = "before", res_name = "before", res_class = "before";
    EXPECT_FALSE(getActiveWindowInfo(active, title, res_name, res_class, pid));
    EXPECT_EQ(active, 0U);
    EXPECT_EQ(pid, 0);
    EXPECT_EQ(title + "/" + res_name + "/" + res_class, "before/before/before");
    const test::captured_output output;
    testX11ActiveWindow();
    EXPECT_EQ(output.text(), "could not retrieve active window info\n");
}

TEST_F(Unframed, HidingUnmapsTheWindow) {
    const test::foreign_window window({"bare", "title=hidden"});
    ASSERT_TRUE(asking.is_viewable(window.id()));
    EXPECT_TRUE(HideWindow(window.id()));
    EXPECT_FALSE(asking.is_viewable(window.id()));
}

TEST_F(Unframed, AWindowBesideItIsFoundIfTheManagerFramesIt) {
    const test::foreign_window bare({"bare", "title=bare"});
    const test::foreign_window other({"title=other"});
    focus(other.id());
    EXPECT_EQ(getActiveWindow(asking), test::window_manager() == "none" ? 0U : other.id());
}

}  // namespace
