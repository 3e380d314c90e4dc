// SPDX-License-Identifier: MIT
// The ring around the focused button of a tool menu is seen in every state that the button can have.
#include "support/ui.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

GdkRGBA colour_of(GtkStyleContext* context, const char* property) {
    GdkRGBA* stored = nullptr;
    gtk_style_context_get(context, gtk_style_context_get_state(context), property, &stored, nullptr);
    const GdkRGBA result = *stored;
    gdk_rgba_free(stored);
    return result;
}

GdkRGBA blended(const GdkRGBA& over, const GdkRGBA& ground) {
    const auto mix = [&](double above, double below) {
        return above * over.alpha + below * (1 - over.alpha);
    };
    return {mix(over.red, ground.red), mix(over.green, ground.green), mix(over.blue, ground.blue), 1};
}

// Relative luminance and contrast as the Web Content Accessibility Guidelines define them.
double luminance(const GdkRGBA& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.red) + 0.7152 * linear(colour.green) + 0.0722 * linear(colour.blue);
}

double contrast(const GdkRGBA& one, const GdkRGBA& other) {
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

class ThemeFocus : public testing::TestWithParam<const char*> {};

TEST_P(ThemeFocus, TheRingOfAToolMenuButtonIsSeenInEveryState) {
    zo_theme_set_theme_path(std::string(std::getenv("ZO_SOURCE_DIR")) + "/share/themes/brevant/");
    GError* error = nullptr;
    zo_theme_use_theme(GetParam(), error);
    ASSERT_EQ(error, nullptr);
    GtkWidget* menu = gtk_window_new(GTK_WINDOW_POPUP);
    GtkStyleContext* ground = gtk_widget_get_style_context(menu);
    for (const char* name : {"tool-menu", "zo-window"}) gtk_style_context_add_class(ground, name);
    GtkWidget* button = gtk_button_new_with_label("Save");
    gtk_container_add(GTK_CONTAINER(menu), button);
    GtkStyleContext* context = gtk_widget_get_style_context(button);
    gtk_style_context_add_class(context, "tool-menu-button");
    for (const int state :
         {0, static_cast<int>(GTK_STATE_FLAG_PRELIGHT), static_cast<int>(GTK_STATE_FLAG_ACTIVE),
          GTK_STATE_FLAG_PRELIGHT | GTK_STATE_FLAG_ACTIVE}) {
        gtk_widget_set_state_flags(button, static_cast<GtkStateFlags>(state | GTK_STATE_FLAG_FOCUSED), TRUE);
        const GdkRGBA below =
            blended(colour_of(context, "background-color"), colour_of(ground, "background-color"));
        EXPECT_GE(contrast(colour_of(context, "outline-color"), below), 3.0) << "state " << state;
    }
    gtk_widget_destroy(menu);
    zo_theme_uninit();
}

INSTANTIATE_TEST_SUITE_P(, ThemeFocus, testing::Values("brevant", "brevant-dark", "brevant-high-contrast"),
                         [](const auto& info) { return "Variant" + std::to_string(info.index); });

}  // namespace
