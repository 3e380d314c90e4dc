// SPDX-License-Identifier: MIT
// Before zo_ui_init.
#define ZO_TEST_WITHOUT_UI_INIT
#include "support/ui.hpp"

namespace {

TEST(Unprepared, GeometryIsZeroUntilItIsRead) {
    for (const auto get : {zo_ui_screen_x, zo_ui_screen_y, zo_ui_screen_width, zo_ui_screen_height,
                           zo_ui_workarea_x, zo_ui_workarea_y, zo_ui_workarea_width, zo_ui_workarea_height})
        EXPECT_EQ(get(), 0);
    zo_ui_init();
    EXPECT_EQ(zo_ui_screen_width(), 1920);
    EXPECT_GT(zo_ui_workarea_height(), 0);
}

TEST(Unprepared, TheThemeHasItsDefaults) {
    EXPECT_EQ(zo_theme_get_theme_path(), "./share/themes/brevant/");
    EXPECT_EQ(zo_theme_get_theme_name(), "brevant");
    zo_theme_init();
    zo_theme_uninit();
    EXPECT_EQ(zo_theme_get_theme_path(), "./share/themes/brevant/");
}

}  // namespace
