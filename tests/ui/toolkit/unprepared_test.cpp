// SPDX-License-Identifier: MIT
// Before zo_ui_init.
#define ZO_TEST_WITHOUT_UI_INIT
#include "support/ui.hpp"

#include <cstdlib>
#include <filesystem>

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

// Is the shipped theme on the screen? It names this colour.
bool themed() {
    GtkWidget* label = GTK_WIDGET(g_object_ref_sink(gtk_label_new("x")));
    GdkRGBA colour{};
    const bool known =
        gtk_style_context_lookup_color(gtk_widget_get_style_context(label), "zo_title_mark", &colour);
    gtk_widget_destroy(label);
    g_object_unref(label);
    return known;
}

// Nobody set a path: the theme is found from the folder that the program was started in.
TEST(Unprepared, TheDefaultPathLeadsToTheShippedTheme) {
    const auto before = std::filesystem::current_path();
    GError* error = nullptr;
    std::filesystem::current_path(std::filesystem::temp_directory_path());
    zo_theme_use_theme("brevant", error);
    EXPECT_NE(error, nullptr);
    g_clear_error(&error);
    EXPECT_FALSE(themed());
    std::filesystem::current_path(std::getenv("ZO_SOURCE_DIR"));
    test::captured_output output;
    zo_theme_use_theme("brevant", error);
    EXPECT_EQ(error, nullptr) << error->message;
    EXPECT_EQ(output.text(), "");
    EXPECT_TRUE(themed());
    zo_theme_uninit();
    EXPECT_FALSE(themed());
    std::filesystem::current_path(before);
}

}  // namespace
