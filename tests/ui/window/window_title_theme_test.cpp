// SPDX-License-Identifier: MIT
// The title bar under the default theme: its buttons are exactly as large as they say.
#include "support/desktop.hpp"
#include "ui/window/tree_support.hpp"

namespace {

const char* const buttons[] = {"title-exit",     "title-hint", "title-shoot", "title-close",
                               "title-minimize", "title-menu", "title-back"};

class WindowTitleTheme : public testing::Test {
  protected:
    void SetUp() override { test::use_theme(); }
    void TearDown() override { zo_theme_uninit(); }
};

TEST_F(WindowTitleTheme, AButtonIsSixteenPixelsWideAndHigh) {
    for (const char* title : {"", "Notes", "Żółć ÅÄÖ gjpqy|"}) {
        test::scoped_window window("w");
        test::enable_title_buttons(window);
        zo_window_set_title(window, title);
        GtkWidget* toplevel = window.show();
        for (const char* style_class : buttons) {
            GtkWidget* button = test::find_class(toplevel, style_class);
            EXPECT_EQ(gtk_widget_get_allocated_width(button), 16) << style_class << " beside " << title;
            EXPECT_EQ(gtk_widget_get_allocated_height(button), 16) << style_class << " beside " << title;
        }
    }
}

TEST_F(WindowTitleTheme, TheBarFillsTheWindow) {
    test::scoped_window window("w");
    test::enable_title_buttons(window, false);
    GtkWidget* toplevel = window.show();
    GtkWidget* bar = test::find_class(toplevel, "window-title");
    GtkWidget* wrapper = test::find_name(toplevel, "window-wrapper");
    EXPECT_GE(gtk_widget_get_allocated_width(bar), 300);
    EXPECT_GE(gtk_widget_get_allocated_height(bar), 15);
    EXPECT_EQ(gtk_widget_get_allocated_width(wrapper), gtk_widget_get_allocated_width(toplevel));
    EXPECT_EQ(gtk_widget_get_allocated_height(wrapper), gtk_widget_get_allocated_height(toplevel));
}

// A wide content carries the bar along, with the far button in the far corner.
TEST_F(WindowTitleTheme, TheBarIsAsWideAsTheContent) {
    test::scoped_window window("w");
    GtkWidget* toplevel = window.open();
    zo_window_add_content_child(window, test::block(700, 100), false, false, 0, false);
    zo_window_show(window);
    GtkWidget* bar = test::find_class(toplevel, "window-title");
    EXPECT_TRUE(test::turn_until([&] { return gtk_widget_get_allocated_width(bar) >= 700; }));
}

// Each button has a picture of its own: no two of them look alike.
TEST_F(WindowTitleTheme, EveryButtonHasAPicture) {
    test::scoped_window window("w");
    test::enable_title_buttons(window);
    GtkWidget* toplevel = window.show();
    test::move_pointer(0, 0);
    test::settle_desktop();
    std::vector<std::string> pictures;
    for (const char* style_class : buttons) {
        GtkWidget* button = test::find_class(toplevel, style_class);
        cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 16, 16);
        cairo_t* cairo = cairo_create(surface);
        gtk_widget_draw(button, cairo);
        cairo_destroy(cairo);
        cairo_surface_flush(surface);
        const auto* pixels = reinterpret_cast<const char*>(cairo_image_surface_get_data(surface));
        pictures.emplace_back(pixels, 16 * 16 * 4);
        cairo_surface_destroy(surface);
        EXPECT_NE(pictures.back(), std::string(16 * 16 * 4, '\0')) << style_class << " is empty";
    }
    std::sort(pictures.begin(), pictures.end());
    EXPECT_EQ(std::adjacent_find(pictures.begin(), pictures.end()), pictures.end());
}

}  // namespace
