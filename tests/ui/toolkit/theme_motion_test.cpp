// SPDX-License-Identifier: MIT
// What the theme lets glide jumps when the desktop's setting is against animations.
#include "support/ui.hpp"

#include <cstdlib>

namespace {

class ThemeMotion : public testing::TestWithParam<const char*> {
  protected:
    void SetUp() override {
        zo_theme_set_theme_path(std::string(std::getenv("ZO_SOURCE_DIR")) + "/share/themes/brevant/");
        GError* error = nullptr;
        zo_theme_use_theme(GetParam(), error);
        ASSERT_EQ(error, nullptr);
        window_ = gtk_window_new(GTK_WINDOW_POPUP);
        gtk_style_context_add_class(gtk_widget_get_style_context(window_), "zo-window");
        button_ = zo_ui_button_new_with_label("Save");
        gtk_container_add(GTK_CONTAINER(window_), button_);
        gtk_window_move(GTK_WINDOW(window_), 400, 400);
        gtk_widget_show_all(window_);
        ASSERT_TRUE(test::turn_until([this] { return test::is_on_screen(window_); }));
    }
    void TearDown() override {
        animate(true);
        gtk_widget_destroy(window_);
        zo_theme_uninit();
    }

    static void animate(bool on) {
        g_object_set(gtk_settings_get_default(), "gtk-enable-animations", on, nullptr);
    }

    GdkRGBA ground() const {
        GtkStyleContext* context = gtk_widget_get_style_context(button_);
        GdkRGBA* stored = nullptr;
        gtk_style_context_get(context, gtk_style_context_get_state(context), "background-color", &stored,
                              nullptr);
        const GdkRGBA result = *stored;
        gdk_rgba_free(stored);
        return result;
    }

    bool is_highlighted() const {
        GdkRGBA highlight{};
        gtk_style_context_lookup_color(gtk_widget_get_style_context(button_), "zo_raised_hover", &highlight);
        const GdkRGBA now = ground();
        return gdk_rgba_equal(&now, &highlight);
    }

    void hover() const { gtk_widget_set_state_flags(button_, GTK_STATE_FLAG_PRELIGHT, FALSE); }

    GtkWidget* window_ = nullptr;
    GtkWidget* button_ = nullptr;
};

TEST_P(ThemeMotion, GlidesWhenAnimationsAreOn) {
    animate(true);
    hover();
    EXPECT_FALSE(is_highlighted());
    EXPECT_TRUE(test::turn_until([this] { return is_highlighted(); }));
}

TEST_P(ThemeMotion, JumpsWhenTheyAreOff) {
    animate(false);
    hover();
    EXPECT_TRUE(is_highlighted());
}

INSTANTIATE_TEST_SUITE_P(, ThemeMotion, testing::Values("brevant", "brevant-dark", "brevant-high-contrast"),
                         [](const auto& info) { return "Variant" + std::to_string(info.index); });

}  // namespace
