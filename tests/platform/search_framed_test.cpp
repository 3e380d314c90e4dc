// SPDX-License-Identifier: MIT
// Searching among windows of other programs in a window manager's frames.
#include <gtest/gtest.h>
#include <zo_ui/platform/linux/search_p.hpp>

#include "platform/foreign_window.hpp"
#include "platform/x_client.hpp"

namespace {

TEST(SearchFramed, WindowsOfOtherProgramsAreFound) {
    const test::counted_errors errors;
    const test::x_client asking;
    const test::foreign_window mail({"title=mail", "class=mail,Mail"});
    test::foreign_window news({"title=news", "class=news,News"});
    EXPECT_EQ(find_window_by_class(asking, 0, "mail", "Mail"), mail.id());
    EXPECT_EQ(find_window_by_class(asking, 0, "news", "News"), news.id());
    EXPECT_EQ(find_window_by_class(asking, get_top_window(asking, news.id()), "news", "News"), news.id());
    EXPECT_EQ(find_window_by_class(asking, get_top_window(asking, mail.id()), "news", "News"), 0U);
    EXPECT_EQ(find_window_by_class(asking, 0, "mail", "News"), 0U);
    news.end();
    EXPECT_EQ(find_window_by_class(asking, 0, "news", "News"), 0U);
    EXPECT_EQ(errors.count(), 0);
}

}  // namespace
