// SPDX-License-Identifier: MIT
// Without any display: nothing crashes, nothing is read, and windows refuse to open.
#include "support/loop.hpp"
#include "support/output.hpp"

#include <gtest/gtest.h>
#include <zo_ui/zo_ui.hpp>

#include <cstdlib>

namespace {

TEST(Displayless, InitLeavesZeros) {
    ASSERT_EQ(gdk_display_get_default(), nullptr);
    zo_ui_init();
    EXPECT_EQ(zo_ui_screen_width(), 0);
    EXPECT_EQ(zo_ui_workarea_height(), 0);
}

TEST(Displayless, AWindowReportsAndStaysClosed) {
    const zo_window_ptr window = zo_window_new("w");
    zo_window_open(window);
    zo_window_show(window);
    test::captured_output output;
    test::run_tasks();
    EXPECT_NE(output.text().find("assertion failed: display != nullptr"), std::string::npos);
    bool opened = true;
    zo_window_is_opened(window, &opened);
    EXPECT_FALSE(opened);
    zo_window_destroy(window);
}

TEST(Displayless, APanelReportsAndStaysClosed) {
    const zo_window_manager_ptr manager = zo_window_manager_new("m");
    zo_window_manager_open(manager);
    test::captured_output output;
    test::run_tasks();
    EXPECT_NE(output.text().find("assertion failed: display != nullptr"), std::string::npos);
    bool opened = true;
    zo_window_manager_is_opened(manager, &opened);
    EXPECT_FALSE(opened);
    zo_window_manager_destroy(manager);
}

TEST(Displayless, TheSystemsThemesAreThoseOfTheBuild) {
    const std::string path = zo_theme_get_system_path();
    EXPECT_EQ(path, std::string(std::getenv("ZO_BINARY_DIR")) + "/share/themes/brevant/");
    EXPECT_EQ(zo_theme_get_theme_path(), "./share/themes/brevant/") << "nothing uses it by itself";
    zo_theme_set_theme_path(path);
    GError* error = nullptr;
    zo_theme_use_theme("brevant", error);
    EXPECT_EQ(error, nullptr);
    zo_theme_uninit();
}

// Sheets are loaded, and shown nowhere.
TEST(Displayless, ThemesLoadAndGo) {
    zo_theme_set_theme_path(std::string(std::getenv("ZO_SOURCE_DIR")) + "/share/themes/brevant/");
    test::captured_output output;
    GError* error = reinterpret_cast<GError*>(1);
    zo_theme_use_theme("brevant", error);
    EXPECT_EQ(error, nullptr);
    zo_theme_add_css_permanent("style.css", error);
    EXPECT_EQ(error, nullptr);
    EXPECT_EQ(output.text(), "");
    for (const auto load : {zo_theme_use_theme, zo_theme_add_css_permanent}) {
        load("missing", error);
        EXPECT_NE(error, nullptr);
        g_clear_error(&error);
    }
    EXPECT_EQ(output.lines().size(), 2U) << output.text();
    zo_theme_use_theme("brevant", error);
    EXPECT_EQ(error, nullptr);
    EXPECT_EQ(zo_theme_get_theme_name(), "brevant");
    zo_theme_uninit();
    zo_theme_uninit();
}

}  // namespace
